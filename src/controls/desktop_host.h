// The host of the desktop: the machine's, with the desktop's message boxes, beep and event queue.
#pragma once

#include "runtime/machine_host.h"

class DesktopHost final : public MachineHost {
  public:
    Answer showMessage(const Message& message) override;
    void beep() override;
    void yield() override;
    void paintWindows() override;
};
