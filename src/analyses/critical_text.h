// The explanation of what each critical day means.
#pragma once

#include <QString>
#include <vector>

#include "cycles/integers.h"

// A range of the text, in which a line end counts as one character, and how it looks.
struct StyledRange {
    int start;
    int length;
    bool isBold;
    int points;
    Long colour;  // 0xBBGGRR

    friend bool operator==(const StyledRange&, const StyledRange&) = default;
};

struct CriticalText {
    QString text;                     // with CR LF as line ends
    std::vector<StyledRange> ranges;  // in order, from the beginning to the end
};

// A paragraph for each cycle. Its heading stands out by its style, and the rest is plain.
CriticalText criticalText();
