// The panels of the status bar.
#include "controls/status_bar.h"

#include <QTimer>
#include <chrono>

#include "controls/elided_label.h"
#include "controls/font_size.h"
#include "runtime/host.h"

namespace {

constexpr std::chrono::seconds kClockInterval{1};
constexpr int kSpaceAtEdge = 6;  // with the bar's own margin, the texts stand on the grid
constexpr int kSpaceBeforePanel = 12;
constexpr double kFontScale = 0.9;  // the values of a day fit beside the clock

QFont smaller(QFont font) {
    font.setPointSizeF(pointsOf(font) * kFontScale);
    return font;
}

}  // namespace

StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent),
      text_(new ElidedLabel(this)),
      time_(new QLabel(this)),
      date_(new QLabel(this)) {
    setFont(smaller(font()));
    setSizeGripEnabled(false);
    text_->setObjectName(QStringLiteral("panel1"));
    time_->setObjectName(QStringLiteral("panel2"));
    date_->setObjectName(QStringLiteral("panel3"));
    text_->setContentsMargins(kSpaceAtEdge, 0, 0, 0);
    time_->setContentsMargins(kSpaceBeforePanel, 0, 0, 0);
    date_->setContentsMargins(kSpaceBeforePanel, 0, kSpaceAtEdge, 0);
    addWidget(text_, 1);
    addPermanentWidget(time_);
    addPermanentWidget(date_);
    refreshClock();

    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &StatusBar::refreshClock);
    clock->start(kClockInterval);
}

QString StatusBar::panelText() const {
    return text_->text();
}

void StatusBar::setPanelText(const QString& text) {
    text_->setText(text);
}

QString StatusBar::panelToolTip() const {
    return text_->toolTip();
}

void StatusBar::setPanelToolTip(const QString& text) {
    text_->setToolTip(text);
}

void StatusBar::refreshClock() {
    const Date now = host().now();
    time_->setText(host().shortTime(now));
    date_->setText(host().shortDate(now));
}
