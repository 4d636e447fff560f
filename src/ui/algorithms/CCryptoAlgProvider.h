#pragma once

#include "ui/algorithms/ICryptoAlgProvider.h"

namespace thisapp {

/// Offers every algorithm of the catalogue, all enabled, in id order.
class CCryptoAlgProvider final : public ICryptoAlgProvider
{
public:
    int count() const override;
    bool entry(int index, AlgSelection& selection, bool& enabled) const override;
    QString displayName(const AlgSelection& selection) const override;
    bool isValid(const AlgSelection& selection) const override;
};

} // namespace thisapp
