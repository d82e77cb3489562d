// The lines of event_list.h.
#include "analyses/event_list.h"

#include <array>
#include <charconv>

#include "runtime/format.h"

namespace {

constexpr QLatin1String kNone("None");

// Widths in twips.
constexpr int kSharedDateWidth = 3500;
constexpr int kPictureWidth = 400;
constexpr int kDateWidth = 2500;
constexpr int kKindWidth = 800;

bool hasResults(std::size_t size) {
    return size > 1;
}

Date dateOf(const HitRow& hit, Date start) {
    const std::string_view digits = hit.offset;
    Long offset = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), offset);
    return start + offset;
}

QLatin1String wordOf(Integer kind) {
    if (kind == kPeakKind)
        return kPeak;
    return kind == kLowKind ? kLow : kCritical;
}

QString pictureKey(const FoundEvent& event) {
    return QStringLiteral("event-") + QString(event.smallIcon).toLower();
}

QString dateText(const FoundEvent& event) {
    return event.date ? Format(*event.date, QStringLiteral("ddd, d mmmm yyyy"))
                      : QStringLiteral("None found");
}

}  // namespace

QString searchStatus() {
    return QStringLiteral("Searching. Press Esc to cancel...");
}

QString searchStatus(const SearchedCycle& cycle) {
    return QStringLiteral("Searching ") + cycle.name +
           QStringLiteral(" cycle. Press Esc to cancel...");
}

std::vector<FoundEvent> doubleEvents(const EventHits& hits, Date start) {
    if (!hasResults(hits.DoubleHits.size()))
        return {{.smallIcon = kNone}};
    std::vector<FoundEvent> events;
    for (auto hit = hits.DoubleHits.begin() + 1; hit != hits.DoubleHits.end(); ++hit)
        events.push_back({.smallIcon = hit->word, .date = dateOf(*hit, start)});
    return events;
}

std::vector<FoundEvent> tripleEvents(const EventHits& hits, Date start, Integer kind) {
    if (!hasResults(hits.TripleHits.size()))
        return {{.smallIcon = kNone}};
    std::vector<FoundEvent> events;
    for (auto hit = hits.TripleHits.begin() + 1; hit != hits.TripleHits.end(); ++hit)
        events.push_back({.smallIcon = wordOf(kind), .date = start + *hit});
    return events;
}

std::vector<FoundEvent> cycleEvents(const EventHits& hits, const SearchedCycle& cycle, Date start,
                                    const EventKinds& kinds) {
    const std::vector<HitRow>& rows = hits.*cycle.hits;
    if (!hasResults(rows.size()))
        return {{.smallIcon = kNone}};
    const std::array<std::pair<bool, QLatin1String>, 3> inOrder{
        {{kinds.peak, kPeak}, {kinds.low, kLow}, {kinds.critical, kCritical}}};
    std::vector<FoundEvent> events;
    for (const auto& [isAsked, word] : inOrder) {
        for (auto hit = rows.begin() + 1; isAsked && hit != rows.end(); ++hit) {
            if (hit->word == word)
                events.push_back(
                    {.smallIcon = cycle.smallIcon, .date = dateOf(*hit, start), .word = word});
        }
    }
    return events;
}

bool areDays(const std::vector<FoundEvent>& events) {
    return !events.empty() && events.front().date;
}

std::vector<ListColumn> sharedColumns() {
    return {{.header = QStringLiteral("Date"), .width = kSharedDateWidth}};
}

std::vector<ListColumn> cycleColumns() {
    return {{.header = QString(), .width = kPictureWidth},
            {.header = QStringLiteral("Date"), .width = kDateWidth},
            {.header = QStringLiteral("Type"), .width = kKindWidth, .alignment = Qt::AlignHCenter}};
}

ListRow sharedRow(const FoundEvent& event) {
    return {.smallIcon = pictureKey(event), .texts = {dateText(event)}};
}

ListRow cycleRow(const FoundEvent& event) {
    return {.smallIcon = pictureKey(event), .texts = {QString(), dateText(event), event.word}};
}
