// The lines of a search for events.
#include "analyses/event_list.h"

#include <gtest/gtest.h>

#include "cycles/calendar.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

constexpr EventKinds kAll{.peak = true, .low = true, .critical = true};
const Date kStart = DateSerial(2001, 3, 4);
const FoundEvent kNoneFound{.smallIcon = QLatin1String("None")};

FoundEvent on(Long offset, const char* icon, QLatin1String word = {}) {
    return {.smallIcon = QLatin1String(icon), .date = kStart + offset, .word = word};
}

TEST(DoubleEvents, HaveThePairForTheirPicture) {
    EventHits hits;
    hits.DoubleHits.push_back({OffsetText(0), kEmotionalPhysical});
    hits.DoubleHits.push_back({OffsetText(36524), kPhysicalIntellectual});
    EXPECT_EQ(doubleEvents(hits, kStart), (std::vector{on(0, "EP"), on(36524, "PI")}));
}

TEST(DoubleEvents, AreOneLineWithoutADateWhereNothingWasFound) {
    EXPECT_EQ(doubleEvents(EventHits(), kStart), std::vector{kNoneFound});
}

TEST(TripleEvents, HaveTheKindForTheirPicture) {
    EventHits hits;
    hits.TripleHits.push_back(7);
    EXPECT_EQ(tripleEvents(hits, kStart, kPeakKind), std::vector{on(7, "Peak")});
    EXPECT_EQ(tripleEvents(hits, kStart, kLowKind), std::vector{on(7, "Low")});
    EXPECT_EQ(tripleEvents(hits, kStart, kCriticalKind), std::vector{on(7, "Critical")});
}

TEST(TripleEvents, AreOneLineWithoutADateWhereNothingWasFound) {
    EXPECT_EQ(tripleEvents(EventHits(), kStart, kPeakKind), std::vector{kNoneFound});
}

class CycleEvents : public testing::Test {
  protected:
    CycleEvents() {
        for (const auto& [offset, word] :
             {std::pair{0, kCritical}, {7, kPeak}, {14, kCritical}, {21, kLow}, {35, kPeak}})
            hits_.EmotHits.push_back({OffsetText(offset), word});
    }

    std::vector<FoundEvent> events(const EventKinds& kinds) const {
        return cycleEvents(hits_, kEmotionalSearch, kStart, kinds);
    }

    EventHits hits_;
};

TEST_F(CycleEvents, AreGroupedAsPeaksLowsAndCriticalDays) {
    EXPECT_EQ(events(kAll),
              (std::vector{on(7, "Emot", kPeak), on(35, "Emot", kPeak), on(21, "Emot", kLow),
                           on(0, "Emot", kCritical), on(14, "Emot", kCritical)}));
}

TEST_F(CycleEvents, AreThoseOfTheKindsThatAreAskedFor) {
    EXPECT_EQ(events({.peak = true, .low = false, .critical = false}),
              (std::vector{on(7, "Emot", kPeak), on(35, "Emot", kPeak)}));
    EXPECT_EQ(events({.peak = false, .low = true, .critical = false}),
              std::vector{on(21, "Emot", kLow)});
    EXPECT_EQ(events({.peak = false, .low = false, .critical = true}),
              (std::vector{on(0, "Emot", kCritical), on(14, "Emot", kCritical)}));
}

TEST_F(CycleEvents, AreNoLineAtAllWhereTheCycleHasOnlyDaysOfOtherKinds) {
    hits_.EmotHits.resize(2);
    EXPECT_EQ(events({.peak = true, .low = true, .critical = false}), std::vector<FoundEvent>());
}

TEST_F(CycleEvents, AreOneLineWithoutADateWhereTheCycleHasNone) {
    hits_.EmotHits.resize(1);
    EXPECT_EQ(events(kAll), std::vector{kNoneFound});
    EXPECT_EQ(events({.peak = false, .low = false, .critical = false}), std::vector{kNoneFound});
}

TEST_F(CycleEvents, AreThoseOfTheCycleThatIsNamed) {
    hits_.PhysHits.push_back({OffsetText(3), kLow});
    hits_.IntelHits.push_back({OffsetText(4), kLow});
    EXPECT_EQ(cycleEvents(hits_, kPhysicalSearch, kStart, kAll), std::vector{on(3, "Phys", kLow)});
    EXPECT_EQ(cycleEvents(hits_, kIntellectualSearch, kStart, kAll),
              std::vector{on(4, "Intel", kLow)});
}

TEST(AreDays, TellsDaysFromTheLineForNone) {
    EXPECT_TRUE(areDays({on(0, "EP")}));
    EXPECT_FALSE(areDays({kNoneFound}));
    EXPECT_FALSE(areDays({}));
}

TEST(SearchStatus, NamesTheCycleThatIsSearchedByItself) {
    EXPECT_EQ(searchStatus(), QStringLiteral("Searching. Press Esc to cancel..."));
    EXPECT_EQ(searchStatus(kEmotionalSearch),
              QStringLiteral("Searching emotional cycle. Press Esc to cancel..."));
    EXPECT_EQ(searchStatus(kPhysicalSearch),
              QStringLiteral("Searching physical cycle. Press Esc to cancel..."));
    EXPECT_EQ(searchStatus(kIntellectualSearch),
              QStringLiteral("Searching intellectual cycle. Press Esc to cancel..."));
}

TEST(SharedRow, IsTheDateInOneColumn) {
    RecordingHost host;
    const std::vector<ListColumn> columns = sharedColumns();
    ASSERT_EQ(columns.size(), 1u);
    EXPECT_EQ(columns[0].header, QStringLiteral("Date"));
    EXPECT_EQ(columns[0].width, 3500);
    EXPECT_EQ(columns[0].alignment, Qt::AlignLeft);
    const ListRow row = sharedRow(on(0, "EP"));
    EXPECT_EQ(row.smallIcon, QStringLiteral("event-ep"));
    EXPECT_EQ(row.texts, QStringList{QStringLiteral("Sun, 4 March 2001")});
    EXPECT_EQ(sharedRow(kNoneFound).texts, QStringList{QStringLiteral("None found")});
    EXPECT_EQ(sharedRow(kNoneFound).smallIcon, QStringLiteral("event-none"));
}

TEST(CycleRow, IsThePictureTheDateAndTheKind) {
    RecordingHost host;
    const std::vector<ListColumn> columns = cycleColumns();
    ASSERT_EQ(columns.size(), 3u);
    EXPECT_EQ(columns[0].header, QString());
    EXPECT_EQ(columns[0].width, 400);
    EXPECT_EQ(columns[1].header, QStringLiteral("Date"));
    EXPECT_EQ(columns[1].width, 2500);
    EXPECT_EQ(columns[1].alignment, Qt::AlignLeft);
    EXPECT_EQ(columns[2].header, QStringLiteral("Type"));
    EXPECT_EQ(columns[2].width, 800);
    EXPECT_EQ(columns[2].alignment, Qt::AlignHCenter);
    const ListRow row = cycleRow(on(3, "Emot", kPeak));
    EXPECT_EQ(row.smallIcon, QStringLiteral("event-emot"));
    EXPECT_EQ(row.texts, (QStringList{QString(), QStringLiteral("Wed, 7 March 2001"), kPeak}));
    EXPECT_EQ(cycleRow(kNoneFound).texts,
              (QStringList{QString(), QStringLiteral("None found"), QString()}));
}

}  // namespace
