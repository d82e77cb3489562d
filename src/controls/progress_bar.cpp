// The bar on Qt's, which counts whole steps.
#include "controls/progress_bar.h"

#include <QEvent>

#include "runtime/errors.h"

namespace {

constexpr double kFull = 100;
constexpr int kStepsToFull = 10'000;  // more than any bar has pixels

}  // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
    setRange(0, kStepsToFull);
    setValue(0);
    setTextVisible(false);
}

void ProgressBar::setValue(double percent) {
    if (!(percent >= 0 && percent <= kFull))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    value_ = percent;
    QProgressBar::setValue(qRound(percent / kFull * kStepsToFull));
}

void ProgressBar::setCycle(CycleColour cycle) {
    cycle_ = cycle;
    followPalette();
}

void ProgressBar::changeEvent(QEvent* event) {
    QProgressBar::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && cycle_)
        followPalette();
}

void ProgressBar::followPalette() {
    QPalette coloured;
    coloured.setColor(QPalette::Highlight, cycleColour(*cycle_, palette()));
    setPalette(coloured);
}
