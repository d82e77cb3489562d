// The machine's host without a desktop.
#pragma once

#include <cstdlib>

#include "runtime/machine_host.h"

// What only a desktop can do is never asked of it.
class BareMachineHost : public MachineHost {
  public:
    void showHelp(QObject*, const QString&) override { std::abort(); }
    Answer showMessage(const Message&) override { std::abort(); }
    std::optional<ChosenFile> chooseFile(const FileQuestion&) override { std::abort(); }
    std::optional<QByteArray> clipboardBitmap() override { std::abort(); }
    void setClipboardBitmap(const QByteArray&) override { std::abort(); }
    void clearClipboard() override { std::abort(); }
    std::unique_ptr<Printer> printer() override { std::abort(); }
    void beep() override { std::abort(); }
    void yield() override { std::abort(); }
    void paintWindows() override { std::abort(); }
};
