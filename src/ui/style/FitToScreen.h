#pragma once

#include <QSize>

class QWidget;

namespace thisapp {

/// Gives a dialog that is about to be shown the size that it wants, by default that of its layout, but
/// never more than its screen has room for. Every dialog calls it.
void fitToScreen(QWidget& dialog, QSize wanted = {});

} // namespace thisapp
