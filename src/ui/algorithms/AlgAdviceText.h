#pragma once

#include "crypto/catalogue/Catalogue.h"
#include "ui/style/MessageStyle.h"

#include <QString>

namespace thisapp {

struct SAlgAdvice
{
    QString remark;   ///< a word or two; empty for none
    QString sentence; ///< why, with its source
    MessageKind kind = MessageKind::Plain;
};

SAlgAdvice algAdvice(tessaly::crypto::AlgAdvice advice);

/// Nothing for an unknown algorithm.
SAlgAdvice algAdvice(std::uint32_t algorithmId);

} // namespace thisapp
