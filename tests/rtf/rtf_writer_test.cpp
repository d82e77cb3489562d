// The writing of rich text documents.
#include "rtf/rtf_writer.h"

#include <gtest/gtest.h>

#include "rtf/every_format.h"
#include "rtf/rich_text_marks.h"
#include "rtf/rtf_reader.h"
#include "support/properties.h"

namespace {

RichText ofOne(const QString& text, const RichFormat& format = {}) {
    return {{.runs = {{text, format}}, .endFormat = format}};
}

RichText readAgain(const RichText& text) {
    return readRtf(QString::fromLatin1(writeRtf(text)));
}

void expectTheSame(const RichText& text) {
    const RichText again = readAgain(text);
    EXPECT_EQ(marksOf(again), marksOf(text));
    EXPECT_TRUE(again == text) << writeRtf(text).toStdString();
}

const QByteArray kPng("\x89PNG and more");

}  // namespace

TEST(RtfWriter, WritesADocumentInAscii) {
    EXPECT_STREQ(writeRtf(ofOne(QStringLiteral("Adaé {\\}"), {.font = QStringLiteral("Arial"),
                                                              .points = 10,
                                                              .isBold = true,
                                                              .colour = 0xFF0080}))
                     .constData(),
                 "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\fnil Arial;}}\n"
                 "{\\colortbl;\\red128\\green0\\blue255;}\n"
                 "\\pard\\ql \\plain\\f0\\fs20\\cf1\\b Ada\\u233\\'3f \\{\\\\\\}}\n");
}

TEST(RtfWriter, WritesANumberWithinSixteenBitsForWhatIsNotInAscii) {
    EXPECT_TRUE(writeRtf(ofOne(QChar(0xFFFD))).contains("\\u-3\\'3f"));
    EXPECT_TRUE(writeRtf(ofOne(QChar(0x0001))).contains("\\u1\\'3f"));
}

TEST(RtfWriter, WritesWhatIsReadAgain) {
    expectTheSame(RichText(1));
    expectTheSame(ofOne(QStringLiteral(" two  blanks ")));
    expectTheSame(ofOne(QStringLiteral("Žofie Чехова 東京 😀\u2028\u00A0\u00AD\tx7")));
}

TEST(RtfWriter, WritesEveryFormat) {
    const RichFormat all = everyFormat(QStringLiteral("Ünder Font"));
    RichText text = ofOne(QStringLiteral("a"), all);
    text.front().runs.push_back({QStringLiteral("b"), {}});
    text.front().runs.push_back({QStringLiteral("c"), {.colour = 0}});
    text.push_back({.format = {.alignment = RichAlignment::Justified,
                               .leftIndent = 1,
                               .rightIndent = 2,
                               .firstIndent = -3,
                               .spaceBefore = 4,
                               .spaceAfter = 5,
                               .tabs = {6, 700}},
                    .runs = {},
                    .endFormat = {.isItalic = true}});
    text.push_back({.format = {.alignment = RichAlignment::Right}});
    text.push_back({.format = {.alignment = RichAlignment::Centre}});
    expectTheSame(text);
}

TEST(RtfWriter, WritesAFormatWhereItChangesAlone) {
    RichText text = ofOne(QStringLiteral("a"), {.isBold = true});
    text.push_back(text.front());
    EXPECT_EQ(writeRtf(text).count("\\plain"), 1);
}

TEST(RtfWriter, WritesPictures) {
    for (const QByteArray& file :
         {kPng, QByteArray("\xFF\xD8 jpeg"), QByteArray("BM") + QByteArray(12, '\0')}) {
        const QByteArray document = writeRtf({{.runs = {{RichPicture{file, 300, 150}, {}}}}});
        EXPECT_TRUE(document.contains("\\picwgoal300\\pichgoal150\n")) << document.toStdString();
    }
    expectTheSame({{.runs = {{RichPicture{kPng, 300, 150}, {}}, {QStringLiteral("x"), {}}}}});
    expectTheSame({{.runs = {{RichPicture{QByteArray("\xFF\xD8 jpeg"), 0, 0}, {}}}}});
    QByteArray bitmap(54, '\0');
    bitmap.replace(0, 6, QByteArray("BM\x36\0\0\0", 6));
    bitmap[10] = 54;
    bitmap[14] = 40;
    bitmap[28] = 24;
    expectTheSame({{.runs = {{RichPicture{bitmap, 10, 10}, {}}}}});
}

TEST(RtfWriter, LeavesOutAPictureThatNobodyCouldRead) {
    EXPECT_EQ(writeRtf({{.runs = {{RichPicture{"GIF", 1, 1}, {}}, {QStringLiteral("x"), {}}}}}),
              writeRtf(ofOne(QStringLiteral("x"))));
}

#ifdef RC_GTEST_PROP

namespace {

RichFormat anyFormat() {
    return {.font = *rc::gen::element(QString(), QStringLiteral("Arial"), QStringLiteral("Žofie")),
            .points = *rc::gen::inRange(1, 100) / 2.0,
            .isBold = *rc::gen::arbitrary<bool>(),
            .isItalic = *rc::gen::arbitrary<bool>(),
            .isUnderlined = *rc::gen::arbitrary<bool>(),
            .isStruckOut = *rc::gen::arbitrary<bool>(),
            .colour = *rc::gen::element<std::optional<Long>>(std::nullopt, 0, 0xFFFFFF, 0x123456)};
}

// Characters that stand for themselves.
QString anyText() {
    const auto text = *rc::gen::nonEmpty(rc::gen::container<std::u16string>(rc::gen::oneOf(
        rc::gen::inRange<char16_t>(0x20, 0x7F), rc::gen::inRange<char16_t>(0xA0, 0x2027),
        rc::gen::element<char16_t>(u'\\', u'{', u'}', u'\t', 0x2028))));
    return QString::fromStdU16String(text);
}

RichParagraph anyParagraph() {
    RichParagraph paragraph{
        .format = {.alignment = static_cast<RichAlignment>(*rc::gen::inRange(0, 4)),
                   .leftIndent = *rc::gen::inRange(-2000, 2000),
                   .firstIndent = *rc::gen::inRange(-2000, 2000)},
        .endFormat = anyFormat()};
    for (int run = *rc::gen::inRange(0, 5); run > 0; --run) {
        RichRun next{anyText(), anyFormat()};
        if (paragraph.runs.empty() || paragraph.runs.back().format != next.format)
            paragraph.runs.push_back(next);
    }
    return paragraph;
}

}  // namespace

RC_GTEST_PROP(RtfWriterProperties, WritesWhatIsReadAgain, ()) {
    RichText text;
    for (int paragraph = *rc::gen::inRange(1, 6); paragraph > 0; --paragraph)
        text.push_back(anyParagraph());
    RC_ASSERT(readAgain(text) == text);
}

#endif
