// The one seam to the machine and the desktop.
#pragma once

#include <QLocale>
#include <QString>

#include "cycles/date.h"
#include "runtime/message.h"

// Everything that Ondara asks of the machine it runs on: the clock, the locale, the program's
// place, the process, and the desktop's boxes. Nothing else asks for them, so a test that installs
// a host of its own decides what day it is, answers every box and sees every end of the process.
class Host {
  public:
    virtual ~Host() = default;

    // The system date with the time of day, in the machine's time zone.
    virtual Date now() const = 0;

    // The system date without a time.
    Date today() const;

    // The language of the names of days and months.
    virtual QLocale locale() const = 0;

    // A date in the system's short date form.
    virtual QString shortDate(Date date) const = 0;

    // The time of a date in the system's short form.
    virtual QString shortTime(Date date) const = 0;

    // The directory of the program, absolute, without a separator at its end.
    virtual QString programDirectory() const = 0;

    // Whether another process runs the same executable file.
    virtual bool anotherInstanceRuns() const = 0;

    // Shows the message box and waits for the answer.
    virtual Answer showMessage(const Message& message) = 0;

    // Sounds the system's beep.
    virtual void beep() = 0;

    // Lets every window process its waiting events, once.
    virtual void yield() = 0;

    // Lets windows appear and paint, and holds the user's keys and clicks back.
    virtual void paintWindows() = 0;

    // Ends the process at once, without leaving the event loop or destroying anything.
    virtual void endProcess(int exitCode) = 0;
};

// The host in force. There must be one.
Host& host();

// Makes a host the one in force for as long as this lives, then the one before it again.
class HostInForce {
  public:
    explicit HostInForce(Host& host);
    ~HostInForce();
    Q_DISABLE_COPY_MOVE(HostInForce)

  private:
    Host* previous_;
};
