// A document laid out for paper.
#include "controls/rich_text_pages.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QTextCursor>

#include "controls/rich_text_box.h"
#include "controls/rich_text_document.h"
#include "controls/twips.h"
#include "support/dark_desktop.h"
#include "support/fine_lines.h"
#include "support/printing.h"

namespace {

constexpr double kInch = 1440;  // twips

class RichTextPagesTest : public testing::Test {
  protected:
    // A sheet of six inches by five, on which a pixel is fifteen twips.
    QImage sheet_{576, 480, QImage::Format_RGB32};

    Long paint(const RichTextPages& pages, const QRectF& place, Long from = 0) {
        sheet_.fill(Qt::white);
        QPainter painter(&sheet_);
        painter.scale(1.0 / kTwipsPerPixel, 1.0 / kTwipsPerPixel);
        return pages.paint(painter, place, from);
    }

    // What is not white, in pixels.
    QRect inked() const {
        QRect all;
        for (int y = 0; y < sheet_.height(); ++y) {
            for (int x = 0; x < sheet_.width(); ++x) {
                if (sheet_.pixelColor(x, y) != QColor(Qt::white))
                    all |= QRect(x, y, 1, 1);
            }
        }
        return all;
    }

    static QString lines(int count) {
        QStringList all;
        for (int line = 1; line <= count; ++line)
            all += QStringLiteral("Line %1").arg(line);
        return all.join(QStringLiteral("\r\n"));
    }

    RichTextBox box_;
};

const QRectF kPlace(kInch, kInch, 4 * kInch, 3 * kInch);

}  // namespace

TEST_F(RichTextPagesTest, PaintTheTextIntoItsPlace) {
    box_.setText(QStringLiteral("M"));
    EXPECT_EQ(paint(box_.pages(4 * kInch), kPlace), 1);
    EXPECT_TRUE(QRect(96, 96, 40, 40).contains(inked())) << inked().left() << " " << inked().top();
    EXPECT_FALSE(inked().isEmpty());
}

TEST_F(RichTextPagesTest, CountTheCharactersAsTheTextHasThem) {
    for (const QString& text :
         {QString(), QStringLiteral("One"), QStringLiteral("One\r\nTwo\r\n"),
          QStringLiteral("One\u2028Two\u2028\u2028Three"), QStringLiteral("One\u2028"), lines(3)}) {
        box_.setText(text);
        EXPECT_EQ(paint(box_.pages(4 * kInch), kPlace), box_.Text().size()) << qPrintable(text);
    }
}

TEST_F(RichTextPagesTest, PaintAsManyWholeLinesAsFit) {
    box_.setText(lines(100));
    const RichTextPages pages = box_.pages(4 * kInch);
    const Long next = paint(pages, kPlace);
    EXPECT_TRUE(box_.Text().mid(next).startsWith(u"Line ")) << next;
    EXPECT_GT(inked().bottom(), 96 + 288 - 40);
    EXPECT_LT(inked().bottom(), 96 + 288);
}

TEST_F(RichTextPagesTest, GoOnWhereTheLastPageEnded) {
    box_.setText(lines(100));
    const RichTextPages pages = box_.pages(4 * kInch);
    int sheets = 0;
    for (Long next = 0; next < box_.Text().size(); ++sheets) {
        const Long before = next;
        next = paint(pages, kPlace, next);
        ASSERT_GT(next, before);
        EXPECT_NEAR(inked().top(), 96 + 3, 4) << sheets;
    }
    EXPECT_GE(sheets, 4);
}

TEST_F(RichTextPagesTest, WrapTheLinesAtTheirWidth) {
    box_.setText(QStringLiteral("word ").repeated(100));
    paint(box_.pages(2 * kInch), kPlace);
    EXPECT_GT(inked().right(), 96 + 150);
    EXPECT_LT(inked().right(), 96 + 192);
}

TEST_F(RichTextPagesTest, WrapTheLinesAlikeAtEverySize) {
    box_.setText(QStringLiteral("Many a word, of more or fewer letters. ").repeated(40));
    const RichTextPages pages = box_.pages(4 * kInch);
    const Long small = paint(pages, kPlace);
    QImage large(4 * sheet_.size(), QImage::Format_RGB32);
    QPainter painter(&large);
    painter.scale(4.0 / kTwipsPerPixel, 4.0 / kTwipsPerPixel);
    EXPECT_EQ(pages.paint(painter, kPlace, 0), small);
}

TEST_F(RichTextPagesTest, PaintOneLineEvenWhereNoneFits) {
    box_.setText(lines(3));
    const RichTextPages pages = box_.pages(4 * kInch);
    EXPECT_EQ(paint(pages, {0, 0, 4 * kInch, 1}), 8);
    EXPECT_EQ(paint(pages, {0, 0, 4 * kInch, 1}, 8), 16);
    EXPECT_EQ(paint(pages, {0, 0, 4 * kInch, 1}, 16), 22);
    EXPECT_EQ(paint(pages, {0, 0, 4 * kInch, 1}, 22), 22);
}

TEST_F(RichTextPagesTest, LoseNoLinesOfAPicturePaintedSmaller) {
    QTextCursor(box_.document()).insertImage(pictureIn(*box_.document(), fineLines(), {750, 1500}));
    paint(box_.pages(4 * kInch), kPlace);
    const int grey = sheet_.pixelColor(96 + 10, 96 + 20).lightness();
    EXPECT_GT(grey, 90);
    EXPECT_LT(grey, 170);
}

TEST_F(RichTextPagesTest, HaveTheColoursOfPaperWhateverTheScreenHas) {
    const DarkDesktop dark;
    box_.setPalette(QApplication::palette());
    box_.setTextRTF(QStringLiteral(R"({\rtf1{\colortbl;\red0\green0\blue255;}\fs96 M\cf1 M})"));
    paint(box_.pages(4 * kInch), kPlace);
    QSet<QRgb> colours;
    for (int y = 0; y < sheet_.height(); ++y) {
        for (int x = 0; x < sheet_.width(); ++x)
            colours.insert(sheet_.pixel(x, y));
    }
    EXPECT_TRUE(colours.contains(QColor(Qt::black).rgb()));
    EXPECT_TRUE(colours.contains(QColor(Qt::blue).rgb()));
}
