// How often a widget was painted.
#pragma once

#include <QEvent>
#include <QWidget>

class PaintCounter final : public QObject {
  public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }

    int painted() const { return painted_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++painted_;
        return QObject::eventFilter(watched, event);
    }

  private:
    int painted_ = 0;
};
