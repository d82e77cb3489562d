// The host that tests install: a fixed day, no desktop, and every box and every start of a program
// recorded and answered.
#pragma once

#include <QString>
#include <functional>
#include <map>
#include <optional>
#include <tuple>
#include <vector>

#include "cycles/calendar.h"
#include "runtime/errors.h"
#include "runtime/host.h"
#include "support/printing.h"

// It is 14 March 2000, 14:05, in English, with dates as dd/MM/yyyy. The registry is empty. A box, a
// program or a help file that the test did not expect fails the test, and so does an expected one
// that never comes. An end of the process is recorded, and what the program would do after it goes
// unnoticed, as there is no program then.
class RecordingHost final : public Host {
  public:
    RecordingHost();
    ~RecordingHost() override;

    // The next box must have this text; it gets this answer.
    void expectMessage(const QString& text, Answer answer = Answer::Ok);

    // What holds while a box is shown, that box being the last of messages().
    void onMessage(std::function<void()> look) { onMessage_ = std::move(look); }

    // The boxes shown so far.
    const std::vector<Message>& messages() const { return messages_; }

    // The next program started must have this path; starting it fails if an error is given.
    void expectStart(const QString& path, std::optional<ErrorNumber> error = std::nullopt);

    // The next help file shown must have this name.
    void expectHelp(const QString& fileName);

    // The exit code, once the process has been ended.
    std::optional<int> exitCode() const { return exitCode_; }

    // Ends the record of an end of the process that the test has looked at.
    void forgetExit() { exitCode_.reset(); }

    // The next question for a file gets this answer: a file and the filter chosen, or none.
    void expectFileQuestion(std::optional<ChosenFile> answer) { expectedFiles_.push_back(answer); }

    // The questions for files asked so far.
    const std::vector<FileQuestion>& fileQuestions() const { return fileQuestions_; }

    // What is on the clipboard; nothing for an empty one.
    const std::optional<QByteArray>& clipboard() const { return clipboard_; }
    void setClipboard(std::optional<QByteArray> bitmap) { clipboard_ = std::move(bitmap); }

    // Where printers come from; there is none at first.
    void onPrinter(std::function<std::unique_ptr<Printer>()> make) { onPrinter_ = std::move(make); }

    int beeps() const { return beeps_; }

    int yields() const { return yields_; }

    // What the user does whenever a window processes its waiting events.
    void onYield(std::function<void()> action) { onYield_ = std::move(action); }

    // What is to happen whenever windows are let to appear and paint.
    void onPaintWindows(std::function<void()> action) { onPaintWindows_ = std::move(action); }

    void setNow(Date now) { now_ = now; }

    // Whoever asks for the time from now on gets this error.
    void breakClock(ErrorNumber error) { clockError_ = error; }

    void setProgramDirectory(const QString& directory) { programDirectory_ = directory; }
    void setRegistryValue(Long root, const QString& key, const QString& name,
                          const RegistryValue& value);
    void setAnotherInstanceRuns(bool runs) { anotherInstanceRuns_ = runs; }

    Date now() const override;
    QLocale locale() const override;
    QString shortDate(Date date) const override;
    QString shortTime(Date date) const override;
    QString programDirectory() const override { return programDirectory_; }
    bool anotherInstanceRuns() const override { return anotherInstanceRuns_; }
    std::optional<RegistryValue> registryValue(Long root, const QString& key,
                                               const QString& name) const override;
    void startProgram(const QString& path) override;
    void showHelp(QObject* owner, const QString& fileName) override;
    Answer showMessage(const Message& message) override;
    std::optional<ChosenFile> chooseFile(const FileQuestion& question) override;
    std::optional<QByteArray> clipboardBitmap() override { return clipboard_; }
    void setClipboardBitmap(const QByteArray& file) override { clipboard_ = file; }
    void clearClipboard() override { clipboard_.reset(); }
    std::unique_ptr<Printer> printer() override;
    void beep() override { ++beeps_; }
    void yield() override;
    void paintWindows() override;
    void endProcess(int exitCode) override;

  private:
    struct Expected {
        QString text;
        Answer answer;
    };

    struct ExpectedStart {
        QString path;
        std::optional<ErrorNumber> error;
    };

    HostInForce inForce_{*this};
    Date now_;
    std::optional<ErrorNumber> clockError_;
    QString programDirectory_;
    bool anotherInstanceRuns_ = false;
    std::vector<Expected> expected_;  // those still to come, in order
    std::vector<Message> messages_;
    std::map<std::tuple<Long, QString, QString>, RegistryValue> registry_;
    std::vector<ExpectedStart> expectedStarts_;             // those still to come, in order
    std::vector<std::optional<ChosenFile>> expectedFiles_;  // those still to come, in order
    std::vector<FileQuestion> fileQuestions_;
    std::optional<QByteArray> clipboard_;
    std::function<std::unique_ptr<Printer>()> onPrinter_;
    std::vector<QString> expectedHelp_;  // those still to come, in order
    std::optional<int> exitCode_;
    int beeps_ = 0;
    int yields_ = 0;
    std::function<void()> onMessage_;
    std::function<void()> onPaintWindows_;
    std::function<void()> onYield_;
};
