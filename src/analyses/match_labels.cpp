// The filling of match_labels.h.
#include "analyses/match_labels.h"

#include <QLabel>

#include "analyses/birthdate_match.h"

namespace {

void showCycle(const CycleMatch& cycle, QLabel& label) {
    label.setText(cycle.percent);
    label.setToolTip(cycle.level);
}

}  // namespace

void showMatch(const BirthdateMatch& match, const MatchLabels& labels) {
    showCycle(match.emotional, labels.emotional);
    showCycle(match.physical, labels.physical);
    showCycle(match.intellectual, labels.intellectual);
    labels.advice.setText(match.advice);
    labels.sign.setText(match.sign);
}
