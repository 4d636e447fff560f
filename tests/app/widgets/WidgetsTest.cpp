#include "app/job/Message.h"
#include "app/widgets/CDropHint.h"
#include "app/widgets/CElidedLabel.h"
#include "app/widgets/CMessageLine.h"
#include "app/widgets/SymbolicIcon.h"
#include "app/window/CFirstPaint.h"

#include <QApplication>
#include <QLabel>
#include <QtTest>
#include <gtest/gtest.h>

using namespace thisapp;

namespace {

TEST(WidgetsTest, IconsHaveTheColourOfTheirState)
{
    const QImage red = symbolicPixmap("encrypt", 32, Qt::red, 1).toImage();
    int opaque = 0;
    for (int y = 0; y < red.height(); ++y)
        for (int x = 0; x < red.width(); ++x)
            if (const QColor pixel = red.pixelColor(x, y); pixel.alpha() == 255) {
                ++opaque;
                EXPECT_EQ(pixel, QColor(Qt::red));
            }
    EXPECT_TRUE(opaque > 0 && opaque < red.width() * red.height());
    const QIcon icon = symbolicIcon("encrypt");
    EXPECT_NE(icon.pixmap(32, QIcon::Disabled).toImage(), icon.pixmap(32, QIcon::Normal).toImage());
}

TEST(WidgetsTest, AMessageIsNoMarkupAndReadableInEveryTheme)
{
    CMessageLine line;
    line.setMessage({MessageKind::Error, [] { return QString("<b>x</b>"); }});
    const auto label = [&line] {
        for (QLabel* found : line.findChildren<QLabel*>())
            if (found->text().contains("<b>"))
                return found;
        return static_cast<QLabel*>(nullptr);
    }();
    ASSERT_NE(label, nullptr);
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
        int count = 0;
        for (const QLabel* label : hint.findChildren<QLabel*>())
            count += label->isVisible();
        return count;
    };
    EXPECT_EQ(shown(8), 3);
    EXPECT_EQ(shown(5), 2);
    EXPECT_EQ(shown(2), 1);
    const QImage idle = hint.grab().toImage();
    hint.setHighlighted(true);
    EXPECT_NE(hint.grab().toImage(), idle);
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
