// The part of the host that needs no desktop: clock, locale, the program's place and the process.
#pragma once

#include "runtime/host.h"

// The machine as the operating system tells of it. Each system has its own file for what differs:
// host_linux.cpp and host_windows.cpp.
class MachineHost : public Host {
  public:
    Date now() const override;
    QLocale locale() const override;
    QString shortDate(Date date) const override;
    QString shortTime(Date date) const override;
    QString programDirectory() const override;
    bool anotherInstanceRuns() const override;
    void endProcess(int exitCode) override;
};
