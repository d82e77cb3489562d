// The box with a text in several styles.
#include "controls/rich_text_box.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTextCursor>
#include <limits>

#include "controls/text_colours.h"
#include "support/errors.h"
#include "support/printing.h"
#include "support/widget_driver.h"

namespace {

constexpr Long kBlue = 0xFF0000;
constexpr Long kRed = 255;

const QString kText = QStringLiteral("Head\r\nBody of it\r\n\r\nEnd");

class RichTextBoxTest : public testing::Test {
  protected:
    RichTextBoxTest() {
        box_.setText(kText);
        box_.show();
    }

    void select(int start, int length) {
        box_.setSelStart(start);
        box_.setSelLength(length);
    }

    // The text that is selected, with a line end as one character.
    QString selected() { return box_.textCursor().selectedText(); }

    // Which characters are bold, by a mark for each; line ends are slashes.
    QString boldMarks() {
        QString marks = box_.toPlainText();
        for (int place = 0; place < marks.size(); ++place) {
            select(place, 1);
            if (marks[place] == u'\n')
                marks[place] = u'/';
            else
                marks[place] = box_.SelBold() ? u'x' : u'.';
        }
        return marks;
    }

    QColor paintedColour(int place) {
        QTextCursor cursor(box_.document());
        cursor.setPosition(place + 1);
        return cursor.charFormat().foreground().color();
    }

    RichTextBox box_;
};

}  // namespace

TEST_F(RichTextBoxTest, EndsItsLinesInCrLfAsTheTextDidThatItWasGiven) {
    EXPECT_EQ(box_.Text(), kText);
    EXPECT_EQ(box_.document()->blockCount(), 4);
}

TEST_F(RichTextBoxTest, EndsALineWithinAParagraphInCrLfToo) {
    box_.setText(QStringLiteral("One\u2028Two"));
    EXPECT_EQ(box_.Text(), QStringLiteral("One\r\nTwo"));
}

TEST_F(RichTextBoxTest, ShowsATextAsItStandsAndNoMarkup) {
    const QString text = QStringLiteral("<b>1 < 2</b> & no\u00A0break, \ttab \U0001F600");
    box_.setText(text);
    EXPECT_EQ(box_.Text(), text);
    EXPECT_EQ(box_.toPlainText().left(8), QStringLiteral("<b>1 < 2"));
}

TEST_F(RichTextBoxTest, CountsALineEndAsOneCharacter) {
    select(5, 4);
    EXPECT_EQ(selected(), QStringLiteral("Body"));
    EXPECT_EQ(box_.SelStart(), 5);
    EXPECT_EQ(box_.SelLength(), 4);
    select(17, 3);
    EXPECT_EQ(selected(), QStringLiteral("End"));
}

TEST_F(RichTextBoxTest, SelectsNothingWhenTheStartIsSet) {
    select(0, 4);
    box_.setSelStart(2);
    EXPECT_EQ(box_.SelStart(), 2);
    EXPECT_EQ(box_.SelLength(), 0);
}

TEST_F(RichTextBoxTest, KeepsTheStartWhenTheLengthIsSetAgain) {
    select(5, 4);
    box_.setSelLength(7);
    EXPECT_EQ(selected(), QStringLiteral("Body of"));
}

TEST_F(RichTextBoxTest, TakesWhatIsBeyondTheTextForItsEnd) {
    box_.setSelStart(1000);
    EXPECT_EQ(box_.SelStart(), 20);
    select(17, std::numeric_limits<int>::max());
    EXPECT_EQ(selected(), QStringLiteral("End"));
}

TEST_F(RichTextBoxTest, RefusesANegativeStartAndLength) {
    select(5, 4);
    EXPECT_EQ(errorOf([this] { box_.setSelStart(-1); }), 380);
    EXPECT_EQ(errorOf([this] { box_.setSelLength(-1); }), 380);
    EXPECT_EQ(selected(), QStringLiteral("Body"));
}

TEST_F(RichTextBoxTest, GivesItsStylesToTheSelectedTextAlone) {
    select(0, 4);
    box_.setSelBold(true);
    box_.setSelFontSize(10);
    box_.setSelColor(kRed);
    EXPECT_EQ(boldMarks(), QStringLiteral("xxxx/..........//..."));
    select(0, 4);
    EXPECT_EQ(box_.SelFontSize(), 10);
    EXPECT_EQ(box_.SelColor(), kRed);
    select(4, 2);
    EXPECT_NE(box_.SelFontSize(), 10);
    EXPECT_EQ(box_.SelColor(), 0);
}

TEST_F(RichTextBoxTest, HasALineEndInAStyleOfItsOwn) {
    select(4, 1);
    box_.setSelBold(true);
    box_.setSelColor(kRed);
    EXPECT_EQ(boldMarks(), QStringLiteral("..../..........//..."));
    select(4, 2);
    EXPECT_TRUE(box_.SelBold());
    EXPECT_EQ(box_.SelColor(), kRed);
    select(5, 10);
    box_.setSelBold(true);
    select(15, 1);
    EXPECT_FALSE(box_.SelBold());
}

TEST_F(RichTextBoxTest, TellsTheStyleBeforeTheStartAndAtABeginningOfALineThatBehindIt) {
    select(0, 4);
    box_.setSelFontSize(20);
    select(5, 4);
    box_.setSelBold(true);
    const auto boldAt = [this](int start) {
        box_.setSelStart(start);
        return box_.SelBold();
    };
    EXPECT_FALSE(boldAt(4));
    EXPECT_EQ(box_.SelFontSize(), 20);
    EXPECT_TRUE(boldAt(5));
    EXPECT_TRUE(boldAt(9));
    EXPECT_FALSE(boldAt(10));
}

TEST_F(RichTextBoxTest, TakesAStyleBack) {
    select(5, 7);
    box_.setSelBold(true);
    select(10, 2);
    box_.setSelBold(false);
    EXPECT_EQ(boldMarks(), QStringLiteral("..../xxxxx.....//..."));
}

TEST_F(RichTextBoxTest, KeepsTheOtherStylesWhenOneIsSet) {
    select(0, 4);
    box_.setSelColor(kBlue);
    box_.setSelFontSize(8);
    box_.setSelBold(true);
    EXPECT_EQ(box_.SelColor(), kBlue);
    EXPECT_EQ(box_.SelFontSize(), 8);
}

TEST_F(RichTextBoxTest, HasItsOwnFontSizeWhereNoneIsSet) {
    select(0, 1);
    EXPECT_EQ(box_.SelFontSize(), box_.font().pointSizeF());
}

TEST_F(RichTextBoxTest, ShowsATextInItsOwnStyleWhateverStoodThereBefore) {
    select(0, 20);
    box_.setSelBold(true);
    box_.setSelColor(kBlue);
    box_.setText(QStringLiteral("Plain"));
    EXPECT_EQ(boldMarks(), QStringLiteral("....."));
    EXPECT_EQ(box_.SelColor(), 0);
    EXPECT_EQ(box_.textCursor().charFormat().foreground().style(), Qt::NoBrush);
}

// What the user has selected backwards has the cursor before it.
TEST_F(RichTextBoxTest, ShowsATextInItsOwnStyleWhateverIsSelected) {
    select(0, 3);
    box_.setSelBold(true);
    QTextCursor cursor = box_.textCursor();
    cursor.setPosition(4);
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    box_.setTextCursor(cursor);
    box_.setText(QStringLiteral("Plain"));
    EXPECT_EQ(boldMarks(), QStringLiteral("....."));
}

TEST_F(RichTextBoxTest, PaintsAColourInAShadeForThePaletteAndRemembersItAsItWasSet) {
    select(0, 4);
    box_.setSelColor(kBlue);
    select(5, 4);
    box_.setSelColor(0);
    EXPECT_EQ(paintedColour(0), textColour(kBlue, box_.palette()));
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    box_.setPalette(dark);
    EXPECT_EQ(paintedColour(0), textColour(kBlue, dark));
    EXPECT_NE(paintedColour(0), QColor(Qt::blue));
    EXPECT_EQ(paintedColour(5), QColor(Qt::white));
    select(0, 4);
    EXPECT_EQ(box_.SelColor(), kBlue);
}

TEST_F(RichTextBoxTest, KeepsTheSelectionWhenThePaletteChanges) {
    select(0, 4);
    box_.setSelColor(kBlue);
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    box_.setPalette(dark);
    EXPECT_EQ(selected(), QStringLiteral("Head"));
}

TEST_F(RichTextBoxTest, IsReadAndNotWritten) {
    type(box_, QStringLiteral("x"));
    pressKey(box_, Qt::Key_Delete);
    EXPECT_EQ(box_.Text(), kText);
    EXPECT_FALSE(box_.testAttribute(Qt::WA_InputMethodEnabled));
    EXPECT_TRUE(box_.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(box_.textInteractionFlags() & Qt::TextSelectableByKeyboard);
}

TEST_F(RichTextBoxTest, LetsTabGoOnToTheNextControl) {
    QWidget window;
    auto* box = new RichTextBox(&window);
    auto* next = new QPushButton(&window);
    window.show();
    box->setFocus();
    pressKey(*box, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), next);
}
