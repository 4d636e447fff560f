#include "app/job/Message.h"
#include "app/widgets/CDropHint.h"
#include "app/widgets/CElidedLabel.h"
#include "app/widgets/CMessageLine.h"
#include "app/widgets/SymbolicIcon.h"
#include "app/window/CFirstPaint.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace thisapp;

namespace {

TEST(WidgetsTest, IconsHaveTheColourOfTheirState)
{
    const QImage red = symbolicPixmap("encrypt", 32, Qt::red, 1).toImage();
    std::map<int, std::set<QRgb>> colours; // by their opacity
    for (int y = 0; y < red.height(); ++y)
        for (int x = 0; x < red.width(); ++x)
            colours[qAlpha(red.pixel(x, y))].insert(red.pixel(x, y));
    EXPECT_EQ(colours[255], std::set<QRgb>{0xffff0000});
    EXPECT_GT(colours.count(0), 0U);
    const QIcon icon = symbolicIcon("encrypt");
    EXPECT_NE(icon.pixmap(32, QIcon::Disabled).toImage(), icon.pixmap(32, QIcon::Normal).toImage());
}

TEST(WidgetsTest, AMessageIsNoMarkupAndReadableInEveryTheme)
{
    CMessageLine line;
    line.setMessage({MessageKind::Error, [] { return QString("<b>x</b>"); }});
    const auto labels = line.findChildren<QLabel*>();
    QLabel* label = *std::ranges::find_if(labels, [](QLabel* found) { return found->text() == "<b>x</b>"; });
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    const QColor light = label->palette().color(QPalette::WindowText);
    QPalette dark = line.palette();
    dark.setColor(QPalette::Window, Qt::black);
    line.setPalette(dark);
    EXPECT_NE(label->palette().color(QPalette::WindowText), light);
    EXPECT_EQ(label->palette().color(QPalette::WindowText), messageColor(MessageKind::Error, dark));
}

TEST(WidgetsTest, ALongDetailKeepsTheEndsOfBothNames)
{
    CElidedLabel label;
    const QString whole =
        "begin" + QString(200, 'x') + "end" + nameArrow() + "this" + QString(200, 'y') + "that";
    label.resize(400, 20);
    label.setWholeText(whole);
    for (const char* part : {"begin", "end", "this", "that", "\u2026"})
        EXPECT_TRUE(label.text().contains(part)) << label.text().toStdString();
    EXPECT_TRUE(label.toolTip().contains(whole));
    EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), 400);
    label.setWholeText("short");
    EXPECT_TRUE(label.text().contains("short"));
}

TEST(WidgetsTest, TheDropAreaShowsWhatItHasRoomFor)
{
    CDropHint hint;
    hint.setContent("file", "name", "size");
    const auto shown = [&hint](int lines) {
        hint.setFixedHeight(lines * hint.fontMetrics().height());
        hint.show();
        return std::ranges::count_if(hint.findChildren<QLabel*>(), &QLabel::isVisible);
    };
    for (const auto& [lines, count] : {std::pair(8, 3), std::pair(5, 2), std::pair(2, 1)})
        EXPECT_EQ(shown(lines), count);
}

TEST(WidgetsTest, WhatWaitsForTheFirstPaintComesBehindItAndOnce)
{
    for (const bool painted : {true, false}) {
        QWidget window;
        int count = 0;
        new CFirstPaint(window, [&count] { ++count; });
        for (int i = 0; painted && i < 2; ++i) {
            QPaintEvent paint((QRect()));
            QApplication::sendEvent(&window, &paint);
            EXPECT_EQ(count, i);
            QCoreApplication::processEvents();
            EXPECT_EQ(count, 1);
        }
        // Without a paint it comes all the same, as nobody may ever look.
        EXPECT_TRUE(QTest::qWaitFor([&count] { return count > 0; }, 60'000));
        EXPECT_EQ(count, 1);
    }
}

} // namespace
