// Two people compared: everything that is shown of it.
#pragma once

#include <QString>
#include <array>

#include "analyses/birthdate_match.h"
#include "analyses/compared_person.h"
#include "controls/chart_content.h"

// The match in bars: one row, with the emotional, the physical, the intellectual and the average
// percentage, unrounded.
struct MatchBars {
    ChartTable table;
    std::array<QString, 4> legend;
    QString title;
};

// The cycles of both in lines: 31 days, with the emotional, the physical and the intellectual cycle
// of the one, and then of the other.
struct CycleLines {
    ChartTable table;
    QString toolTip;
};

struct PersonComparison {
    BirthdateMatch match;
    QString thermometer;  // the average in words
    MatchBars bars;
    CycleLines lines;
};

// Compares a person with another. The lines begin on `startdate`; the cycles of whoever is born
// later run forward from the day count there, as in every chart.
PersonComparison comparePeople(const ComparedPerson& person, const ComparedPerson& other,
                               Date startdate);
