// The one seam to the machine and the desktop.
#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <memory>
#include <optional>

#include "cycles/date.h"
#include "cycles/integers.h"
#include "runtime/file_question.h"
#include "runtime/message.h"
#include "runtime/printer.h"
#include "runtime/registry_value.h"

// Everything that Ondara asks of the machine it runs on: the clock, the locale, the program's
// place, the process, other programs, and the desktop's boxes. Nothing else asks for them, so a
// test that installs a host of its own decides what day it is, answers every box and sees every
// start of a program and every end of the process.
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

    // A value of the Windows registry: the number of the root's handle, the path of the key below
    // it and the name of the value. Nothing if it cannot be read, and on any other system.
    virtual std::optional<RegistryValue> registryValue(Long root, const QString& key,
                                                       const QString& name) const = 0;

    // Starts a program by its path and goes on at once. Raises 53 (File not found) where there is
    // none, 70 (Permission denied) where this user may not start it, else 5.
    virtual void startProgram(const QString& path) = 0;

    // Shows a help file beside the other windows and goes on at once. A relative path begins in the
    // current directory. Where there is no help, nothing happens.
    virtual void showHelp(QObject* owner, const QString& fileName) = 0;

    // Shows the message box and waits for the answer.
    virtual Answer showMessage(const Message& message) = 0;

    // Asks the user for a file; nothing if there is to be none.
    virtual std::optional<ChosenFile> chooseFile(const FileQuestion& question) = 0;

    // The picture on the clipboard, as the contents of a BMP file; nothing if there is none.
    virtual std::optional<QByteArray> clipboardBitmap() = 0;

    // Puts such a picture on the clipboard in place of whatever is there.
    virtual void setClipboardBitmap(const QByteArray& file) = 0;

    virtual void clearClipboard() = 0;

    // The system's default printer. Raises 482 (Printer error) if there is none.
    virtual std::unique_ptr<Printer> printer() = 0;

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
