// The machine's host: clock, short forms, the program's place, other instances, the end.
#include "runtime/machine_host.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <filesystem>

#include "cycles/calendar.h"
#include "runtime/bare_machine_host.h"
#include "runtime/qt_dates.h"

using modCycles::DateSerial;

namespace {

// A machine of the given locale.
class LocalHost final : public BareMachineHost {
  public:
    explicit LocalHost(const QString& name) : locale_(name) {}
    QLocale locale() const override { return locale_; }

  private:
    QLocale locale_;
};

// The machine's time zone, so many hours after Greenwich, for as long as it lives.
class ZoneOfHours {
  public:
    explicit ZoneOfHours(int hours) { qputenv("TZ", "UTC-" + QByteArray::number(hours)); }
    ~ZoneOfHours() { wasSet_ ? qputenv("TZ", before_) : qunsetenv("TZ"); }
    Q_DISABLE_COPY_MOVE(ZoneOfHours)

  private:
    const bool wasSet_ = qEnvironmentVariableIsSet("TZ");
    const QByteArray before_ = qgetenv("TZ");
};

Date hoursAfterGreenwich(int hours) {
    return fromQDateTime(QDateTime::currentDateTimeUtc().addSecs(qint64{3600} * hours));
}

QString shortDateIn(const QString& locale) {
    return LocalHost(locale).shortDate(DateSerial(1900, 3, 4));
}

// A process of the probe, which lives until it is told to end.
class Probe {
  public:
    explicit Probe(const QString& executable) {
        process_.start(executable, {});
        process_.waitForReadyRead();
        answer_ = QString::fromLatin1(process_.readLine()).trimmed();
    }
    ~Probe() { end(); }
    Q_DISABLE_COPY_MOVE(Probe)

    QString answer() const { return answer_; }

    void end() {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }

    void kill() {
        process_.kill();
        process_.waitForFinished();
    }

  private:
    QProcess process_;
    QString answer_;
};

// Executable files of the test's own, so that no other test's processes are instances of them.
class AnotherInstance : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        ASSERT_TRUE(QFile::copy(QStringLiteral(ONDARA_INSTANCE_PROBE), program_));
    }

    QString pathOf(const QString& name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
    const QString program_ = pathOf(QFileInfo(QStringLiteral(ONDARA_INSTANCE_PROBE)).fileName());
    const QString alone_ = QStringLiteral("alone");
    const QString notAlone_ = QStringLiteral("not alone");
};

}  // namespace

TEST(MachineHost, ReadsTheClockInTheLocalTimeZone) {
#ifdef Q_OS_WIN
    GTEST_SKIP() << "Windows has one time zone for all programs, and a test must not set it";
#endif
    const ZoneOfHours zone(5);
    const Date before = hoursAfterGreenwich(5);
    const Date now = BareMachineHost().now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, hoursAfterGreenwich(5));
}

TEST(MachineHost, WritesAShortDateInTheOrderOfTheLocale) {
    EXPECT_EQ(shortDateIn(QStringLiteral("en_GB")), QStringLiteral("04/03/1900"));
    EXPECT_EQ(shortDateIn(QStringLiteral("sv_SE")), QStringLiteral("1900-03-04"));
}

TEST(MachineHost, WritesTheYearOfAShortDateInFourDigits) {
    EXPECT_EQ(shortDateIn(QStringLiteral("en_US")), QStringLiteral("3/4/1900"));
    EXPECT_EQ(shortDateIn(QStringLiteral("de_DE")), QStringLiteral("04.03.1900"));
}

TEST(MachineHost, WritesAShortTimeWithoutSeconds) {
    const LocalHost host(QStringLiteral("en_GB"));
    EXPECT_EQ(host.shortTime(DateSerial(2000, 3, 14) + 845.0 / 1440), QStringLiteral("14:05"));
}

TEST(MachineHost, FindsTheProgramWhereItsExecutableIsAndNotInTheWorkingDirectory) {
    const QString workingDirectory = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QDir::rootPath()));
    const QString directory = BareMachineHost().programDirectory();
    QDir::setCurrent(workingDirectory);
    EXPECT_EQ(directory, QFileInfo(QCoreApplication::applicationFilePath()).absolutePath());
    EXPECT_FALSE(directory.endsWith(QLatin1Char('/')));
}

TEST(MachineHostDeathTest, EndsTheProcessAtOnceWithTheGivenCode) {
    EXPECT_EXIT(BareMachineHost().endProcess(1), testing::ExitedWithCode(1), "");
}

TEST_F(AnotherInstance, IsNotTheProcessItself) {
    EXPECT_EQ(Probe(program_).answer(), alone_);
}

TEST_F(AnotherInstance, IsAProcessOfTheSameExecutable) {
    Probe first(program_);
    EXPECT_EQ(Probe(program_).answer(), notAlone_);
}

TEST_F(AnotherInstance, CountsNoMoreOnceItHasEnded) {
    Probe first(program_);
    first.end();
    EXPECT_EQ(Probe(program_).answer(), alone_);
}

TEST_F(AnotherInstance, CountsNoMoreOnceItWasKilled) {
    Probe first(program_);
    first.kill();
    EXPECT_EQ(Probe(program_).answer(), alone_);
}

TEST_F(AnotherInstance, IsNoCopyOfTheExecutable) {
    const QString copy = pathOf(QStringLiteral("copy.exe"));
    ASSERT_TRUE(QFile::copy(program_, copy));
    Probe first(program_);
    EXPECT_EQ(Probe(copy).answer(), alone_);
}

#ifdef Q_OS_LINUX

TEST_F(AnotherInstance, IsToldByTheFileAndNotByItsPath) {
    const QString hardLink = pathOf(QStringLiteral("hard link"));
    const QString softLink = pathOf(QStringLiteral("soft link"));
    std::filesystem::create_hard_link(program_.toStdString(), hardLink.toStdString());
    ASSERT_TRUE(QFile::link(program_, softLink));
    Probe first(program_);
    EXPECT_EQ(Probe(hardLink).answer(), notAlone_);
    EXPECT_EQ(Probe(softLink).answer(), notAlone_);
}

#endif
