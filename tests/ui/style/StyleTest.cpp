#include "ui/RecordingStyle.h"
#include "ui/Widgets.h"
#include "ui/style/CIconButton.h"
#include "ui/style/CInfoText.h"
#include "ui/style/CLinkLabel.h"
#include "ui/style/CRoundedComboBox.h"
#include "ui/style/CScrollPage.h"
#include "ui/style/CSubjectLabel.h"
#include "ui/style/EyeIcon.h"
#include "ui/style/FitToScreen.h"
#include "ui/style/MessageStyle.h"
#include "ui/style/ReadOnlyField.h"
#include "ui/style/TextDirection.h"
#include "ui/style/TextSize.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextOption>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cmath>

namespace {

using thisapp::MessageKind;

/// Contrast ratio as of WCAG 2.1.
double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto [less, more] = std::minmax({luminance(one), luminance(other)});
    return (more + 0.05) / (less + 0.05);
}

TEST(MessageStyle, ColoursCanBeReadAndMeanWhatTheyMeanEverywhere)
{
    struct SHue
    {
        QColor color, beside;
        int from, to;
    };
    for (const char* window : {"#ffffff", "#efefef", "#808080", "#7f7f7f", "#2a2e32", "#000000"}) {
        const QPalette theme{QColor(window)};
        const QColor ground = theme.color(QPalette::Window);
        const bool grey = ground.lightness() > 100 && ground.lightness() < 150; // nothing is readable there
        const SHue rows[] = {
            {messageColor(MessageKind::Success, theme), ground, 120, 140},
            {messageColor(MessageKind::Warning, theme), ground, 30, 40},
            {messageColor(MessageKind::Error, theme), ground, 0, 10},
            {thisapp::fieldColor(true, theme), theme.color(QPalette::Text), 120, 140},
            {thisapp::fieldColor(false, theme), theme.color(QPalette::Text), 0, 10},
        };
        for (const SHue& row : rows) {
            EXPECT_TRUE(row.from <= row.color.hslHue() && row.color.hslHue() <= row.to)
                << window << row.color.name().toStdString();
            EXPECT_TRUE(grey || contrast(row.color, row.beside) >= 4.5)
                << window << row.color.name().toStdString();
        }
        EXPECT_EQ(messageColor(MessageKind::Plain, theme), theme.color(QPalette::WindowText));
    }
}

struct RightToLeft : testing::Test
{
    RightToLeft() { QApplication::setLayoutDirection(Qt::RightToLeft); }
    ~RightToLeft() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

TEST_F(RightToLeft, TextsStandAtTheSideOfTheLanguage)
{
    const QString hebrew = QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
    for (const bool rightToLeft : {true, false}) {
        QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        const QString isolated = rightToLeft ? QString::fromUtf8("\xe2\x81\xa6"
                                                                 "F5"
                                                                 "\xe2\x81\xa9")
                                             : "F5";
        EXPECT_EQ(thisapp::leftToRight("F5"), isolated);
        EXPECT_EQ(thisapp::atLanguageSide("F5"), rightToLeft ? QChar(0x200f) + isolated : "F5");
        EXPECT_EQ(thisapp::atLanguageSide(hebrew), hebrew);
        EXPECT_EQ(thisapp::atLanguageSide(""), "");
        QTextDocument document;
        document.setHtml("<p dir='ltr'>a</p>");
        thisapp::followLanguageSide(document);
        EXPECT_EQ(document.defaultTextOption().textDirection() == Qt::RightToLeft, rightToLeft);
        EXPECT_EQ(document.defaultTextOption().alignment().testFlag(Qt::AlignRight), rightToLeft);
        EXPECT_EQ(document.begin().blockFormat().layoutDirection(),
                  rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    }
}

TEST_F(RightToLeft, ButtonsAndSelectionsAreTurnedRound)
{
    const RecordingStyle& style = RecordingStyle::use();
    CIconButton button;
    button.setText("text");
    CRoundedComboBox box;
    box.resize(200, 30);
    for (const bool rightToLeft : {true, false}) {
        QApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        style.texts.clear();
        style.primitives.clear();
        button.grab();
        EXPECT_EQ(style.texts.front().text, rightToLeft ? QChar(0x202b) + QString("text") : "text");
        box.grab();
        const auto arrow = std::ranges::find(style.primitives, QStyle::PE_IndicatorArrowDown,
                                             [](const auto& drawn) { return drawn.first; });
        ASSERT_NE(arrow, style.primitives.end());
        EXPECT_EQ(arrow->second.center().x() < box.width() / 2, rightToLeft);
    }
    QApplication::setStyle("Fusion");
}

TEST(SubjectLabel, NamesFilesOnOneLineAndWidensNothing)
{
    CSubjectLabel label;
    const struct
    {
        const char* name;
        int others;
        const char* text;
    } rows[] = {{"a", 0, "a"},
                {"a", 1, "a and 1 more"},
                {"a\nb\xe2\x80\xa8"
                 "c\t",
                 0,
                 "a\xef\xbf\xbd"
                 "b\xef\xbf\xbd"
                 "c\xef\xbf\xbd"}};
    EXPECT_TRUE(label.isHidden());
    for (const auto& row : rows) {
        label.setSubject(QString::fromUtf8(row.name), row.others);
        EXPECT_EQ(label.text(), QString::fromUtf8(row.text));
        EXPECT_EQ(label.toolTip(), label.text());
        EXPECT_FALSE(label.isHidden());
    }
    label.setSubject("", 0);
    EXPECT_TRUE(label.isHidden());
    EXPECT_EQ(label.sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);

    const RecordingStyle& style = RecordingStyle::use();
    label.setSubject(QString(500, 'n'), 2);
    label.resize(200, 20);
    label.grab();
    const QString shown = style.texts.back().text;
    QApplication::setStyle("Fusion");
    EXPECT_TRUE(shown.endsWith(" and 2 more")) << "is never cut off";
    EXPECT_LE(label.fontMetrics().horizontalAdvance(shown), 200);
}

TEST(LinkLabel, ShowsPlainTextAndTheFocusAndFollowsItsKeys)
{
    const RecordingStyle& style = RecordingStyle::use();
    CLinkLabel link;
    link.setLinkText("a < b");
    QSignalSpy followed(&link, &QLabel::linkActivated);
    open(link);
    EXPECT_TRUE(link.text().endsWith(">a &lt; b</a>"));
    for (const bool focus : {false, true}) {
        focus ? link.setFocus() : link.clearFocus();
        style.primitives.clear();
        link.grab();
        EXPECT_EQ(std::ranges::count(style.primitives, QStyle::PE_FrameFocusRect,
                                     [](const auto& drawn) { return drawn.first; }),
                  focus ? 1 : 0);
    }
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_A})
        press(key);
    EXPECT_EQ(followed.count(), 3);
    QApplication::setStyle("Fusion");
}

TEST(RoundedComboBox, TheWheelChangesItOnlyWithTheFocus)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* other = new QLineEdit;
    auto* box = new CRoundedComboBox;
    box->setAccessibleName("name");
    box->addItems({"a", "b", "c"});
    layout->addWidget(other);
    layout->addWidget(box);
    open(window);
    EXPECT_EQ(box->view()->accessibleName(), "name");
    for (QWidget* focused : {static_cast<QWidget*>(other), static_cast<QWidget*>(box)}) {
        focused->setFocus();
        QWheelEvent wheel(box->rect().center(), box->mapToGlobal(box->rect().center()), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
        EXPECT_EQ(box->currentIndex(), focused == box ? 1 : 0);
        EXPECT_EQ(wheel.isAccepted(), focused == box) << "so that the page scrolls";
    }
}

TEST(FitToScreen, LeavesRoomForTheFrame)
{
    QWidget dialog;
    const QSize screen = dialog.screen()->availableSize();
    const int title = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    for (const QSize& wanted : {QSize(200, 100), QSize(20000, 10000)}) {
        thisapp::fitToScreen(dialog, wanted);
        EXPECT_EQ(dialog.size() == wanted, wanted.width() < screen.width());
        EXPECT_LE(dialog.height() + title, screen.height());
        EXPECT_LT(dialog.width(), screen.width());
    }
    EXPECT_EQ(thisapp::textSize(dialog, 10, 2),
              QSize(10 * dialog.fontMetrics().averageCharWidth(), 2 * dialog.fontMetrics().lineSpacing()));
    EXPECT_EQ(thisapp::textSize(dialog, 10000, 10000), screen * 9 / 10);
}

TEST(ScrollPage, AsksForItsContentsAndScrollsInLess)
{
    CScrollPage page;
    auto* contents = new QWidget;
    contents->setMinimumSize(100, 700);
    page.setWidget(contents);
    EXPECT_EQ(page.sizeHint(), QSize(100, 700));
    EXPECT_GE(page.minimumSizeHint().width(), 100 + page.verticalScrollBar()->sizeHint().width());
    EXPECT_LT(page.minimumSizeHint().height(), 200);
    contents->setMinimumSize(5000, 10);
    EXPECT_LT(page.minimumSizeHint().width(), 1000);
    EXPECT_EQ(page.minimumSizeHint().height(), 10);

    contents->setMinimumSize(100, 700);
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

TEST(EyeIcon, HasTheColourOfTheTheme)
{
    const QPalette before = QApplication::palette();
    for (const char* theme : {"#ffffff", "#2a2e32"}) {
        QApplication::setPalette(QColor(theme));
        const QColor shown = thisapp::eyeIcon(false).pixmap(48).toImage().pixelColor(24, 17);
        EXPECT_GT(shown.alpha(), 0x80);
        EXPECT_EQ(shown.lightness() > 0x80, QApplication::palette().color(QPalette::Text).lightness() > 0x80);
    }
    QApplication::setPalette(before);
}

} // namespace
