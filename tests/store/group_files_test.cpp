// The group files in the program's directory.
#include "store/group_files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/recording_host.h"

namespace {

class GroupFiles : public testing::Test {
  protected:
    GroupFiles() { host_.setProgramDirectory(directory_.path()); }

    QByteArray bytesOf(const QString& name) {
        QFile file(directory_.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    void writeBytes(const QString& name, const QByteArray& bytes) {
        QFile file(directory_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir directory_;
    RecordingHost host_;
    const QString kFile = QStringLiteral("Friends.ofg");
    const PersonRecord kAnna{42, QStringLiteral("Smith, Anna")};
    const PersonRecord kBen{7, QStringLiteral("Adler, Ben")};
};

TEST_F(GroupFiles, HoldALineForEachMemberInTheOrderGiven) {
    writeGroup(kFile, {kAnna, kBen});
    EXPECT_EQ(bytesOf(kFile), "42,\"Smith, Anna\"\r\n7,\"Adler, Ben\"\r\n");
    EXPECT_EQ(readGroup(kFile), (std::vector{kAnna, kBen}));
}

TEST_F(GroupFiles, AreCalledAsTheGroupIsWithoutBlanksAtItsEnds) {
    EXPECT_EQ(groupPattern(), QStringLiteral("*.ofg"));
    EXPECT_EQ(groupFileName(QStringLiteral("  My Friends ")), QStringLiteral("My Friends.ofg"));
}

TEST_F(GroupFiles, AreReplacedByALaterGroupOfTheName) {
    writeGroup(kFile, {kAnna, kBen});
    writeGroup(kFile, {kBen});
    EXPECT_EQ(readGroup(kFile), std::vector{kBen});
}

TEST_F(GroupFiles, CanBeEmpty) {
    writeBytes(kFile, QByteArray());
    EXPECT_EQ(readGroup(kFile), std::vector<PersonRecord>());
}

TEST_F(GroupFiles, ThatBreakOffRaise62) {
    writeBytes(kFile, "42,\"Smith, Anna\"\r\n7,\"Adl");
    EXPECT_EQ(errorOf([&] { readGroup(kFile); }), 62);
}

TEST_F(GroupFiles, OfRandomBytesRaiseAnErrorOfTheirRecords) {
    writeBytes(kFile, QByteArray::fromHex("00ff80313b2c220a89504e47fffe2c222c"));
    EXPECT_EQ(errorOf([&] { readGroup(kFile); }), 13);
}

TEST_F(GroupFiles, OfWhatIsNoNameRaise52AndLeaveNothing) {
    EXPECT_EQ(errorOf([&] { writeGroup(QStringLiteral("a/b.ofg"), {kAnna}); }), 52);
    EXPECT_TRUE(QDir(directory_.path()).isEmpty());
}

TEST_F(GroupFiles, GoWithTheirFile) {
    writeGroup(kFile, {kAnna});
    deleteGroupFile(kFile);
    EXPECT_EQ(errorOf([&] { readGroup(kFile); }), 53);
}

}  // namespace
