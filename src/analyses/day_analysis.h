// The analysis of a person's day: what its date says, and the critical days, peaks and lows of its
// month.
#pragma once

#include <QString>
#include <array>
#include <span>

#include "cycles/date.h"
#include "cycles/day_level.h"
#include "cycles/day_state.h"

// A bar about the base line, in twips from the window's left edge.
struct Bar {
    double left;
    double width;

    friend bool operator==(const Bar&, const Bar&) = default;
};

inline constexpr double kBaseLine = 4867;   // twips
inline constexpr double kFullScale = 1747;  // twips, for 100 per cent

// The bar of an unrounded value, to the left of the base line if it is negative, else to the right.
Bar barOf(double percent);

struct DayReading {
    QString date;                   // in the system's short form
    QString age;                    // in years, negative before the birth, and in days
    std::array<double, 4> percent;  // emotional, physical, intellectual and average, unrounded
    std::array<QString, 4> percentTexts;
    modCycles::DayLevels levels;
};

// Reads the date that is selected.
DayReading readDay(Date birthdate, Date selected);

inline constexpr Integer kSpanDays = 31;

// A day that was found, or a slot that is free, which has no text.
struct FoundDay {
    QString text = {};
    bool isToday = false;
    modCycles::DayState state = modCycles::DayState::Ordinary;

    friend bool operator==(const FoundDay&, const FoundDay&) = default;
};

// The days of one cycle, in order of date: its critical days, and its peaks and lows together.
template <std::size_t CriticalSlots, std::size_t PeakSlots>
struct CycleFinds {
    std::array<FoundDay, CriticalSlots> critical;
    std::array<FoundDay, PeakSlots> peaks;
};

struct SpanFinds {
    CycleFinds<3, 3> emotional;
    CycleFinds<4, 3> physical;
    CycleFinds<2, 2> intellectual;
};

// Searches the 31 days from `start` on. The day count of the start date is counted on from there,
// also where the span begins before the birth. `today` is without a time.
SpanFinds searchSpan(Date birthdate, Date start, Date today);

// Puts a day into the first free slot. If there is none, it is dropped.
void enter(std::span<FoundDay> slots, const FoundDay& day);
