// What paper is like.
#include "controls/paper.h"

#include <gtest/gtest.h>

#include <QPaintDevice>

#include "support/dark_desktop.h"

TEST(Paper, IsWhiteAndWrittenOnInBlackWhateverTheDesktopIs) {
    const DarkDesktop dark;
    EXPECT_EQ(paperPalette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(paperPalette().color(QPalette::Text), QColor(Qt::black));
}

TEST(Paper, HasNinetySixPixelsToTheInch) {
    EXPECT_EQ(paperMeasure().logicalDpiX(), 96);
    EXPECT_EQ(paperMeasure().logicalDpiY(), 96);
    EXPECT_EQ(paperPixels(1440), 96);
    EXPECT_EQ(paperPixels(1454.9), 96);
}
