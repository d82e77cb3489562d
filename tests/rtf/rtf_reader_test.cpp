// The reading of rich text documents.
#include "rtf/rtf_reader.h"

#include <gtest/gtest.h>

#include "rtf/rich_text_marks.h"

namespace {

// What the body of a document shows.
QStringList shown(const QString& body) {
    return marksOf(readRtf(QStringLiteral("{\\rtf1\\ansi") + body + u'}'));
}

QStringList shown(const char* body) {
    return shown(QString::fromUtf8(body));
}

QStringList list(std::initializer_list<const char*> texts) {
    QStringList all;
    for (const char* text : texts)
        all += QString::fromUtf8(text);
    return all;
}

RichParagraphFormat formatOfFirst(const char* body) {
    return readRtf(QStringLiteral("{\\rtf1") + QLatin1String(body) + u'}').front().format;
}

}  // namespace

TEST(RtfReader, KnowsADocumentByItsBeginning) {
    EXPECT_TRUE(isRtf(u"{\\rtf1 x}"));
    EXPECT_FALSE(isRtf(u""));
    EXPECT_FALSE(isRtf(u"{Plain}"));
    EXPECT_FALSE(isRtf(u"Plain {\\rtf1 x}"));
}

TEST(RtfReader, ReadsATextInThePlainFormat) {
    EXPECT_EQ(shown(" Anna Smith"), list({"Anna Smith"}));
    EXPECT_EQ(shown(""), list({""}));
}

TEST(RtfReader, EndsAParagraphWithParInAGroupOfItsOwnToo) {
    EXPECT_EQ(shown(" a{\\par}b\\par c"), list({"a", "b", "c"}));
    EXPECT_EQ(shown("\\b a{\\par}b"), list({"<b>a", "<b>b"}));
    EXPECT_EQ(shown(" a{\\par}"), list({"a", ""}));
}

TEST(RtfReader, LeavesLineEndsAsTheyStandOut) {
    EXPECT_EQ(shown(" one\r\ntwo"), list({"onetwo"}));
    EXPECT_EQ(shown(" one\\\ntwo\\\r\nthree"), list({"one", "two", "three"}));
}

TEST(RtfReader, TurnsFormatsOnAndOff) {
    EXPECT_EQ(shown("\\b a\\b0 b\\i c\\i0\\ul d\\ulnone\\strike e\\strike0\\b1 f"),
              list({"<b>ab<i>c<u>d<s>e<b>f"}));
    EXPECT_EQ(shown("\\b\\i\\fs28 a\\plain b"), list({"<b i 14>ab"}));
}

TEST(RtfReader, DrawsOneLineUnderOrThroughATextWhateverKindOfLineItAsksFor) {
    for (const char* kind : {"ul", "uld", "uldash", "uldb", "ulth", "ulw", "ulwave"})
        EXPECT_EQ(shown(u'\\' + QLatin1String(kind) + QStringLiteral(" a\\ulnone b")),
                  list({"<u>ab"}))
            << kind;
    EXPECT_EQ(shown("\\ulc2\\striked1 a\\striked0 b"), list({"<s>ab"}));
}

TEST(RtfReader, LeavesHiddenTextsOut) {
    EXPECT_EQ(shown(" a{\\v hidden\\tab}b\\v c\\v0 d\\v e\\plain f"), list({"abdf"}));
}

TEST(RtfReader, PutsTheFormatBackAtTheEndOfAGroup) {
    EXPECT_EQ(shown(" a{\\b\\i b}c"), list({"a<b i>bc"}));
    EXPECT_EQ(shown("{\\qc x\\par}y"), list({"centre:x", "y"}));
}

TEST(RtfReader, TakesHalfPointsForSizesWithinLimits) {
    EXPECT_EQ(shown("\\fs21 a\\fs24 b\\fs10 c\\fs b"), list({"<10.5>ab<5>cb"}));
    EXPECT_EQ(shown("\\fs0 a"), list({"<0.5>a"}));
    EXPECT_EQ(shown("\\fs-8 a"), list({"<0.5>a"}));
    EXPECT_EQ(shown("\\fs99999 a"), list({"<1638>a"}));
}

TEST(RtfReader, FindsFontsByTheirNumbers) {
    const char* table =
        "\\deff1{\\fonttbl{\\f0\\fswiss\\fprq2\\fcharset0 Arial;}{\\f1\\fnil Times New Roman;}}";
    EXPECT_EQ(shown((QByteArray(table) + "a\\f0 b\\f1 c\\f7 d\\plain e\\f0 f\\f g").constData()),
              list({"<Times New Roman>a<Arial>b<Times New Roman>cd<Times New Roman>e<Arial>f"
                    "<Times New Roman>g"}));
}

TEST(RtfReader, ReadsAFontWithAnotherNameInAGroup) {
    EXPECT_EQ(shown("{\\fonttbl{\\f0\\fnil{\\*\\falt Sans}Arial;}}x"), list({"<Arial>x"}));
    EXPECT_EQ(shown("{\\fonttbl\\f0\\fswiss Arial;\\f1 Courier;}\\f1 x"), list({"<Courier>x"}));
    EXPECT_EQ(shown("{\\fonttbl{\\f0 M\\'fcller;}}x"), list({"<Müller>x"}));
    EXPECT_EQ(shown("{\\fonttbl x{\\f0 Arial;{y}}}a"), list({"<Arial>a"}));
    EXPECT_EQ(shown(" a{\\fonttbl{\\f0 Arial;}}b"), list({"a<Arial>b"}));
    EXPECT_EQ(shown("{\\fonttbl{\\f0 Arial;}}{\\fonttbl{\\f0 Courier;}}x"), list({"<Courier>x"}));
}

TEST(RtfReader, FindsColoursByTheirNumbers) {
    const char* table = "{\\colortbl ;\\red0\\green0\\blue255;\\red255\\green128\\blue1;}";
    EXPECT_EQ(shown((QByteArray(table) + "\\cf1 a\\cf2 b\\cf0 c\\cf9 d\\cf-1 e").constData()),
              list({"<#ff0000>a<#0180ff>bcde"}));
    EXPECT_EQ(shown("{\\colortbl\\red255;;\\green1\\green2;}\\cf1 a\\cf2 b\\cf c"),
              list({"a<#000200>b<#0000ff>c"}));
    EXPECT_EQ(shown("{\\colortbl\\red999\\green-5\\blue0;}\\cf0 a"), list({"<#0000ff>a"}));
}

TEST(RtfReader, ReadsTheFormatsOfParagraphs) {
    EXPECT_EQ(shown("\\qc a\\par\\qr b\\par\\qj c\\par\\ql d\\par\\qc\\pard e"),
              list({"centre:a", "right:b", "justified:c", "d", "e"}));
    EXPECT_EQ(formatOfFirst("\\li720\\ri360\\fi-360\\sb120\\sa240\\tx2880\\tx1440 a"),
              (RichParagraphFormat{.leftIndent = 720,
                                   .rightIndent = 360,
                                   .firstIndent = -360,
                                   .spaceBefore = 120,
                                   .spaceAfter = 240,
                                   .tabs = {1440, 2880}}));
}

TEST(RtfReader, KeepsLengthsWithinTwentyTwoInches) {
    EXPECT_EQ(formatOfFirst("\\li99999\\sb-99999\\tx99999 a"),
              (RichParagraphFormat{.leftIndent = 31680, .spaceBefore = -31680, .tabs = {31680}}));
    EXPECT_EQ(formatOfFirst("\\tx-5 a").tabs, std::vector<Long>{0});
    QByteArray manyTabs;
    for (int tab = 0; tab < 1000; ++tab)
        manyTabs += "\\tx100";
    EXPECT_EQ(formatOfFirst(manyTabs.constData()).tabs.size(), 64U);
}

TEST(RtfReader, GivesTheLastParagraphTheFormatAtTheEnd) {
    EXPECT_EQ(shown(" a{\\par}\\qc"), list({"a", "centre:"}));
    EXPECT_EQ(marksOf(readRtf(u"{\\rtf1 a\\par\\b").back().endFormat), QStringLiteral("<b>"));
}

TEST(RtfReader, ReadsCharactersOfTheCodePage) {
    EXPECT_EQ(shown(" M\\'fcller \\'80 \\'93x\\'94"), list({"Müller € “x”"}));
}

TEST(RtfReader, ReadsCharactersByTheirNumbersAndPassesTheirStandInsOver) {
    EXPECT_EQ(shown(" \\u1063?x\\u8364 ?y"), list({"Чx€y"}));
    EXPECT_EQ(shown("\\uc0\\u1063 x"), list({"Чx"}));
    EXPECT_EQ(shown("\\uc0\\uc\\u1063?x"), list({"Чx"}));
    EXPECT_EQ(shown("\\uc3\\u1063\\'d7ab c"), list({"Ч c"}));
    EXPECT_EQ(shown("\\uc2 a{\\uc1\\u1063?}\\u1063??b"), list({"aЧЧb"}));
    EXPECT_EQ(shown(" \\u1063\\b x"), list({"Ч<b>x"}));
    EXPECT_EQ(shown(" {\\u1063}x\\u1063{y}"), list({"ЧxЧy"}));
    EXPECT_EQ(shown(" \\u-10179?\\u-8704?"), list({"😀"}));
    EXPECT_EQ(shown(" \\u x"), list({"x"}));
}

TEST(RtfReader, TakesCharactersBeyondAsciiAsTheyStand) {
    EXPECT_EQ(shown("\\b Žofie Чехова 東京 😀"), list({"<b>Žofie Чехова 東京 😀"}));
}

TEST(RtfReader, KnowsTheWordsAndSymbolsForCharacters) {
    EXPECT_EQ(shown(" a\\tab b\\line c\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote"
                    "\\rdblquote\\~\\_\\-\\\\\\{\\}"),
              list({"a\tb\u2028c—–•‘’“”\u00A0\u2011\u00AD\\{}"}));
    EXPECT_EQ(shown("\\emspace\\enspace."), list({"\u2003\u2002."}));
}

TEST(RtfReader, MakesAParagraphOfARowOfATable) {
    EXPECT_EQ(shown("\\trowd\\cellx100\\intbl a\\cell b\\cell\\row x"), list({"a\tb\t", "x"}));
    EXPECT_EQ(
        shown(
            "\\intbl a\\nestcell b\\nestcell{\\*\\nesttableprops\\nestrow}{\\nonesttables\\par}x"),
        list({"a\tb\t", "x"}));
}

TEST(RtfReader, MakesAParagraphOfWhatStandsBeforeAPageAColumnOrASection) {
    EXPECT_EQ(shown(" a\\page b\\column c\\sect d"), list({"a", "b", "c", "d"}));
    EXPECT_EQ(shown(" a\\par\\page b\\page\\par c"), list({"a", "b", "", "c"}));
}

TEST(RtfReader, LeavesOutWhatNoTextCanHold) {
    for (const int character : {0x0001, 0x001F, 0xFFFC, 0xFDD0, 0xFDD1, 0x2029})
        EXPECT_EQ(shown(QStringLiteral(" a%1\tz").arg(QChar(character))), list({"a\tz"}))
            << character;
    EXPECT_EQ(shown(" a\\u7?\\u0?\\u-4?z"), list({"az"}));
    EXPECT_TRUE(readRtf(u"{\\rtf1\\u7?}").front().runs.empty());
}

TEST(RtfReader, PassesOverWhatItDoesNotKnow) {
    EXPECT_EQ(shown("\\viewkind4\\nonsense12 a\\x b\\|c"), list({"abc"}));
    EXPECT_EQ(shown(" a{\\*\\generator Some \\b writer;{x}}b"), list({"ab"}));
    EXPECT_EQ(shown(" a{\\info{\\title T\\par}}{\\header H}{\\footnote F}b"), list({"ab"}));
    EXPECT_EQ(shown("{\\stylesheet{\\s0 Normal;}{\\s1\\b Head;}}b"), list({"b"}));
    EXPECT_EQ(shown(" a\\*b{\\*c}{*\\b d}"), list({"abc*<b>d"}));
    EXPECT_EQ(shown(" a{\\*\\nonsense b\\\n{\\fonttbl{\\f0 Arial;}}}c"), list({"ac"}));
}

TEST(RtfReader, PassesOverWhatIsForOthers) {
    for (const char* group : {"annotation", "filetbl", "fldinst", "footer", "footerf", "footerl",
                              "footerr", "footnote", "ftnsep", "header", "headerf", "headerl",
                              "headerr", "info", "nonshppict", "objdata", "stylesheet"})
        EXPECT_EQ(shown(QStringLiteral(" a{\\%1 x{y}}b").arg(QLatin1String(group))), list({"ab"}))
            << group;
}

// A person's notes may hold the path of a file.
TEST(RtfReader, TakesOnlyTheFirstWordOfAGroupForWhatTheGroupIsFor) {
    EXPECT_EQ(shown(" in C:\\info\\notes or C:\\*.*{\\par}b"), list({"in C:or C:.*", "b"}));
    EXPECT_EQ(shown(" {\\*}\\b a{x\\*\\nonsense y}"), list({"<b>axy"}));
    EXPECT_EQ(shown(" a{\r\n\\info b}{\\*\r\n\\nonsense c}"), list({"a"}));
}

TEST(RtfReader, ReadsTheResultOfAFieldAlone) {
    EXPECT_EQ(shown("{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}"), list({"link"}));
    EXPECT_EQ(shown("{\\field{\\fldinst PAGE}{\\fldrslt 1}}"), list({"1"}));
}

TEST(RtfReader, ReadsAPictureInHexadecimalDigits) {
    const RichText text = readRtf(
        u"{\\rtf1 a{\\pict{\\*\\picprop x}\\pngblip\\picw1\\pich1\\picwgoal300\\pichgoal150\r\n"
        u"8950\r\n4e{\\bliptag1 47}}b}");
    EXPECT_EQ(marksOf(text), list({"a[picture 300x150]b"}));
    EXPECT_EQ(std::get<RichPicture>(text.front().runs[1].content).file, QByteArray("\x89PNG"));
}

TEST(RtfReader, ReadsAPictureInBytes) {
    const RichText text =
        readRtf(u"{\\rtf1{\\pict\\jpegblip\\bin2 ÿØ{\\*\\blipuid\\bin1 x}\\bin2 }{}}");
    ASSERT_EQ(text.front().runs.size(), 1U);
    EXPECT_EQ(std::get<RichPicture>(text.front().runs[0].content).file, QByteArray("\xFF\xD8}{"));
}

TEST(RtfReader, ScalesAPicture) {
    EXPECT_EQ(shown("{\\pict\\pngblip\\picwgoal300\\pichgoal150\\picscalex50\\picscaley200 89}"),
              list({"[picture 150x300]"}));
    EXPECT_EQ(
        shown("{\\pict\\pngblip\\picwgoal300\\pichgoal2000\\picscalex\\picscaley2147483647 89}"),
        list({"[picture 300x31680]"}));
    EXPECT_EQ(shown("{\\pict\\pngblip\\picwgoal99999\\pichgoal-5 89}"),
              list({"[picture 31680x0]"}));
}

TEST(RtfReader, ReadsAPictureOnceWhereItIsThereForOldReadersToo) {
    EXPECT_EQ(shown("{\\*\\shppict{\\pict\\pngblip 89}}{\\nonshppict{\\pict\\pngblip 8989}}"),
              list({"[picture 0x0]"}));
}

TEST(RtfReader, LeavesAPictureOutOfAKindThatItDoesNotKnow) {
    EXPECT_EQ(shown(" a{\\pict\\wmetafile8 0100}b{\\pict\\pngblip}"), list({"ab"}));
    EXPECT_EQ(shown(" a{\\pict\\dibitmap0 01}b"), list({"ab"}));
}

TEST(RtfReader, EndsWithTheFirstGroup) {
    EXPECT_EQ(marksOf(readRtf(u"{\\rtf1 a}b{\\rtf1 c}")), list({"a"}));
    EXPECT_EQ(shown(" note with } in it"), list({"note with "}));
}

TEST(RtfReader, EndsWhereTheDocumentBreaksOff) {
    EXPECT_EQ(marksOf(readRtf(u"{\\rtf1 a{\\b b")), list({"a<b>b"}));
    EXPECT_EQ(marksOf(readRtf(u"{\\rtf1 a\\")), list({"a"}));
    EXPECT_EQ(marksOf(readRtf(u"{\\rtf1 a{\\pict\\pngblip 89")), list({"a"}));
    EXPECT_EQ(marksOf(readRtf(u"")), list({""}));
}

TEST(RtfReader, PassesOverWhatLiesTooDeep) {
    const QString opened = QStringLiteral("{").repeated(1'000'000);
    EXPECT_EQ(shown(QStringLiteral(" a") + opened + QStringLiteral("deep")), list({"a"}));
    const QString closed = QStringLiteral("}").repeated(1'000'000);
    EXPECT_EQ(shown(QStringLiteral(" a") + opened +
                    QStringLiteral("{\\b deep\\par\\\n\\tab\\u88?") + u'}' + closed + u'b'),
              list({"ab"}));
}

TEST(RtfReader, ReadsGroupsInGroups) {
    EXPECT_EQ(shown(QStringLiteral("{").repeated(150) + u'x' + QStringLiteral("}").repeated(150)),
              list({"x"}));
}
