// The group files in the program's directory.
#include "store/group_files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/recording_host.h"

namespace {

class GroupFiles : public testing::Test {
  protected:
    GroupFiles() { host_.setProgramDirectory(directory_.path()); }

    QByteArray bytesOf(const QString& name) { return fileBytes(directory_.filePath(name)); }

    void writeBytes(const QString& name, const QByteArray& bytes) {
        makeFile(directory_.filePath(name), bytes);
    }

    using Members = std::vector<PersonRecord>;

    static void write(const QString& name, const Members& members) {
        GroupWriter file(name);
        for (const PersonRecord& member : members)
            file.Write(member);
        file.Close();
    }

    static Members read(const QString& name) {
        Members members;
        readGroup(name, [&](const PersonRecord& member) { members.push_back(member); });
        return members;
    }

    QStringList entries() const {
        return QDir(directory_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QTemporaryDir directory_;
    RecordingHost host_;
    const QString kFile = QStringLiteral("Friends.ofg");
    const PersonRecord kAnna{42, QStringLiteral("Smith, Anna")};
    const PersonRecord kBen{7, QStringLiteral("Adler, Ben")};
};

TEST_F(GroupFiles, HoldALineForEachMemberInTheOrderGiven) {
    write(kFile, {kAnna, kBen});
    EXPECT_EQ(bytesOf(kFile), "42,\"Smith, Anna\"\r\n7,\"Adler, Ben\"\r\n");
    EXPECT_EQ(read(kFile), (Members{kAnna, kBen}));
}

TEST_F(GroupFiles, AreCalledAsTheGroupIsWithoutBlanksAtItsEnds) {
    EXPECT_EQ(groupPattern(), QStringLiteral("*.ofg"));
    EXPECT_EQ(groupFileName(QStringLiteral("  My Friends ")), QStringLiteral("My Friends.ofg"));
}

TEST_F(GroupFiles, AreReplacedByALaterGroupOfTheName) {
    write(kFile, {kAnna, kBen});
    write(kFile, {kBen});
    EXPECT_EQ(read(kFile), Members{kBen});
}

TEST_F(GroupFiles, CanBeEmpty) {
    writeBytes(kFile, QByteArray());
    EXPECT_EQ(read(kFile), Members());
}

TEST_F(GroupFiles, ThatBreakOffRaise62) {
    writeBytes(kFile, "42,\"Smith, Anna\"\r\n7,\"Adl");
    EXPECT_EQ(errorOf([&] { read(kFile); }), 62);
}

TEST_F(GroupFiles, OfRandomBytesRaiseAnErrorOfTheirRecords) {
    writeBytes(kFile, QByteArray::fromHex("00ff80313b2c220a89504e47fffe2c222c"));
    EXPECT_EQ(errorOf([&] { read(kFile); }), 13);
}

TEST_F(GroupFiles, OfWhatIsNoNameRaise52BeforeAnyMemberAndLeaveNothing) {
    for (const char* name : {"a/b.ofg", "a:b.ofg"})
        EXPECT_EQ(errorOf([&] { GroupWriter file(QString::fromLatin1(name)); }), 52) << name;
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(GroupFiles, AreWholeUntilTheGroupThatReplacesThemIsClosed) {
    write(kFile, {kAnna, kBen});
    {
        GroupWriter file(kFile);
        file.Write(kBen);
        EXPECT_EQ(read(kFile), (Members{kAnna, kBen}));
    }
    EXPECT_EQ(read(kFile), (Members{kAnna, kBen}));
    EXPECT_EQ(entries(), QStringList(kFile));
}

TEST_F(GroupFiles, GoWithTheirFile) {
    write(kFile, {kAnna});
    deleteGroupFile(kFile);
    EXPECT_EQ(errorOf([&] { read(kFile); }), 53);
}

}  // namespace
