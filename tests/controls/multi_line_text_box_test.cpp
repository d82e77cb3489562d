// The box with a text of several lines.
#include "controls/multi_line_text_box.h"

#include <gtest/gtest.h>

#include <QPushButton>

#include "support/printing.h"
#include "support/widget_driver.h"

namespace {

class MultiLineTextBoxTest : public testing::Test {
  protected:
    MultiLineTextBoxTest() { box_.show(); }

    MultiLineTextBox box_;
};

}  // namespace

TEST_F(MultiLineTextBoxTest, EndsItsLinesInCrLfAsTheTextDidThatItWasGiven) {
    const QString text = QStringLiteral("first\r\n\r\n     third\r\n");
    box_.setText(text);
    EXPECT_EQ(box_.Text(), text);
    EXPECT_EQ(box_.toPlainText(), QStringLiteral("first\n\n     third\n"));
    EXPECT_EQ(box_.blockCount(), 4);
}

TEST_F(MultiLineTextBoxTest, EndsTheLinesThatTheUserTypesInCrLf) {
    type(box_, QStringLiteral("one"));
    pressKey(box_, Qt::Key_Return);
    type(box_, QStringLiteral("two"));
    EXPECT_EQ(box_.Text(), QStringLiteral("one\r\ntwo"));
    pressKey(box_, Qt::Key_Enter);
    EXPECT_EQ(box_.Text(), QStringLiteral("one\r\ntwo\r\n"));
}

TEST_F(MultiLineTextBoxTest, TakesEveryKindOfLineEndForOne) {
    box_.setText(QStringLiteral("a\nb\rc") + QChar(QChar::LineSeparator) + QStringLiteral("d"));
    EXPECT_EQ(box_.Text(), QStringLiteral("a\r\nb\r\nc\r\nd"));
}

TEST_F(MultiLineTextBoxTest, KeepsEveryOtherCharacter) {
    const QString text = QStringLiteral("no\u00A0break, \ttab, Zo\u00EB, \U0001F600");
    box_.setText(text);
    EXPECT_EQ(box_.Text(), text);
}

TEST_F(MultiLineTextBoxTest, LetsTabGoOnToTheNextControl) {
    QWidget window;
    auto* box = new MultiLineTextBox(&window);
    auto* next = new QPushButton(&window);
    window.show();
    box->setFocus();
    pressKey(*box, Qt::Key_Tab);
    EXPECT_EQ(box->Text(), QString());
    EXPECT_EQ(window.focusWidget(), next);
}

TEST_F(MultiLineTextBoxTest, TakesNoTextWhileItIsLockedAndLooksLikeAButton) {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::yellow);
    palette.setColor(QPalette::Button, Qt::cyan);
    box_.setPalette(palette);
    const auto paintedColour = [this] {
        return box_.grab().toImage().pixelColor(box_.viewport()->geometry().center());
    };
    box_.setLocked(true);
    type(box_, QStringLiteral("a"));
    EXPECT_EQ(box_.Text(), QString());
    EXPECT_EQ(paintedColour(), QColor(Qt::cyan));
    box_.setLocked(false);
    type(box_, QStringLiteral("a"));
    EXPECT_EQ(box_.Text(), QStringLiteral("a"));
    EXPECT_EQ(paintedColour(), QColor(Qt::yellow));
}

TEST_F(MultiLineTextBoxTest, GrowsAtItsEndWhereverTheUserReads) {
    box_.append(QStringLiteral("one\r\n"));
    box_.moveCursor(QTextCursor::Start);
    box_.append(QStringLiteral("two\r\n"));
    EXPECT_EQ(box_.Text(), QStringLiteral("one\r\ntwo\r\n"));
    EXPECT_EQ(box_.textCursor().position(), 0);
}
