// The bar on Qt's, which counts whole steps: one for each pixel, so that no step goes unseen.
#include "controls/progress_bar.h"

#include <QEvent>
#include <algorithm>

#include "runtime/errors.h"

namespace {

constexpr double kFull = 100;

}  // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
    setTextVisible(false);
    followWidth();
}

void ProgressBar::setValue(double percent) {
    if (!(percent >= 0 && percent <= kFull))
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    value_ = percent;
    showValue();
}

void ProgressBar::showValue() {
    QProgressBar::setValue(qRound(value_ / kFull * maximum()));
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

void ProgressBar::resizeEvent(QResizeEvent* event) {
    QProgressBar::resizeEvent(event);
    followWidth();
}

void ProgressBar::followWidth() {
    setRange(0, std::max(width(), 1));
    showValue();
}

void ProgressBar::followPalette() {
    QPalette coloured;
    coloured.setColor(QPalette::Highlight, cycleColour(*cycle_, palette()));
    setPalette(coloured);
}
