// The labels that show how two people match.
#pragma once

#include "cycles/integers.h"

class QLabel;
struct BirthdateMatch;

struct MatchLabels {
    QLabel& emotional;
    QLabel& physical;
    QLabel& intellectual;
    QLabel& advice;
    QLabel& sign;
};

// The colours of the percentages, 0xBBGGRR. The blue of the emotional one is each window's own.
inline constexpr Long kPhysicalMatchColour = 0x0000FF;
inline constexpr Long kIntellectualMatchColour = 0x008000;
inline constexpr Long kAverageMatchColour = 0x800080;

// Shows a match. The percentage of a cycle has its level in words as tooltip. The average is not
// among them; each window words it in its own way.
void showMatch(const BirthdateMatch& match, const MatchLabels& labels);
