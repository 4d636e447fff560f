#pragma once

class QString;
class QWidget;

namespace thisapp {

/// A tool tip that shows the text as it stands, even if it looks like HTML.
void setPlainToolTip(QWidget& widget, const QString& text);

/// Shows the widget's accessible description as its tool tip, too, broken into lines.
void showDescriptionAsToolTip(QWidget& widget);
/// Likewise for every widget within that has a description.
void showDescriptionsAsToolTips(QWidget& form);

} // namespace thisapp
