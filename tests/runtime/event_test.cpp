// The event boundary, the error trap and the ignoring of errors.
#include "runtime/event.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <memory>
#include <stdexcept>

#include "cycles/calendar.h"
#include "support/recording_host.h"

using modCycles::DateSerial;

namespace {

// A form in little: a signal of its own name's change, and event routines that note their calls.
struct SmallForm : QObject {
    void nameChanged(const QString& name) { calls.append(name); }
    void changed() { calls.append(QStringLiteral("changed")); }
    void failing() {
        calls.append(QStringLiteral("before"));
        throw RuntimeError(ErrorNumber::FileNotFound);
    }

    QStringList calls;
};

[[noreturn]] void raise(ErrorNumber number) {
    throw RuntimeError(number);
}

const QString kReport = QStringLiteral(". Please report this error to the author.");

class Event : public testing::Test {
  protected:
    // The event that names the form.
    void fire(const QString& name) { form_.setObjectName(name); }

    RecordingHost host_;
    SmallForm form_;
};

class Trap : public testing::Test {
  protected:
    void expectReport(const QString& description) { host_.expectMessage(description + kReport); }

    RecordingHost host_;
};

}  // namespace

TEST_F(Event, RunsTheRoutineWithTheSignalsArgument) {
    onEvent(&form_, &QObject::objectNameChanged, &form_, &SmallForm::nameChanged);
    fire(QStringLiteral("frmMain"));
    EXPECT_EQ(form_.calls, QStringList{QStringLiteral("frmMain")});
}

TEST_F(Event, RunsARoutineThatTakesNoArgument) {
    onEvent(&form_, &QObject::objectNameChanged, &form_, &SmallForm::changed);
    fire(QStringLiteral("frmMain"));
    EXPECT_EQ(form_.calls, QStringList{QStringLiteral("changed")});
}

TEST_F(Event, NoLongerRunsOnceItsReceiverIsGone) {
    auto receiver = std::make_unique<SmallForm>();
    onEvent(&form_, &QObject::objectNameChanged, receiver.get(), &SmallForm::failing);
    receiver.reset();
    fire(QStringLiteral("frmMain"));
    EXPECT_EQ(host_.exitCode(), std::nullopt);
}

TEST_F(Event, EndsTheProcessWithTheRunTimesBoxOnAnErrorThatNobodyTraps) {
    onEvent(&form_, &QObject::objectNameChanged, &form_, &SmallForm::failing);
    host_.expectMessage(QStringLiteral("Run-time error '53':\n\nFile not found"));
    fire(QStringLiteral("frmMain"));
    ASSERT_EQ(host_.messages().size(), 1U);
    const Message& box = host_.messages().front();
    EXPECT_EQ(box.title, QStringLiteral("Ondara"));
    EXPECT_EQ(box.icon, MessageIcon::Critical);
    EXPECT_EQ(box.buttons, MessageButtons::Ok);
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_EQ(form_.calls, QStringList{QStringLiteral("before")});
}

TEST_F(Event, ShowsADescriptionThatHoldsAPlaceholderAsItStands) {
    host_.expectMessage(QStringLiteral("Run-time error '75':\n\n100 %1 %2"));
    runEvent([] { throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("100 %1 %2")); });
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(Event, TakesASumOfDatesBeyondTheRangeForAnOverflow) {
    host_.expectMessage(QStringLiteral("Run-time error '6':\n\nOverflow"));
    runEvent([] { DateSerial(9999, 12, 31) + 1; });
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(Event, TakesADateBuiltBeyondTheRangeForAnInvalidCall) {
    host_.expectMessage(
        QStringLiteral("Run-time error '5':\n\nInvalid procedure call or argument"));
    runEvent([] { DateSerial(9999, 12, 32); });
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(Event, HasItsOwnBoundaryInsideAnotherEvent) {
    host_.expectMessage(QStringLiteral("Run-time error '13':\n\nType mismatch"));
    bool outerCaught = false;
    runEvent([&] {
        try {
            runEvent([] { raise(ErrorNumber::TypeMismatch); });
        } catch (const RuntimeError&) {
            outerCaught = true;
        }
    });
    EXPECT_FALSE(outerCaught);
    EXPECT_EQ(host_.exitCode(), 1);
}

using EventDeathTest = Event;

TEST_F(EventDeathTest, TerminatesOnADefect) {
    EXPECT_DEATH(runEvent([] { throw std::logic_error("a defect"); }), "");
}

TEST_F(EventDeathTest, TerminatesOnADefectThatMeetsATrap) {
    EXPECT_DEATH(runEvent([] { trapped(nullptr, [] { throw std::logic_error("a defect"); }); }),
                 "");
}

TEST_F(Trap, TellsThatNothingWentWrong) {
    bool ran = false;
    EXPECT_FALSE(trapped(nullptr, [&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(Trap, EndsAnErrorInOneBoxWithoutTitleAndIcon) {
    QObject owner;
    expectReport(QStringLiteral("Division by zero"));
    EXPECT_TRUE(trapped(&owner, [] { raise(ErrorNumber::DivisionByZero); }));
    ASSERT_EQ(host_.messages().size(), 1U);
    const Message& box = host_.messages().front();
    EXPECT_EQ(box.title, QString());
    EXPECT_EQ(box.icon, MessageIcon::None);
    EXPECT_EQ(box.buttons, MessageButtons::Ok);
    EXPECT_EQ(box.owner, &owner);
    EXPECT_EQ(host_.exitCode(), std::nullopt);
}

TEST_F(Trap, LeavesWhatWasDoneBeforeTheErrorAndSkipsTheRest) {
    expectReport(QStringLiteral("Invalid use of Null"));
    QStringList drawn;
    trapped(nullptr, [&] {
        drawn.append(QStringLiteral("first"));
        raise(ErrorNumber::InvalidUseOfNull);
        drawn.append(QStringLiteral("second"));
    });
    EXPECT_EQ(drawn, QStringList{QStringLiteral("first")});
}

TEST_F(Trap, WritesOneFullStopAfterADescriptionThatHasItsOwn) {
    expectReport(QStringLiteral(
        "Item cannot be found in the collection corresponding to the requested name or ordinal"));
    EXPECT_TRUE(trapped(nullptr, [] { raise(ErrorNumber::ItemNotFound); }));
}

TEST_F(Trap, TakesTheErrorsOfTheArithmeticAsWell) {
    expectReport(QStringLiteral("Overflow"));
    EXPECT_TRUE(trapped(nullptr, [] { DateSerial(9999, 12, 31) + 1; }));
    expectReport(QStringLiteral("Invalid procedure call or argument"));
    EXPECT_TRUE(trapped(nullptr, [] { DateSerial(10000, 1, 1); }));
}

TEST_F(Trap, KeepsAnErrorFromTheBoundaryAroundIt) {
    expectReport(QStringLiteral("Disk full"));
    bool wentOn = false;
    runEvent([&] {
        trapped(nullptr, [] { raise(ErrorNumber::DiskFull); });
        wentOn = true;
    });
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(host_.exitCode(), std::nullopt);
}

TEST_F(Trap, EndsAnErrorOfTheNumberThatIsExpectedWithoutABox) {
    const auto cancel = [] { raise(ErrorNumber::Cancelled); };
    EXPECT_TRUE(trapped(nullptr, cancel, ErrorNumber::Cancelled));
    EXPECT_TRUE(host_.messages().empty());
    expectReport(QStringLiteral("Cancel was selected"));
    EXPECT_TRUE(trapped(nullptr, cancel, ErrorNumber::DiskFull));
}

TEST_F(Trap, GivesTheErrorToWhoHasWordsOfItsOwn) {
    EXPECT_EQ(errorEnding([] { raise(ErrorNumber::DiskFull); })->number, 61);
    EXPECT_EQ(errorEnding([] { DateSerial(9999, 12, 31) + 1; })->number, 6);
    EXPECT_FALSE(errorEnding([] {}));
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(Event, GoesOnWithTheNextStatementWhereErrorsAreIgnored) {
    QStringList ran;
    runEvent([&] {
        resumingNext([&] {
            ran.append(QStringLiteral("first"));
            raise(ErrorNumber::DiskFull);
        });
        resumingNext([] { DateSerial(9999, 12, 31) + 1; });
        resumingNext([&] { ran.append(QStringLiteral("last")); });
    });
    EXPECT_EQ(ran, QStringList({QStringLiteral("first"), QStringLiteral("last")}));
    EXPECT_TRUE(host_.messages().empty());
    EXPECT_EQ(host_.exitCode(), std::nullopt);
}

TEST_F(EventDeathTest, TerminatesOnADefectWhereErrorsAreIgnored) {
    EXPECT_DEATH(runEvent([] { resumingNext([] { throw std::logic_error("a defect"); }); }), "");
}
