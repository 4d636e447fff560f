#pragma once

#include "common/settings/AlgSelection.h"

#include <QString>

namespace thisapp {

/// The algorithms that the widgets offer, in display order.
class ICryptoAlgProvider
{
public:
    virtual ~ICryptoAlgProvider() = default;
    virtual int count() const = 0;
    /// Fills the entry at an index; false when the index yields nothing.
    virtual bool entry(int index, AlgSelection& selection, bool& enabled) const = 0;
    virtual QString displayName(const AlgSelection& selection) const = 0;
    /// True when the pair names an offered, enabled algorithm.
    virtual bool isValid(const AlgSelection& selection) const = 0;
};

} // namespace thisapp
