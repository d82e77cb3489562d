// The judgement of a database file before it is used.
#include "store/file_condition.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

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
    EXPECT_FALSE(conditionOf(directory.filePath(QStringLiteral("none"))).exists);
    EXPECT_TRUE(conditionOf(directory.path()).isFolder);

    QFile file(directory.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(conditionOf(file.fileName()).isEmpty);
    file.write("x");
    file.close();
    const FileCondition condition = conditionOf(file.fileName());
    EXPECT_TRUE(condition.exists && condition.isWritable && condition.canHaveJournal);
    EXPECT_FALSE(condition.isFolder || condition.isEmpty);
}

TEST(ConditionOf, TellsFilesAndFoldersThatCannotBeWritten) {
    QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    file.setPermissions(QFile::ReadOwner);
    QFile::setPermissions(directory.path(), QFile::ReadOwner | QFile::ExeOwner);
    const FileCondition condition = conditionOf(file.fileName());
    QFile::setPermissions(directory.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (condition.isWritable)
        GTEST_SKIP() << "This user may write whatever the permissions say";
    EXPECT_FALSE(condition.isWritable);
    EXPECT_FALSE(condition.canHaveJournal);
}
