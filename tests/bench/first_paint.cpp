// Tells on standard output when a program's windows have been painted for the first time, and when
// no event waits any more. Linked into a program, it needs no word from it.
//
// A line is "painted", the window's object name and a moment, or "settled" and a moment, which is
// in nanoseconds of the system's monotonic clock.
#include <QApplication>
#include <QTimerEvent>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <set>

namespace {

long long nanoseconds() {
    return std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
}

class FirstPaints final : public QObject {
  public:
    using QObject::QObject;

  protected:
    // Sees every event of the program. What a window paints is on its way to the screen when the
    // event that made it paint is over; then those that were put into the queue have their turn.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == this)
            return false;
        quiet_ = false;
        if (event->type() != QEvent::Paint || !watched->isWidgetType())
            return false;
        const auto* widget = static_cast<QWidget*>(watched);
        if (widget->isWindow() && painted_.insert(widget->objectName()).second)
            QMetaObject::invokeMethod(
                this, [this, name = widget->objectName()] { tellPainted(name); },
                Qt::QueuedConnection);
        return false;
    }

    // A timer without an interval fires when nothing else waits.
    void timerEvent(QTimerEvent* event) override {
        if (!std::exchange(quiet_, true))
            return;
        killTimer(event->timerId());
        std::printf("settled %lld\n", nanoseconds());
        std::fflush(stdout);
    }

  private:
    void tellPainted(const QString& window) {
        std::printf("painted %s %lld\n", qPrintable(window), nanoseconds());
        std::fflush(stdout);
        quiet_ = false;
        startTimer(0);
    }

    std::set<QString> painted_;
    bool quiet_ = false;  // no event since the timer fired last
};

void watchFirstPaints() {
    qApp->installEventFilter(new FirstPaints(qApp));
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watchFirstPaints)
