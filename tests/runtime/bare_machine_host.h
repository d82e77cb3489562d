// The machine's host without a desktop.
#pragma once

#include <cstdlib>

#include "runtime/machine_host.h"

// What only a desktop can do is never asked of it.
class BareMachineHost : public MachineHost {
  public:
    void showHelp(QObject*, const QString&) override { std::abort(); }
    Answer showMessage(const Message&) override { std::abort(); }
    void beep() override { std::abort(); }
    void yield() override { std::abort(); }
    void paintWindows() override { std::abort(); }
};
