// The fixed day, and the record of boxes, programs and help.
#include "support/recording_host.h"

#include <gtest/gtest.h>

#include "runtime/format.h"
#include "runtime/qt_dates.h"

namespace {

constexpr double kFiveMinutesPastTwo = 845.0 / 1440.0;

}  // namespace

RecordingHost::RecordingHost() : now_(modCycles::DateSerial(2000, 3, 14) + kFiveMinutesPastTwo) {}

RecordingHost::~RecordingHost() {
    for (const Expected& expected : expected_)
        ADD_FAILURE() << "This box was expected and never came: " << qPrintable(expected.text);
    for (const ExpectedStart& expected : expectedStarts_)
        ADD_FAILURE() << "This program was to be started: " << qPrintable(expected.path);
    for (const QString& fileName : expectedHelp_)
        ADD_FAILURE() << "This help was to be shown: " << qPrintable(fileName);
    if (!expectedFiles_.empty())
        ADD_FAILURE() << "A file was to be asked for.";
}

void RecordingHost::expectMessage(const QString& text, Answer answer) {
    expected_.push_back({text, answer});
}

void RecordingHost::expectStart(const QString& path, std::optional<ErrorNumber> error) {
    expectedStarts_.push_back({path, error});
}

void RecordingHost::expectHelp(const QString& fileName) {
    expectedHelp_.push_back(fileName);
}

void RecordingHost::setRegistryValue(Long root, const QString& key, const QString& name,
                                     const RegistryValue& value) {
    registry_[{root, key, name}] = value;
}

Date RecordingHost::now() const {
    if (clockError_)
        throw RuntimeError(*clockError_);
    return now_;
}

QLocale RecordingHost::locale() const {
    return QLocale(QLocale::English, QLocale::UnitedKingdom);
}

QString RecordingHost::shortDate(Date date) const {
    return toQDate(date).toString(QStringLiteral("dd/MM/yyyy"));
}

QString RecordingHost::shortTime(Date date) const {
    return toQTime(date).toString(QStringLiteral("HH:mm"));
}

std::optional<RegistryValue> RecordingHost::registryValue(Long root, const QString& key,
                                                          const QString& name) const {
    const auto found = registry_.find({root, key, name});
    return found == registry_.end() ? std::nullopt : std::optional(found->second);
}

void RecordingHost::startProgram(const QString& path) {
    if (expectedStarts_.empty() || expectedStarts_.front().path != path) {
        ADD_FAILURE() << "An unexpected start of a program: " << qPrintable(path);
        return;
    }
    const std::optional<ErrorNumber> error = expectedStarts_.front().error;
    expectedStarts_.erase(expectedStarts_.begin());
    if (error)
        throw RuntimeError(*error);
}

void RecordingHost::showHelp(QObject*, const QString& fileName) {
    if (expectedHelp_.empty() || expectedHelp_.front() != fileName) {
        ADD_FAILURE() << "Unexpected help: " << qPrintable(fileName);
        return;
    }
    expectedHelp_.erase(expectedHelp_.begin());
}

Answer RecordingHost::showMessage(const Message& message) {
    if (exitCode_)
        return Answer::Ok;
    messages_.push_back(message);
    if (onMessage_)
        onMessage_();
    if (expected_.empty() || expected_.front().text != message.text) {
        ADD_FAILURE() << "An unexpected box: " << qPrintable(message.text);
        return message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
    }
    const Answer answer = expected_.front().answer;
    expected_.erase(expected_.begin());
    return answer;
}

std::optional<ChosenFile> RecordingHost::chooseFile(const FileQuestion& question) {
    fileQuestions_.push_back(question);
    if (expectedFiles_.empty()) {
        ADD_FAILURE() << "An unexpected question for a file: " << qPrintable(question.title);
        return std::nullopt;
    }
    const std::optional<ChosenFile> answer = expectedFiles_.front();
    expectedFiles_.erase(expectedFiles_.begin());
    return answer;
}

std::unique_ptr<Printer> RecordingHost::printer() {
    if (!onPrinter_)
        throw RuntimeError(ErrorNumber::Printer);
    return onPrinter_();
}

void RecordingHost::paintWindows() {
    if (onPaintWindows_)
        onPaintWindows_();
}

void RecordingHost::yield() {
    ++yields_;
    if (onYield_)
        onYield_();
}

void RecordingHost::endProcess(int exitCode) {
    if (!exitCode_)
        exitCode_ = exitCode;
}
