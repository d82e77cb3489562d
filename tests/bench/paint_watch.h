// Waiting until a widget has been painted.
#pragma once

#include <QEvent>
#include <QWidget>

#include "runtime/host.h"

// Watches for the paint events of one widget.
class PaintWatch final : public QObject {
  public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    // Returns when the widget is painted next.
    void waitForPaint() {
        painted_ = false;
        while (!painted_)
            host().yield();
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

  private:
    bool painted_ = false;
};
