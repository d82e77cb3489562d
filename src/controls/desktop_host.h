// The host of the desktop: the machine's, with the desktop's help, message boxes, beep and event
// queue.
#pragma once

#include <memory>

#include "runtime/machine_host.h"

class HelpWindow;

// Help is shown by the system's viewer, or else in one window of this host's own.
class DesktopHost final : public MachineHost {
  public:
    DesktopHost();
    ~DesktopHost() override;

    void showHelp(QObject* owner, const QString& fileName) override;
    Answer showMessage(const Message& message) override;
    void beep() override;
    void yield() override;
    void paintWindows() override;

  private:
    std::unique_ptr<HelpWindow> helpWindow_;
};
