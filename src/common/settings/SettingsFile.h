#pragma once

#include <QString>

namespace tessaly {

/// Takes the lines out of a settings file whose values are serialised objects, "@Variant(...)": no
/// program of ours writes one, and reading one can ask for any amount of memory, which ends the
/// program. The other lines stay as they are, and a file without such lines is left alone.
/// Gives the number of lines, or -1 when they have to stay because the file cannot be read or written.
int removeSerialisedValues(const QString& path);

} // namespace tessaly
