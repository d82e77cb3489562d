// The wait for what is painted on the screen.
#pragma once

#include <QEvent>
#include <QWidget>

#include "runtime/host.h"

// Waits for the paint events of one widget.
class PaintWatch final : public QObject {
  public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

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
