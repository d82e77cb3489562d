// The host of the desktop: the machine's, with the desktop's help, boxes, clipboard, printer, beep
// and event queue.
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
    std::optional<ChosenFile> chooseFile(const FileQuestion& question) override;
    std::optional<QByteArray> clipboardBitmap() override;
    void setClipboardBitmap(const QByteArray& file) override;
    void clearClipboard() override;
    std::unique_ptr<Printer> printer() override;
    void beep() override;
    void yield() override;
    void paintWindows() override;

  private:
    std::unique_ptr<HelpWindow> helpWindow_;
};
