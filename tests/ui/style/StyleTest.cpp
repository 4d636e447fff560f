#include "ui/RecordingStyle.h"
#include "ui/Widgets.h"
#include "ui/style/CIconButton.h"
#include "ui/style/CInfoText.h"
#include "ui/style/CLinkLabel.h"
#include "ui/style/CRoundedComboBox.h"
#include "ui/style/CScrollPage.h"
#include "ui/style/CSubjectLabel.h"
#include "ui/style/DarkPalette.h"
#include "ui/style/EyeIcon.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/ReadOnlyField.h"
#include "ui/style/TextDirection.h"
#include "ui/style/TextSize.h"

#include <QSignalSpy>

namespace {

/// Whether the one can be read on the other.
bool differ(const QColor& one, const QColor& other, int enough = 110)
{
    return std::abs(qGray(one.rgb()) - qGray(other.rgb())) > enough;
}

TEST(MessageStyle, ColoursCanBeReadAndMeanWhatTheyMeanEverywhere)
{
    for (const char* window : {"#ffffff", "#efefef", "#808080", "#7f7f7f", "#2a2e32", "#000000"}) {
        const QPalette theme{QColor(window)};
        const QColor ground = theme.color(QPalette::Window);
        const QColor text = theme.color(QPalette::Text);
        const bool grey = ground.lightness() > 100 && ground.lightness() < 150; // nothing is readable there
        const std::tuple<QColor, QColor, int, int> rows[] = {
            {messageColor(MessageKind::Success, theme), ground, 120, 140},
            {messageColor(MessageKind::Warning, theme), ground, 30, 40},
            {messageColor(MessageKind::Error, theme), ground, 0, 10},
            {thisapp::fieldColor(true, theme), text, 120, 140},
            {thisapp::fieldColor(false, theme), text, 0, 10},
        };
        for (const auto& [color, beside, from, to] : rows) {
            SCOPED_TRACE(testing::Message() << window << color.name());
            EXPECT_TRUE(from <= color.hslHue() && color.hslHue() <= to);
            EXPECT_TRUE(grey || differ(color, beside));
        }
        EXPECT_EQ(messageColor(MessageKind::Plain, theme), theme.color(QPalette::WindowText));
        QApplication::setPalette(theme);
        const QColor eye = thisapp::eyeIcon(false).pixmap(48).toImage().pixelColor(24, 17);
        EXPECT_GT(eye.alpha(), 0x80);
        EXPECT_EQ(eye.lightness() > 0x80, text.lightness() > 0x80) << window;
    }
}

TEST(DarkPalette, EveryTextCanBeReadOnItsGround)
{
    const QPalette dark = thisapp::darkPalette();
    const std::tuple<QPalette::ColorRole, QPalette::ColorRole> rows[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Window},
        {QPalette::LinkVisited, QPalette::Window},
        {QPalette::ToolTipText, QPalette::ToolTipBase}};
    for (const auto& [text, ground] : rows) {
        EXPECT_TRUE(differ(dark.color(text), dark.color(ground))) << text;
        EXPECT_TRUE(differ(dark.color(QPalette::Disabled, text), dark.color(QPalette::Disabled, ground), 60))
            << text;
    }
    for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::Button})
        EXPECT_LT(dark.color(ground).lightness(), 0x60) << ground;
}

TEST(TextDirection, TextsButtonsAndSelectionsStandAtTheSideOfTheLanguage)
{
    const QString hebrew = "\u05e9\u05dc\u05d5\u05dd";
    const RecordingStyle& style = RecordingStyle::use();
    CIconButton button;
    button.setText("text");
    CRoundedComboBox box;
    box.resize(200, 30);
    for (const auto side : {Qt::RightToLeft, Qt::LeftToRight}) {
        const bool rightToLeft = side == Qt::RightToLeft;
        QApplication::setLayoutDirection(side);
        const QString isolated = rightToLeft ? QChar(0x2066) + QString("F5") + QChar(0x2069) : "F5";
        EXPECT_EQ(thisapp::leftToRight("F5"), isolated);
        EXPECT_EQ(thisapp::atLanguageSide("F5"), rightToLeft ? QChar(0x200f) + isolated : "F5");
        EXPECT_EQ(thisapp::atLanguageSide(hebrew), hebrew);
        EXPECT_EQ(thisapp::atLanguageSide(""), "");
        QTextDocument document;
        document.setHtml("<p dir='ltr'>a</p>");
        thisapp::followLanguageSide(document);
        EXPECT_EQ(document.defaultTextOption().textDirection() == Qt::RightToLeft, rightToLeft);
        EXPECT_EQ(document.defaultTextOption().alignment().testFlag(Qt::AlignRight), rightToLeft);
        EXPECT_EQ(document.begin().blockFormat().layoutDirection(), side);

        style.draw(button);
        EXPECT_EQ(style.texts.front().text, rightToLeft ? QChar(0x202b) + QString("text") : "text");
        style.draw(box);
        const auto arrow = style.primitives.find(QStyle::PE_IndicatorArrowDown);
        ASSERT_NE(arrow, style.primitives.end());
        EXPECT_EQ(arrow->second.center().x() < box.width() / 2, rightToLeft);
    }
}

TEST(SubjectLabel, NamesFilesOnOneLineAndWidensNothing)
{
    CSubjectLabel label;
    EXPECT_TRUE(label.isHidden());
    label.setSubject("A\nB\u2028C\t", 1);
    EXPECT_EQ(label.text(), "A\ufffdB\ufffdC\ufffd and 1 more");
    EXPECT_EQ(label.toolTip(), label.text());
    EXPECT_FALSE(label.isHidden());
    label.setSubject("a", 0);
    EXPECT_EQ(label.text(), "a");
    label.setSubject("", 0);
    EXPECT_TRUE(label.isHidden());
    EXPECT_EQ(label.sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);

    const RecordingStyle& style = RecordingStyle::use();
    label.setSubject(QString(500, 'n'), 2);
    label.resize(200, 20);
    style.draw(label);
    const QString shown = style.texts.back().text;
    EXPECT_TRUE(shown.endsWith(" and 2 more")) << "is never cut off";
    EXPECT_LE(label.fontMetrics().horizontalAdvance(shown), 200);
}

TEST(LinkLabel, ShowsPlainTextAndTheFocusAndFollowsItsKeysAndScreenReaders)
{
    const RecordingStyle& style = RecordingStyle::use();
    CLinkLabel link;
    link.setLinkText("a < b");
    QSignalSpy followed(&link, &QLabel::linkActivated);
    open(link);
    EXPECT_TRUE(link.text().endsWith(">a &lt; b</a>"));
    for (const bool focus : {false, true}) {
        focus ? link.setFocus() : link.clearFocus();
        style.draw(link);
        EXPECT_EQ(style.primitives.count(QStyle::PE_FrameFocusRect), focus ? 1U : 0U);
    }
    press("Return Enter Space A");
    EXPECT_EQ(followed.count(), 3);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&link);
    EXPECT_EQ(accessible->role(), QAccessible::Link);
    EXPECT_EQ(accessible->text(QAccessible::Name), "a < b");
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(followed.count(), 4);

    const std::tuple<const char*, const char*, const char*> themes[] = {
        {"#ffffff", "#0000ff", "#0000ff"}, {"#2a2e32", "#0000ff", "#8ac6ff"}, // of a theme that sets none
        {"#2a2e32", "#3daee9", "#3daee9"}, {"#2a2e32", "#1d99f3", "#8ac6ff"}, // a little less than enough
        {"#ffffff", "#8ac6ff", "#0000c0"},
    };
    for (const auto& [window, color, shown] : themes) {
        QPalette theme{QColor(window)};
        theme.setColor(QPalette::Link, QColor(color));
        QApplication::setPalette(theme);
        QApplication::processEvents();
        EXPECT_TRUE(link.text().contains(shown)) << window << ' ' << color << ' ' << link.text();
    }
}

TEST(RoundedComboBox, TheWheelChangesItOnlyWithTheFocus)
{
    QWidget window;
    CRoundedComboBox box(&window);
    QLineEdit other(&window);
    box.setAccessibleName("name");
    box.addItems({"a", "b", "c"});
    open(window);
    EXPECT_EQ(box.view()->accessibleName(), "name");
    for (QWidget* focused : std::initializer_list<QWidget*>{&other, &box}) {
        focused->setFocus();
        QWheelEvent wheel(box.rect().center(), box.mapToGlobal(box.rect().center()), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&box, &wheel);
        EXPECT_EQ(box.currentIndex(), focused == &box ? 1 : 0);
        EXPECT_EQ(wheel.isAccepted(), focused == &box) << "so that the page scrolls";
    }
}

TEST(FitToScreen, LeavesRoomForTheFrame)
{
    QWidget dialog;
    const QSize screen = dialog.screen()->availableSize();
    const int title = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    thisapp::fitToScreen(dialog, {200, 100});
    EXPECT_EQ(dialog.size(), QSize(200, 100));
    thisapp::fitToScreen(dialog, {20000, 10000});
    EXPECT_LE(dialog.height() + title, screen.height());
    EXPECT_LT(dialog.width(), screen.width());
    EXPECT_EQ(thisapp::textSize(dialog, 10, 2),
              QSize(10 * dialog.fontMetrics().averageCharWidth(), 2 * dialog.fontMetrics().lineSpacing()));
    EXPECT_EQ(thisapp::textSize(dialog, 10000, 10000), screen * 9 / 10);
}

TEST(ScrollPage, AsksForItsContentsAndScrollsInLess)
{
    CScrollPage page;
    auto* contents = new QWidget;
    contents->setMinimumSize(5000, 10);
    page.setWidget(contents);
    EXPECT_LT(page.minimumSizeHint().width(), 2500);
    EXPECT_EQ(page.minimumSizeHint().height(), 10);
    contents->setMinimumSize(100, 700);
    EXPECT_EQ(page.sizeHint(), QSize(100, 700));
    EXPECT_GE(page.minimumSizeHint().width(), 100 + page.verticalScrollBar()->sizeHint().width());
    EXPECT_LT(page.minimumSizeHint().height(), 200);

    auto* field = new QLineEdit(contents);
    field->move(0, 600);
    page.resize(150, 150);
    open(page);
    field->setFocus();
    EXPECT_FALSE(field->visibleRegion().isEmpty()) << "what has the focus is in sight";
}

TEST(InfoText, ShowsPlainTextWholeAndIsOnlyRead)
{
    CInfoText text;
    text.showText("<b>one</b>\ntwo\nthree");
    EXPECT_EQ(text.toPlainText(), "<b>one</b>\ntwo\nthree");
    EXPECT_GE(text.height(), 3 * text.fontMetrics().lineSpacing());
    EXPECT_GE(text.minimumWidth(), text.fontMetrics().horizontalAdvance("<b>one</b>"));
    EXPECT_TRUE(text.isReadOnly());
    QLineEdit field;
    thisapp::showAsReadOnly(field);
    EXPECT_TRUE(field.isReadOnly());
    EXPECT_EQ(field.palette().color(QPalette::Base).alpha(), 0);
}

} // namespace
