// The reader of contents files.
#include "controls/help_topics.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/help_files.h"
#include "support/printing.h"
#include "support/properties.h"

void PrintTo(const HelpTopic& topic, std::ostream* out) {
    *out << topic.level << ' ' << topic.title.toStdString() << " (" << topic.page.toStdString()
         << ')';
}

namespace {

using Topics = std::vector<HelpTopic>;

Topics topicsOf(const QByteArray& contents) {
    return helpTopics(QString::fromUtf8(contents));
}

HelpTopic topic(const char* title, const char* page, int level = 0) {
    return {QString::fromUtf8(title), QString::fromUtf8(page), level};
}

const auto entry = HelpFiles::entry;

TEST(HelpTopics, AreTheEntriesOfNestedLists) {
    const QByteArray contents = R"(<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">
<HTML><HEAD></HEAD><BODY>
<OBJECT type="text/site properties"><param name="ImageType" value="Folder"></OBJECT>
<UL>
  <LI> <OBJECT type="text/sitemap">
         <param name="Name" value="Charts">
         <param name="Local" value="charts.html">
       </OBJECT>
  <UL>
    <LI> <OBJECT type="text/sitemap">
           <param name="Name" value="The days">
           <param name="Local" value="charts/days.html#top">
         </OBJECT>
  </UL>
  <LI> <OBJECT type="text/sitemap">
         <param name="Name" value="More">
       </OBJECT>
</UL>
</BODY></HTML>)";
    EXPECT_EQ(topicsOf(contents),
              (Topics{topic("Charts", "charts.html"), topic("The days", "charts/days.html#top", 1),
                      topic("More", "")}));
}

TEST(HelpTopics, AreReadWithoutRegardToCase) {
    EXPECT_EQ(topicsOf("<ul><object><PARAM NAME=\"NAME\" VALUE=\"A\"></object></ul>"),
              Topics{topic("A", "")});
}

TEST(HelpTopics, HaveTitlesWithAnyCharacter) {
    EXPECT_EQ(topicsOf(entry("Q &amp; A &lt;1&gt; &#233;&#x142; \xC3\xBC", "a.html")),
              Topics{topic("Q & A <1> \xC3\xA9\xC5\x82 \xC3\xBC", "a.html")});
}

TEST(HelpTopics, KeepATitleThatCannotBeDecodedAsItIs) {
    EXPECT_EQ(topicsOf(entry("A & B &nonsense;", "a.html")),
              Topics{topic("A & B &nonsense;", "a.html")});
}

TEST(HelpTopics, NeedATitle) {
    EXPECT_EQ(topicsOf(entry("", "a.html")), Topics());
}

TEST(HelpTopics, DoNotTakeOverWhatAnEarlierOneHad) {
    EXPECT_EQ(topicsOf(entry("A", "a.html") +
                       "<OBJECT><param name=\"Name\" value=\"B\"></OBJECT><OBJECT></OBJECT>"),
              (Topics{topic("A", "a.html"), topic("B", "")}));
}

TEST(HelpTopics, EndWithTheirObject) {
    EXPECT_EQ(
        topicsOf(entry("A", "a.html") + "</OBJECT><param name=\"Name\" value=\"B\"></OBJECT>"),
        Topics{topic("A", "a.html")});
}

TEST(HelpTopics, GoAtMostOneLevelDownAtATime) {
    EXPECT_EQ(topicsOf("<UL><UL><UL>" + entry("A", "") + "<UL>" + entry("B", "") + "</UL></UL>" +
                       entry("C", "") + "</UL></UL></UL>" + entry("D", "")),
              (Topics{topic("A", ""), topic("B", "", 1), topic("C", "", 1), topic("D", "")}));
}

TEST(HelpTopics, OutliveListsThatEndTooOften) {
    EXPECT_EQ(topicsOf("</UL></UL><UL>" + entry("A", "") + "<UL>" + entry("B", "")),
              (Topics{topic("A", ""), topic("B", "", 1)}));
}

TEST(HelpTopics, StandOnTheDeepestLevelWhereTheyAreWrittenDeeper) {
    QByteArray contents;
    for (int i = 0; i <= kDeepestHelpLevel + 2; ++i)
        contents += "<UL>" + entry(QByteArray::number(i), "");
    EXPECT_EQ(topicsOf(contents).back().level, kDeepestHelpLevel);
}

TEST(HelpTopics, AreNoneInWhatIsNoContentsFile) {
    EXPECT_EQ(topicsOf(""), Topics());
    EXPECT_EQ(topicsOf("</UL></OBJECT><param><"), Topics());
    EXPECT_EQ(topicsOf("<UL><LI><OBJECT><param name=\"Name\" value=\"Cut sh"), Topics());
}

// Texts that a careless search would walk through again from every place in them.
TEST(HelpTopics, AreReadInOneGo) {
    constexpr int kMany = 300'000;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(topicsOf(QByteArray("<UL").repeated(kMany)), Topics());
    EXPECT_EQ(topicsOf("<param " + QByteArray("name=").repeated(kMany) + ">"), Topics());
    EXPECT_EQ(topicsOf("<param " + QByteArray("name=\"").repeated(kMany) + ">"), Topics());
    EXPECT_EQ(topicsOf("<" + QByteArray("a").repeated(kMany)), Topics());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

#ifdef RC_GTEST_PROP

RC_GTEST_PROP(HelpTopics, AreTakenFromAnyText, ()) {
    const auto pieces = *rc::gen::container<std::vector<std::string>>(
        rc::gen::element<std::string>("<UL>", "</UL>", "<OBJECT>", "</OBJECT>", "<", ">", "\"", "&",
                                      "<param name=\"Name\" value=\"A\">", "<param name=", "x",
                                      "<param name=\"Local\" value=\"a.html\">"));
    QByteArray contents;
    for (const std::string& piece : pieces)
        contents += piece.c_str();
    int deepest = 0;
    for (const HelpTopic& found : topicsOf(contents)) {
        RC_ASSERT(!found.title.isEmpty());
        RC_ASSERT(found.level >= 0 && found.level <= deepest);
        deepest = std::min(found.level + 1, kDeepestHelpLevel);
    }
}

#endif

}  // namespace
