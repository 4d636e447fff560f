#pragma once

#include "common/naming/NamingSettings.h"
#include "io/PathCheck.h"

#include <QString>

#include <cstdint>
#include <functional>

namespace thisapp {

/// What the file system says of a text that stands for an input file.
struct InputFacts
{
    tessaly::io::InputCheck check = tessaly::io::InputCheck::NotFound;
    QString path; ///< the text, without blanks around it unless it names a file with them
    std::int64_t size = 0;
    QString proposal; ///< for the output; empty when there is none, and for what is no usable input

    bool isUsable() const { return check == tessaly::io::InputCheck::Usable; }
};

/// May be called on any thread, and take its time.
using InputLook = std::function<InputFacts(const QString& text, const NamingSettings& naming)>;

/// The look at the real file system. Makes a missing default output folder for the proposal.
InputFacts lookAtInput(const QString& text, const NamingSettings& naming);

} // namespace thisapp
