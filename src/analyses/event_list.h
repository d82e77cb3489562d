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

// The days of one cycle, whose picture is `smallIcon`: the peaks, then the lows, then the critical
// days, those that are asked for. One line where the cycle has no day of any kind.
std::vector<FoundEvent> cycleEvents(const std::vector<HitRow>& hits, Date start,
                                    QLatin1String smallIcon, const EventKinds& kinds);

// The list of days that cycles share has one column, that of one cycle after the other has three:
// the picture, the date and the kind.
std::vector<ListColumn> sharedColumns();
std::vector<ListColumn> cycleColumns();

// The rows of the two.
ListRow sharedRow(const FoundEvent& event);
ListRow cycleRow(const FoundEvent& event);
