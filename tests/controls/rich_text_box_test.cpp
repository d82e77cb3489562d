// The box with a text in several styles.
#include "controls/rich_text_box.h"

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <limits>

#include "controls/font_size.h"
#include "controls/picture_object.h"
#include "controls/rich_text_document.h"
#include "controls/text_colours.h"
#include "rtf/rich_text_marks.h"
#include "rtf/rtf_reader.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/fine_lines.h"
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
    QTextCursor backwards = box_.textCursor();
    backwards.setPosition(12);
    backwards.setPosition(5, QTextCursor::KeepAnchor);
    box_.setTextCursor(backwards);
    box_.setSelLength(4);
    EXPECT_EQ(selected(), QStringLiteral("Body"));
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
    EXPECT_EQ(box_.SelFontSize(), pointsOf(box_.font()));
    box_.setFont(QFont(QStringLiteral("DejaVu Sans"), 23));
    EXPECT_EQ(box_.SelFontSize(), 23);
    EXPECT_EQ(box_.document()->defaultFont().pointSizeF(), 23);
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
    EXPECT_FALSE(box_.isUndoRedoEnabled());
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

namespace {

const QString kDocument = QStringLiteral(
    R"({\rtf1{\fonttbl{\f0 Arial;}}\pard\qc\b\f0\fs28 Head{\par}\pard\b0\fs20 \tab Body{\par}\qc})");

class RichTextFiles : public testing::Test {
  protected:
    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    QByteArray bytesOf(const char* name) const { return fileBytes(path(name)); }

    // A picture of an inch by a quarter of one.
    QString picture() const {
        QImage picture(300, 150, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.setDotsPerMeterX(11811);
        picture.setDotsPerMeterY(23622);
        picture.save(path("picture.bmp"));
        return path("picture.bmp");
    }

    QTemporaryDir folder_;
    RichTextBox box_;
};

}  // namespace

TEST_F(RichTextFiles, ShowADocument) {
    box_.setTextRTF(kDocument);
    EXPECT_EQ(marksOf(richTextOf(*box_.document())),
              QStringList({QStringLiteral("centre:<b Arial 14>Head"),
                           QStringLiteral("<Arial 10>\tBody"), QStringLiteral("centre:")}));
    EXPECT_EQ(box_.Text(), u"Head\r\n\tBody\r\n");
    EXPECT_EQ(box_.SelStart(), 0);
}

TEST_F(RichTextFiles, HaveATabEveryHalfInch) {
    box_.show();
    box_.setTextRTF(QStringLiteral("{\\rtf1\\tab x}"));
    const int start = box_.cursorRect().left();
    box_.setSelStart(1);
    EXPECT_EQ(box_.cursorRect().left(), start + 48);
}

TEST_F(RichTextFiles, ShowATextThatIsNoDocumentAsItStands) {
    box_.setTextRTF(kDocument);
    box_.setTextRTF(QStringLiteral("{plain} \\b"));
    EXPECT_EQ(box_.Text(), u"{plain} \\b");
    EXPECT_FALSE(box_.SelBold());
    box_.setTextRTF({});
    EXPECT_EQ(box_.Text(), u"");
}

TEST_F(RichTextFiles, TakeAPictureWhereTheCaretIs) {
    box_.setTextRTF(kDocument);
    box_.setSelStart(static_cast<int>(kDocument.size()));
    EXPECT_EQ(box_.SelStart(), 11);
    box_.addPicture(picture());
    EXPECT_EQ(box_.Text(), u"Head\r\n\tBody\r\n ");
    EXPECT_EQ(marksOf(richTextOf(*box_.document())).last(), u"centre:[picture 1440x360]");
}

TEST_F(RichTextFiles, TakeNoPictureThatIsNone) {
    EXPECT_EQ(errorOf([this] { box_.addPicture(path("none.bmp")); }), 53);
    makeFile(path("text.bmp"), "no picture");
    EXPECT_EQ(errorOf([this] { box_.addPicture(path("text.bmp")); }), 321);
}

TEST_F(RichTextFiles, HaveTheirPicturesPaintedWithEveryLine) {
    const QAbstractTextDocumentLayout& layout = *box_.document()->documentLayout();
    EXPECT_TRUE(dynamic_cast<PictureObject*>(layout.handlerForObject(QTextFormat::ImageObject)));
}

TEST_F(RichTextFiles, ShowAPictureInItsSizeOnPaper) {
    box_.resize(400, 300);
    box_.addPicture(picture());
    box_.show();
    const QImage shown = box_.viewport()->grab().toImage();
    int width = 0;
    for (int x = 0; x < shown.width(); ++x)
        width += shown.pixelColor(x, 20) == QColor(Qt::red) ? 1 : 0;
    EXPECT_NEAR(width, 96, 1);
}

TEST_F(RichTextFiles, AreSavedWithFormatsAndPictures) {
    box_.setTextRTF(kDocument);
    box_.setSelStart(100);
    box_.addPicture(picture());
    box_.SaveFile(path("saved.rtf"), TextFileType::Rich);
    const RichText text = readRtf(QString::fromLatin1(bytesOf("saved.rtf")));
    EXPECT_EQ(marksOf(text), marksOf(richTextOf(*box_.document())));
    const auto& saved = std::get<RichPicture>(text.back().runs.front().content);
    EXPECT_EQ(QImage::fromData(saved.file).size(), QSize(300, 150));
}

TEST_F(RichTextFiles, AreSavedAsPlainTextWithoutPictures) {
    box_.setText(QStringLiteral("Zoë\r\nŽ\r\n"));
    box_.setSelStart(100);
    box_.addPicture(picture());
    box_.SaveFile(path("saved.txt"), TextFileType::Plain);
    EXPECT_EQ(bytesOf("saved.txt"), QByteArray("Zo\xEB\r\n\x8E\r\n"));
}

TEST_F(RichTextFiles, CannotBeSavedWhereThereIsNoFolder) {
    EXPECT_EQ(errorOf([this] { box_.SaveFile(path("none/x.rtf"), TextFileType::Rich); }), 75);
}

TEST_F(RichTextFiles, WrapAsOnPaperHoweverWideTheBoxIs) {
    box_.setText(QStringLiteral("word ").repeated(100));
    box_.wrapAsOnPaper(2880);
    for (const int width : {150, 900}) {
        box_.resize(width, 300);
        EXPECT_EQ(box_.document()->textWidth(), 192) << width;
    }
}

TEST_F(RichTextFiles, WrapAsOnPaperWhereThePagesDo) {
    box_.setText(QStringLiteral("Many a word, of more or fewer letters. ").repeated(40));
    box_.show();
    QImage sheet(10, 10, QImage::Format_RGB32);
    QPainter painter(&sheet);
    for (const int width : {4000, 5000, 6000, 7000}) {
        box_.wrapAsOnPaper(width);
        const int lines = box_.document()->begin().layout()->lineCount();
        const double height = box_.document()->begin().layout()->boundingRect().height() * 15;
        EXPECT_EQ(box_.pages(width).paint(painter, QRectF(0, 0, width, height + 1), 0),
                  box_.Text().size());
        EXPECT_LT(box_.pages(width).paint(painter,
                                          QRectF(0, 0, width, height * (lines - 1) / lines + 1), 0),
                  box_.Text().size());
    }
}

TEST_F(RichTextFiles, LoseNoLinesOfAPictureShownSmaller) {
    QTextCursor(box_.document()).insertImage(pictureIn(*box_.document(), fineLines(), {750, 1500}));
    box_.resize(400, 300);
    box_.show();
    const int grey = box_.viewport()->grab().toImage().pixelColor(20, 30).lightness();
    EXPECT_GT(grey, 90);
    EXPECT_LT(grey, 170);
}
