#pragma once

#include <QString>

namespace thisapp {

struct NamingSettings;

/// The name whose output the dialog shows as a sample.
inline const QString SampleInput = QStringLiteral("MyFile.txt");

/// A sentence on what the naming rules would do that nobody wants; empty for nothing.
QString namingWarning(const NamingSettings& naming);

} // namespace thisapp
