#pragma once

#include "ui/algorithms/ICryptoAlgProvider.h"

/// Three algorithms, the second of them disabled, and one index that yields nothing.
class FakeAlgProvider : public thisapp::ICryptoAlgProvider
{
public:
    explicit FakeAlgProvider(std::uint32_t library = 1) : m_library(library) {}
    int count() const override { return 4; }
    bool entry(int index, thisapp::AlgSelection& selection, bool& enabled) const override
    {
        if (index == 2)
            return false;
        selection = {m_library, index == 0 ? 252U : static_cast<std::uint32_t>(index)};
        enabled = index != 1;
        return true;
    }
    QString displayName(const thisapp::AlgSelection& selection) const override
    {
        return selection.algorithm == 252 ? QString("AES-256") : QString("Alg-%1").arg(selection.algorithm);
    }
    bool isValid(const thisapp::AlgSelection& selection) const override
    {
        return selection.library == m_library && (selection.algorithm == 252 || selection.algorithm == 3);
    }

private:
    std::uint32_t m_library;
};
