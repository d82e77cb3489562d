// Rich texts in documents, and read from them again.
#include "controls/rich_text_document.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QPalette>
#include <QTextBlock>
#include <QTextDocument>

#include "controls/font_size.h"
#include "controls/text_colours.h"
#include "rtf/every_format.h"
#include "rtf/rich_text_marks.h"

namespace {

constexpr Long kBlue = 0xFF0000;

QByteArray pngOf(const QImage& picture) {
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return file;
}

QImage pictureOf(QSize size) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    return picture;
}

class RichTextDocument : public testing::Test {
  protected:
    RichText shownAgain(const RichText& text) {
        showRichText(document_, text, QPalette());
        return richTextOf(document_);
    }

    QTextDocument document_;
};

}  // namespace

TEST_F(RichTextDocument, ShowsEveryFormat) {
    const RichFormat all = everyFormat(QStringLiteral("DejaVu Sans"));
    const RichFormat plain{.font = QStringLiteral("DejaVu Serif")};
    const RichText text{
        {.format = {.alignment = RichAlignment::Centre,
                    .leftIndent = 15,
                    .rightIndent = 30,
                    .firstIndent = -45,
                    .spaceBefore = 123,
                    .spaceAfter = 75,
                    .tabs = {90, 1500}},
         .runs = {{QStringLiteral("Žofie\tx\u2028y"), all}, {QStringLiteral(" 😀"), plain}},
         .endFormat = plain},
        {.format = {.alignment = RichAlignment::Right}, .endFormat = all},
        {.format = {.alignment = RichAlignment::Justified}, .endFormat = plain},
        {.endFormat = all}};
    const RichText again = shownAgain(text);
    EXPECT_EQ(marksOf(again), marksOf(text));
    EXPECT_TRUE(again == text);
}

TEST_F(RichTextDocument, ShowsATextInPlaceOfTheLast) {
    shownAgain({{.runs = {{QStringLiteral("one"), {}}}}, {}});
    EXPECT_EQ(shownAgain(RichText(1)).size(), 1U);
    EXPECT_EQ(document_.toPlainText(), QString());
}

TEST_F(RichTextDocument, IsInTheDocumentsFontWhereNoOtherIsAskedFor) {
    const RichText again = shownAgain({{.runs = {{QStringLiteral("one"), {}}}}});
    EXPECT_EQ(again.front().runs.front().format.font, document_.defaultFont().family());
    QFont large = document_.defaultFont();
    large.setPixelSize(40);
    document_.setDefaultFont(large);
    document_.setPlainText(QStringLiteral("one"));
    EXPECT_EQ(richTextOf(document_).front().runs.front().format.points, pointsOf(large));
}

TEST_F(RichTextDocument, ShowsPicturesInTheSizeTheyAreToHaveOrTheirOwn) {
    const QByteArray file = pngOf(pictureOf({20, 10}));
    const QByteArray other = pngOf(pictureOf({30, 10}));
    const RichText again = shownAgain({{.runs = {{RichPicture{file, 3000, 1500}, {}},
                                                 {RichPicture{other, 0, 0}, {}},
                                                 {QStringLiteral("x"), {}}}}});
    EXPECT_EQ(marksOf(again.front().runs[0]), u"[picture 3000x1500]");
    EXPECT_EQ(marksOf(again.front().runs[1]), u"[picture 450x150]");
    const QImage shown =
        QImage::fromData(std::get<RichPicture>(again.front().runs[0].content).file);
    EXPECT_EQ(shown.size(), QSize(20, 10));
    EXPECT_EQ(shown.pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(RichTextDocument, LeavesOutAPictureThatCannotBeRead) {
    const RichText again = shownAgain({{.runs = {{RichPicture{"\x89PNG and no more", 300, 300}, {}},
                                                 {QStringLiteral("x"), {}}}}});
    EXPECT_EQ(document_.toPlainText(), u"x");
}

TEST_F(RichTextDocument, LeavesOutPicturesThatTogetherAreTooLarge) {
    QImage large(8000, 4000, QImage::Format_Mono);
    large.fill(0);
    const RichRun picture{RichPicture{pngOf(large), 300, 300}, {}};
    shownAgain({{.runs = {picture, picture, picture}}});
    EXPECT_EQ(document_.characterCount(), 1 + 2);
}

TEST_F(RichTextDocument, PaintsItsColoursForAPaletteAndThenForAnother) {
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    showRichText(document_,
                 {{.runs = {{QStringLiteral("ab"), {.colour = kBlue}}, {QStringLiteral("c"), {}}}}},
                 QPalette(Qt::white));
    const auto colourAt = [this](int place) {
        QTextCursor cursor(&document_);
        cursor.setPosition(place + 1);
        return cursor.charFormat().foreground().color();
    };
    EXPECT_EQ(colourAt(0), textColour(kBlue, QPalette(Qt::white)));
    recolour(document_, dark);
    EXPECT_EQ(colourAt(0), textColour(kBlue, dark));
    EXPECT_EQ(colourAt(1), textColour(kBlue, dark));
    EXPECT_EQ(document_.begin().textFormats()[1].format.foreground().style(), Qt::NoBrush);
    EXPECT_EQ(richTextOf(document_).front().runs.front().format.colour, kBlue);
}

// The lines are laid out with every change.
TEST_F(RichTextDocument, PaintsAllItsColoursForAnotherPaletteInOneChange) {
    const RichRun blue{QStringLiteral("a"), {.colour = kBlue}};
    shownAgain({{.runs = {blue, {QStringLiteral("b"), {}}, blue}}, {.runs = {blue}}});
    int changes = 0;
    QObject::connect(&document_, &QTextDocument::contentsChanged, [&changes] { ++changes; });
    recolour(document_, QPalette(Qt::black));
    EXPECT_EQ(changes, 1);
}
