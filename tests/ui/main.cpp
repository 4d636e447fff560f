#include "ui/Widgets.h"

/// LeakSanitizer's: the offscreen platform never frees its screen.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\n";
}

namespace {

/// Every test begins with the same look, whatever the one before it has changed.
class SameLook final : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override
    {
        QApplication::setStyle("Fusion");
        QApplication::setPalette(m_palette);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    QPalette m_palette = QApplication::palette();
};

} // namespace

/// Runs the tests of the widgets without a screen, in a user profile of their own.
int main(int argc, char** argv)
{
    const QTemporaryDir profile;
    for (const char* folder :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
        qputenv(folder, profile.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", QPA_PLATFORM);

    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setApplicationName("Quillet");
    testing::UnitTest::GetInstance()->listeners().Append(new SameLook);
    return RUN_ALL_TESTS();
}
