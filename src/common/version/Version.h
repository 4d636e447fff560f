#pragma once

namespace tessaly {

/// The version, with the commit that the program was built from where one is known: "0.1.0 (838edc3d57bc)".
/// A "+" after the commit tells of changes that were in no commit. In a library of its own,
/// quillet_version, so that a new commit makes only the two programs be linked again.
const char* versionText();

} // namespace tessaly
