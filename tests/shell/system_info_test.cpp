// The system information tool, found by the registry.
#include "shell/system_info.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/recording_host.h"

using modCycles::GetKeyValue;
using modCycles::StartSysInfo;

namespace {

constexpr auto kLocalMachine = static_cast<Long>(0x80000002);
constexpr auto kText = RegistryType::Text;
constexpr auto kExpandableText = RegistryType{2};
constexpr auto kBinary = RegistryType{3};
constexpr auto kNumber = RegistryType::Number;

const QString kKey = QStringLiteral("SOFTWARE\\Ondara");
const QString kName = QStringLiteral("Value");
const QString kUnavailable = QStringLiteral("System Information Is Unavailable At This Time");

QByteArray bytes(std::initializer_list<int> values) {
    QByteArray result;
    for (int value : values)
        result += static_cast<char>(value);
    return result;
}

class RegistryValueOfTheKey : public testing::Test {
  protected:
    void write(RegistryType type, const QByteArray& data) {
        host_.setRegistryValue(kLocalMachine, kKey, kName, {type, data});
    }

    // What a successful reading makes of the text "before".
    QString read() {
        QString value = QStringLiteral("before");
        EXPECT_TRUE(GetKeyValue(kLocalMachine, kKey, kName, value));
        return value;
    }

    QString numberOf(std::initializer_list<int> values) {
        write(kNumber, bytes(values));
        return read();
    }

    int errorOfNumber(const QByteArray& data) {
        write(kNumber, data);
        return errorOf([this] { read(); });
    }

    RecordingHost host_;
};

class SysInfo : public testing::Test {
  protected:
    void setPath(RegistryType type, const QByteArray& data) {
        host_.setRegistryValue(kLocalMachine,
                               QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                               QStringLiteral("PATH"), {type, data});
    }

    void setFolder(RegistryType type, const QByteArray& data) {
        host_.setRegistryValue(kLocalMachine,
                               QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                               QStringLiteral("MSINFO"), {type, data});
    }

    // Only a box of this text and without anything else is the message.
    void expectUnavailable() {
        host_.expectMessage(kUnavailable);
        StartSysInfo();
        ASSERT_EQ(host_.messages().size(), 1U);
        EXPECT_EQ(host_.messages()[0].title, QString());
        EXPECT_EQ(host_.messages()[0].icon, MessageIcon::None);
        EXPECT_EQ(host_.messages()[0].buttons, MessageButtons::Ok);
    }

    RecordingHost host_;
    QTemporaryDir folder_;
    const QString tool_ = folder_.path() + QStringLiteral("\\MSINFO32.EXE");
};

}  // namespace

TEST_F(RegistryValueOfTheKey, IsATextWithoutTheZeroAtItsEnd) {
    write(kText, QByteArray("C:\\Tools\\msinfo32.exe\0", 22));
    EXPECT_EQ(read(), QStringLiteral("C:\\Tools\\msinfo32.exe"));
}

TEST_F(RegistryValueOfTheKey, LosesOneZeroOnly) {
    write(kText, QByteArray("tool\0\0", 6));
    EXPECT_EQ(read(), QString::fromLatin1("tool\0", 5));
    write(kText, QByteArray("to\0ol\0", 6));
    EXPECT_EQ(read(), QString::fromLatin1("to\0ol", 5));
}

TEST_F(RegistryValueOfTheKey, KeepsItsLastCharacterIfThatIsNoZero) {
    write(kText, "tool");
    EXPECT_EQ(read(), QStringLiteral("tool"));
}

TEST_F(RegistryValueOfTheKey, MayBeAnEmptyText) {
    write(kText, "");
    EXPECT_EQ(read(), QString());
    write(kText, QByteArray(1, '\0'));
    EXPECT_EQ(read(), QString());
}

TEST_F(RegistryValueOfTheKey, IsANumberFromItsHighestByteToItsLowest) {
    EXPECT_EQ(numberOf({0x78, 0x56, 0x34, 0x12}), QString::number(0x12345678));
    EXPECT_EQ(numberOf({0x0A, 0, 0, 0}), QStringLiteral("10"));
    EXPECT_EQ(numberOf({0, 0, 0, 0}), QStringLiteral("0"));
}

TEST_F(RegistryValueOfTheKey, IsANumberOfUnpaddedBytes) {
    EXPECT_EQ(numberOf({0x01, 0x02, 0x03, 0x04}), QString::number(0x4321));
    EXPECT_EQ(numberOf({0x00, 0x10, 0x00, 0x00}), QString::number(0x0100));
    EXPECT_EQ(numberOf({0x05, 0xA0, 0x00, 0x0B}), QString::number(0xB0A05));
}

TEST_F(RegistryValueOfTheKey, IsANumberWithoutASign) {
    EXPECT_EQ(numberOf({0xFF, 0xFF, 0, 0}), QStringLiteral("65535"));
    EXPECT_EQ(numberOf({0xFF, 0xFF, 0xFF, 0xFF}), QStringLiteral("4294967295"));
}

TEST_F(RegistryValueOfTheKey, IsNoNumberWithoutBytes) {
    EXPECT_EQ(errorOfNumber(""), 13);
    EXPECT_EQ(errorOfNumber(bytes({0})), 13);
}

TEST_F(RegistryValueOfTheKey, IsNoNumberBeyond32Bits) {
    EXPECT_EQ(errorOfNumber(bytes({0xFF, 0xFF, 0xFF, 0xFF, 1})), 6);
    EXPECT_EQ(errorOfNumber(QByteArray(1024, '\xFF')), 6);
    EXPECT_EQ(errorOfNumber(QByteArray(1024, '\0')), 0);
}

TEST_F(RegistryValueOfTheKey, IsNotTakenFromAnyOtherKind) {
    for (const RegistryType type :
         {RegistryType{0}, kExpandableText, kBinary, RegistryType{7}, RegistryType{0xFFFFFFFF}}) {
        write(type, "text");
        EXPECT_EQ(read(), QStringLiteral("before")) << static_cast<quint32>(type);
    }
}

TEST_F(RegistryValueOfTheKey, IsEmptyWhereNothingIsFound) {
    QString value = QStringLiteral("before");
    EXPECT_FALSE(GetKeyValue(kLocalMachine, kKey, kName, value));
    EXPECT_EQ(value, QString());
}

TEST_F(SysInfo, IsUnavailableWithoutEitherValue) {
    expectUnavailable();
}

TEST_F(SysInfo, StartsItsPathAsItIs) {
    setPath(kText, QByteArray("C:\\no such folder\\tool.exe\0", 27));
    host_.expectStart(QStringLiteral("C:\\no such folder\\tool.exe"));
    StartSysInfo();
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(SysInfo, PrefersItsPathToItsFolder) {
    ASSERT_TRUE(QFile(tool_).open(QIODevice::WriteOnly));
    setPath(kText, "C:\\tool.exe");
    setFolder(kText, folder_.path().toLocal8Bit());
    host_.expectStart(QStringLiteral("C:\\tool.exe"));
    StartSysInfo();
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(SysInfo, IsUnavailableWhereItsPathCannotBeStarted) {
    setPath(kText, "C:\\tool.exe");
    host_.expectStart(QStringLiteral("C:\\tool.exe"), ErrorNumber::PermissionDenied);
    expectUnavailable();
}

// The folder is not tried then: the path has been read.
TEST_F(SysInfo, IsUnavailableWhereItsPathIsNoText) {
    ASSERT_TRUE(QFile(tool_).open(QIODevice::WriteOnly));
    setPath(kExpandableText, "C:\\tool.exe");
    setFolder(kText, folder_.path().toLocal8Bit());
    host_.expectStart(QString(), ErrorNumber::FileNotFound);
    expectUnavailable();
}

TEST_F(SysInfo, IsUnavailableWhereItsPathIsNoNumberEither) {
    setPath(kNumber, "");
    expectUnavailable();
}

TEST_F(SysInfo, StartsTheToolInItsFolder) {
    ASSERT_TRUE(QFile(tool_).open(QIODevice::WriteOnly));
    setFolder(kText, folder_.path().toLocal8Bit() + '\0');
    host_.expectStart(tool_);
    StartSysInfo();
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(SysInfo, IsUnavailableWithoutTheToolInItsFolder) {
    setFolder(kText, folder_.path().toLocal8Bit());
    expectUnavailable();
}

TEST_F(SysInfo, IsUnavailableWhereTheToolIsAFolder) {
    ASSERT_TRUE(QDir().mkpath(tool_));
    setFolder(kText, folder_.path().toLocal8Bit());
    expectUnavailable();
}

TEST_F(SysInfo, IsUnavailableWhereTheToolInItsFolderCannotBeStarted) {
    ASSERT_TRUE(QFile(tool_).open(QIODevice::WriteOnly));
    setFolder(kText, folder_.path().toLocal8Bit());
    host_.expectStart(tool_, ErrorNumber::FileNotFound);
    expectUnavailable();
}
