// The pictures of a document.
#include "controls/picture_object.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

#include "controls/rich_text_document.h"
#include "support/fine_lines.h"

namespace {

class PictureObjectTest : public testing::Test {
  protected:
    PictureObjectTest() {
        PictureObject::paintPicturesOf(document_);
        document_.setDocumentMargin(0);
        QTextCursor(&document_).insertImage(pictureIn(document_, fineLines(), {750, 1500}));
    }

    // The document at a scale of the screen's.
    QImage painted(double scale) {
        QImage sheet(100, 200, QImage::Format_RGB32);
        sheet.fill(Qt::red);
        QPainter painter(&sheet);
        painter.scale(scale, scale);
        document_.drawContents(&painter);
        return sheet;
    }

    QTextDocument document_;
};

}  // namespace

TEST_F(PictureObjectTest, ArePaintedInTheSizeOfTheirPlace) {
    const QImage sheet = painted(1);
    EXPECT_NE(sheet.pixelColor(49, 99), QColor(Qt::red));
    EXPECT_EQ(sheet.pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(document_.size().height(), 100 + document_.documentMargin() * 2);
}

TEST_F(PictureObjectTest, LoseNoLinesWhereTheyArePaintedSmaller) {
    for (const double scale : {1.0, 0.5, 1.0}) {
        const int grey = painted(scale).pixelColor(10, 20).lightness();
        EXPECT_GT(grey, 90) << scale;
        EXPECT_LT(grey, 170) << scale;
    }
}

TEST_F(PictureObjectTest, AreAsSharpAsEverAfterTheyWerePaintedSmaller) {
    QImage halves(200, 200, QImage::Format_RGB32);
    halves.fill(Qt::white);
    QPainter(&halves).fillRect(0, 0, 90, 200, Qt::black);
    document_.clear();
    QTextCursor(&document_).insertImage(pictureIn(document_, halves, {750, 1500}));
    painted(0.2);
    EXPECT_EQ(painted(1).pixelColor(20, 50), QColor(Qt::black));
    EXPECT_EQ(painted(1).pixelColor(24, 50), QColor(Qt::white));
}

TEST_F(PictureObjectTest, AreNotTakenForEachOther) {
    QImage white(200, 200, QImage::Format_RGB32);
    white.fill(Qt::white);
    QTextCursor cursor(&document_);
    cursor.movePosition(QTextCursor::End);
    cursor.insertImage(pictureIn(document_, white, {750, 1500}));
    EXPECT_EQ(painted(1).pixelColor(75, 50), QColor(Qt::white));
}
