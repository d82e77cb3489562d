// The fixed day, and the record of boxes.
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
}

void RecordingHost::expectMessage(const QString& text, Answer answer) {
    expected_.push_back({text, answer});
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

Answer RecordingHost::showMessage(const Message& message) {
    if (exitCode_)
        return Answer::Ok;
    messages_.push_back(message);
    if (expected_.empty() || expected_.front().text != message.text) {
        ADD_FAILURE() << "An unexpected box: " << qPrintable(message.text);
        return message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
    }
    const Answer answer = expected_.front().answer;
    expected_.erase(expected_.begin());
    return answer;
}

void RecordingHost::paintWindows() {
    if (onPaintWindows_)
        onPaintWindows_();
}

void RecordingHost::endProcess(int exitCode) {
    if (!exitCode_)
        exitCode_ = exitCode;
}
