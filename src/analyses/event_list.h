// What a search for events found, as a list shows it.
#pragma once

#include <optional>

#include "analyses/event_search.h"
#include "controls/list_view_model.h"
#include "cycles/date.h"

// A line of the list; without a date it says that there was nothing to find.
struct FoundEvent {
    QLatin1String smallIcon;
    std::optional<Date> date = {};
    QLatin1String word = {};

    friend bool operator==(const FoundEvent&, const FoundEvent&) = default;
};

// A cycle that is searched by itself.
struct SearchedCycle {
    std::string_view key;
    QLatin1String name;
    QLatin1String smallIcon;
    std::vector<HitRow> EventHits::*hits;  // where the search leaves what it finds
};

inline constexpr SearchedCycle kEmotionalSearch{modCycles::kEmotionalKey,
                                                QLatin1String("emotional"), QLatin1String("Emot"),
                                                &EventHits::EmotHits};
inline constexpr SearchedCycle kPhysicalSearch{modCycles::kPhysicalKey, QLatin1String("physical"),
                                               QLatin1String("Phys"), &EventHits::PhysHits};
inline constexpr SearchedCycle kIntellectualSearch{modCycles::kIntellectualKey,
                                                   QLatin1String("intellectual"),
                                                   QLatin1String("Intel"), &EventHits::IntelHits};

// What the user is told while it goes on: of all cycles together, and of one.
QString searchStatus();
QString searchStatus(const SearchedCycle& cycle);

// The kinds of days that are asked for in a cycle.
struct EventKinds {
    bool peak;
    bool low;
    bool critical;
};

// The days on which two cycles do something together, from the first date `start` on; the picture
// tells which two. One line where there is none.
std::vector<FoundEvent> doubleEvents(const EventHits& hits, Date start);

// The same for all three; the picture tells the kind that was looked for.
std::vector<FoundEvent> tripleEvents(const EventHits& hits, Date start, Integer kind);

// The days of one cycle: the peaks, then the lows, then the critical days, those that are asked
// for. One line where the cycle has no day of any kind.
std::vector<FoundEvent> cycleEvents(const EventHits& hits, const SearchedCycle& cycle, Date start,
                                    const EventKinds& kinds);

// Whether lines tell of days, and not that there was nothing to find.
bool areDays(const std::vector<FoundEvent>& events);

// The list of days that cycles share has one column, that of one cycle after the other has three:
// the picture, the date and the kind.
std::vector<ListColumn> sharedColumns();
std::vector<ListColumn> cycleColumns();

// The rows of the two.
ListRow sharedRow(const FoundEvent& event);
ListRow cycleRow(const FoundEvent& event);
