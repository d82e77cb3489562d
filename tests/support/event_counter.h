// How often a control fired an event.
#pragma once

#include "runtime/event.h"

// Counts through onEvent, as a form would hear it.
class EventCounter : public QObject {
  public:
    template <class Control, class Signal>
    EventCounter(Control& control, Signal signal) {
        onEvent(&control, signal, this, &EventCounter::count);
    }

    int fired() const { return fired_; }

  private:
    void count() { ++fired_; }

    int fired_ = 0;
};
