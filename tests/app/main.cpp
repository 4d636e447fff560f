#include "common/settings/CAppSettings.h"
#include "common/settings/Product.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <gtest/gtest.h>

/// LeakSanitizer's: the offscreen platform never frees its screen.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\n";
}

/// Tests of widgets: no display, and settings, state and desktop entries in a folder of their own.
int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    const test::TempFolder home;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "XDG_STATE_HOME"})
        qputenv(variable, (home / variable).c_str());
    qputenv("QT_QPA_PLATFORM", QPA_PLATFORM);
    qputenv("LANGUAGE", "en_US");
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(tessaly::QuilletName);
    CAppSettings::setApplicationProductId(tessaly::QuilletProductId);
    QLocale::setDefault(QLocale::c());
    return RUN_ALL_TESTS();
}
