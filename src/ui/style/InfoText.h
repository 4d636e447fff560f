#pragma once

class QString;
class QTextEdit;

namespace thisapp {

/// Shows a text in a read-only field that looks like a label: the field takes the text's own size.
void setInfoText(QTextEdit& edit, const QString& text);

} // namespace thisapp
