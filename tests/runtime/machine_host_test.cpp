// The machine's host: clock, short forms, the program's place, registry, processes, the end.
#include "runtime/machine_host.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <filesystem>

#include "cycles/calendar.h"
#include "runtime/bare_machine_host.h"
#include "runtime/qt_dates.h"
#include "support/errors.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

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

// A program that leaves a file where it was started, in a folder with a blank in its name.
class AProgram : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(QDir().mkdir(folder_.filePath(QStringLiteral("a folder"))));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ONDARA_START_PROBE), program_));
    }

    int errorOfStart(const QString& path) {
        return errorOf([&] { BareMachineHost().startProgram(path); });
    }

    // Waits until the program has left its file, but not for ever.
    bool leavesItsFile() const {
        QFileSystemWatcher watcher({QFileInfo(program_).path()});
        QEventLoop change;
        QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &change,
                         &QEventLoop::quit);
        QTimer patience;
        patience.setSingleShot(true);
        QObject::connect(&patience, &QTimer::timeout, &change, &QEventLoop::quit);
        patience.start(std::chrono::seconds(30));
        const QString file = program_ + QStringLiteral(".started");
        while (!QFile::exists(file) && patience.isActive())
            change.exec();
        return QFile::exists(file);
    }

    QTemporaryDir folder_;
    const QString program_ = folder_.filePath(
        QStringLiteral("a folder/") + QFileInfo(QStringLiteral(ONDARA_START_PROBE)).fileName());
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

#ifdef Q_OS_WIN

namespace {

constexpr Long kCurrentUser = static_cast<Long>(0x80000001);

// A key of this user's for as long as it lives.
class RegistryOfWindows : public testing::Test {
  protected:
    ~RegistryOfWindows() override { RegDeleteKeyA(HKEY_CURRENT_USER, "Ondara test"); }

    void write(DWORD type, const QByteArray& data) {
        ASSERT_EQ(RegSetKeyValueA(HKEY_CURRENT_USER, "Ondara test", "Value", type, data.constData(),
                                  static_cast<DWORD>(data.size())),
                  ERROR_SUCCESS);
    }

    static std::optional<RegistryValue> read(const QString& name = QStringLiteral("value")) {
        return BareMachineHost().registryValue(kCurrentUser, QStringLiteral("ONDARA test"), name);
    }
};

}  // namespace

TEST_F(RegistryOfWindows, GivesATextWithItsZero) {
    write(REG_SZ, QByteArray("C:\\tool.exe", 12));
    ASSERT_TRUE(read());
    EXPECT_EQ(read()->type, RegistryType::Text);
    EXPECT_EQ(read()->data, QByteArray("C:\\tool.exe", 12));
}

TEST_F(RegistryOfWindows, GivesANumberFromItsLowByte) {
    write(REG_DWORD, QByteArray("\x0a\0\0\x80", 4));
    ASSERT_TRUE(read());
    EXPECT_EQ(read()->type, RegistryType::Number);
    EXPECT_EQ(read()->data, QByteArray("\x0a\0\0\x80", 4));
}

TEST_F(RegistryOfWindows, GivesValuesOf1024CharactersAndNoneBeyond) {
    write(REG_BINARY, QByteArray(1024, 'x'));
    ASSERT_TRUE(read());
    EXPECT_EQ(read()->data.size(), 1024);
    write(REG_BINARY, QByteArray(1025, 'x'));
    EXPECT_FALSE(read());
}

TEST_F(RegistryOfWindows, GivesNothingForAKeyOrAValueThatIsNotThere) {
    EXPECT_FALSE(read());
    write(REG_SZ, "text");
    EXPECT_FALSE(read(QStringLiteral("another")));
}

#else

TEST(MachineHost, HasNoRegistry) {
    constexpr auto kLocalMachine = static_cast<Long>(0x80000002);
    EXPECT_FALSE(BareMachineHost().registryValue(kLocalMachine, QStringLiteral("SOFTWARE"), {}));
}

#endif

TEST_F(AProgram, IsStartedByItsPathWithBlanksInIt) {
    EXPECT_EQ(errorOfStart(program_), 0);
    EXPECT_TRUE(leavesItsFile());
}

TEST_F(AProgram, ThatIsNotThereIsAnError) {
    EXPECT_EQ(errorOfStart(folder_.filePath(QStringLiteral("missing.exe"))), 53);
    EXPECT_EQ(errorOfStart({}), 53);
}

TEST_F(AProgram, ThatIsAFolderIsAnError) {
    EXPECT_NE(errorOfStart(folder_.path()), 0);
}

#ifdef Q_OS_LINUX

TEST_F(AProgram, ThatNobodyMayStartIsAnError) {
    ASSERT_TRUE(QFile::setPermissions(program_, QFile::ReadOwner));
    EXPECT_EQ(errorOfStart(program_), 70);
}

#endif

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
