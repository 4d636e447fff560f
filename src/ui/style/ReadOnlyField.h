#pragma once

class QLineEdit;

namespace thisapp {

/// Lets a read-only field show its surroundings instead of the background of an editable one.
void showAsReadOnly(QLineEdit& field);

} // namespace thisapp
