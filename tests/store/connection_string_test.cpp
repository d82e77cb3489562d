// The connection string and the file it names.
#include "store/connection_string.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/files.h"

namespace {

// Folders whose names hold these characters exist on some systems only.
bool makeFolder(const QString& path) {
    return QDir().mkpath(path) && QDir(path).exists();
}

}  // namespace

TEST(DataSource, ReachesToTheLastSemicolon) {
    EXPECT_EQ(dataSource(QStringLiteral("PROVIDER=x;Data Source=/a;b/c\\d.mdb;")),
              QStringLiteral("/a;b/c\\d.mdb"));
}

TEST(DataSource, ReachesToTheEndWithoutASemicolon) {
    EXPECT_EQ(dataSource(QStringLiteral("PROVIDER=x;Data Source=/a/d.mdb")),
              QStringLiteral("/a/d.mdb"));
}

TEST(DataSource, IsFoundHoweverItsNameIsWritten) {
    EXPECT_EQ(dataSource(QStringLiteral("Provider=x;DATA SOURCE=/d.mdb;")),
              QStringLiteral("/d.mdb"));
}

TEST(DataSource, RaisesBadFileNameWhereThereIsNone) {
    EXPECT_EQ(errorOf([] { dataSource(QStringLiteral("PROVIDER=x;")); }), 52);
}

TEST(PathOfDataSource, TakesABackslashForASeparatorOnEverySystem) {
    QTemporaryDir directory;
    ASSERT_TRUE(makeFolder(directory.filePath(QStringLiteral("one/two"))));
    const QString wanted = directory.filePath(QStringLiteral("one/two/People.mdb"));
    makeFile(wanted);
    EXPECT_EQ(pathOfDataSource(directory.path() + QStringLiteral("\\one\\two\\People.mdb")),
              wanted);
    EXPECT_EQ(pathOfDataSource(directory.path() + QStringLiteral("/one\\two/People.mdb")), wanted);
}

TEST(PathOfDataSource, EntersAFolderWhoseNameHoldsABackslashOrASemicolon) {
    QTemporaryDir directory;
    for (const QString& name : {QStringLiteral("back\\slash"), QStringLiteral("semi;colon")}) {
        const QString folder = directory.path() + u'/' + name;
        if (!makeFolder(folder))
            GTEST_SKIP() << "This system has no folder named " << qPrintable(name);
        makeFile(folder + QStringLiteral("/People.mdb"));
        EXPECT_EQ(QFileInfo(pathOfDataSource(folder + QStringLiteral("\\People.mdb"))),
                  QFileInfo(folder + QStringLiteral("/People.mdb")));
    }
}

TEST(PathOfDataSource, MatchesTheFileNameWithoutRegardToCase) {
    QTemporaryDir directory;
    makeFile(directory.filePath(QStringLiteral("ONDARA2.MDB")));
    const QString found = pathOfDataSource(directory.path() + QStringLiteral("\\Ondara2.mdb"));
    EXPECT_TRUE(QFile::exists(found));
    EXPECT_EQ(found.toLower(), directory.filePath(QStringLiteral("ondara2.mdb")).toLower());
}

TEST(PathOfDataSource, PrefersTheFileOfTheVeryName) {
    QTemporaryDir directory;
    for (const QString& name : {QStringLiteral("ONDARA2.MDB"), QStringLiteral("Ondara2.mdb"),
                                QStringLiteral("ondara2.mdb")})
        makeFile(directory.filePath(name));
    EXPECT_EQ(pathOfDataSource(directory.path() + QStringLiteral("\\Ondara2.mdb")),
              directory.filePath(QStringLiteral("Ondara2.mdb")));
}

TEST(PathOfDataSource, NamesAMissingFileAsItIsWritten) {
    QTemporaryDir directory;
    EXPECT_EQ(pathOfDataSource(directory.path() + QStringLiteral("\\Ondara2.mdb")),
              directory.filePath(QStringLiteral("Ondara2.mdb")));
}
