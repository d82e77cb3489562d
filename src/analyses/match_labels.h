// The labels that show how two people match.
#pragma once

class QLabel;
struct BirthdateMatch;

struct MatchLabels {
    QLabel& emotional;
    QLabel& physical;
    QLabel& intellectual;
    QLabel& advice;
    QLabel& sign;
};

// Shows a match. The percentage of a cycle has its level in words as tooltip. The average is not
// among them; each window words it in its own way.
void showMatch(const BirthdateMatch& match, const MatchLabels& labels);
