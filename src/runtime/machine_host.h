// The part of the host that needs no desktop: clock, locale, the program's place, the registry and
// the processes.
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
    std::optional<RegistryValue> registryValue(Long root, const QString& key,
                                               const QString& name) const override;
    void startProgram(const QString& path) override;
    void endProcess(int exitCode) override;
};
