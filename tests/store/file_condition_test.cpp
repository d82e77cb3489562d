// The judgement of a database file before it is used.
#include "store/file_condition.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/read_only_folder.h"

namespace {

const QString kPath = QStringLiteral("/people/Ondara2.mdb");

QString objectionText(const FileCondition& condition, Access access) {
    const auto objection = objectionTo(condition, access, kPath);
    return objection ? QString::number(objection->number) + u' ' + objection->description
                     : QString();
}

QString withPath(const char* text) {
    return QString::fromLatin1(text) + QDir::toNativeSeparators(kPath);
}

}  // namespace

TEST(ObjectionTo, IsNoneToAnOrdinaryFile) {
    EXPECT_EQ(objectionText({}, Access::Read), QString());
    EXPECT_EQ(objectionText({}, Access::ReadWrite), QString());
}

TEST(ObjectionTo, NamesWhatMakesAFileUselessForEitherAccess) {
    for (const Access access : {Access::Read, Access::ReadWrite}) {
        EXPECT_EQ(objectionText({.exists = false}, access),
                  withPath("53 File not found: there is no file of this name, "));
        EXPECT_EQ(objectionText({.isFolder = true}, access),
                  withPath("75 Path/File access error: it is a folder, "));
        EXPECT_EQ(objectionText({.isOther = true, .isEmpty = true}, access),
                  withPath("75 Path/File access error: it is no file, "));
        EXPECT_EQ(objectionText({.isEmpty = true}, access),
                  withPath("321 Invalid file format: the file is empty, "));
    }
}

TEST(ObjectionTo, NamesWhatKeepsAFileFromBeingWritten) {
    EXPECT_EQ(objectionText({.isWritable = false}, Access::ReadWrite),
              withPath("70 Permission denied: the file is read-only, "));
    EXPECT_EQ(objectionText({.canHaveJournal = false}, Access::ReadWrite),
              withPath("75 Path/File access error: no journal can be made in its folder, "));
}

TEST(ObjectionTo, LetsAFileThatCannotBeWrittenBeRead) {
    EXPECT_EQ(objectionText({.isWritable = false, .canHaveJournal = false}, Access::Read),
              QString());
}

TEST(ConditionOf, TellsFilesFoldersAndNothing) {
    QTemporaryDir directory;
    EXPECT_FALSE(conditionOf(directory.filePath(QStringLiteral("none")), Access::Read).exists);
    EXPECT_TRUE(conditionOf(directory.path(), Access::Read).isFolder);

    QFile file(directory.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(conditionOf(file.fileName(), Access::Read).isEmpty);
    file.write("x");
    file.close();
    const FileCondition condition = conditionOf(file.fileName(), Access::ReadWrite);
    EXPECT_TRUE(condition.exists && condition.isWritable && condition.canHaveJournal);
    EXPECT_FALSE(condition.isFolder || condition.isOther || condition.isEmpty);
}

#ifdef Q_OS_UNIX
TEST(ConditionOf, TellsDevices) {
    EXPECT_TRUE(conditionOf(QStringLiteral("/dev/null"), Access::Read).isOther);
    EXPECT_FALSE(conditionOf(QStringLiteral("/dev"), Access::Read).isOther);
    EXPECT_FALSE(conditionOf(QStringLiteral("/dev/none"), Access::Read).isOther);
}
#endif

TEST(ConditionOf, TellsFilesThatCannotBeWritten) {
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    file.setPermissions(QFile::ReadOwner);
    if (file.open(QIODevice::WriteOnly))
        GTEST_SKIP() << "This user may write whatever the permissions say";
    EXPECT_FALSE(conditionOf(file.fileName(), Access::ReadWrite).isWritable);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

TEST(ConditionOf, TellsFoldersThatCannotBeWrittenToThoseWhoWrite) {
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("file"));
    const ReadOnlyFolder folder(directory.path());
    if (!folder.holdsBack())
        GTEST_SKIP() << "This user may write whatever the permissions say";
    EXPECT_FALSE(conditionOf(path, Access::ReadWrite).canHaveJournal);
    EXPECT_TRUE(conditionOf(path, Access::Read).canHaveJournal);
}

TEST(ConditionOf, LeavesNothingInTheFolder) {
    QTemporaryDir directory;
    conditionOf(directory.filePath(QStringLiteral("file")), Access::ReadWrite);
    EXPECT_TRUE(QDir(directory.path()).isEmpty());
}
