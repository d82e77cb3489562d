// A new file in the place of an old one, step by step.
#include "store/replacement.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/files.h"
#include "support/printing.h"

namespace {

class ReplacementTest : public testing::Test {
  protected:
    void SetUp() override { makeFile(path_, kOld); }

    QString path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    QStringList files() const { return filesIn(folder_.path()); }

    static QStringList names(std::initializer_list<const char*> names) {
        QStringList all;
        for (const char* name : names)
            all += QLatin1String(name);
        return all;
    }

    // All of the steps.
    void replace() const {
        Replacement replacement(path_);
        makeFile(replacement.newPath(), kNew);
        replacement.keepOld(QStringLiteral("Jet"));
        replacement.addText(QStringLiteral("left out"), "names");
        replacement.commit();
    }

    void expectReplaced() const {
        EXPECT_EQ(fileBytes(path_), kNew);
        EXPECT_EQ(fileBytes(path("a (Jet).mdb")), kOld);
        EXPECT_EQ(fileBytes(path("a (left out).txt")), "names");
        EXPECT_EQ(files(), names({"a (Jet).mdb", "a (left out).txt", "a.mdb"}));
    }

    static inline const QByteArray kOld = QByteArray("old\0file", 8).repeated(400'000);
    static inline const QByteArray kNew = "new";

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("a.mdb"));
};

}  // namespace

TEST_F(ReplacementTest, PutsTheNewFileInPlaceAndKeepsTheOldOne) {
    replace();
    expectReplaced();
}

TEST_F(ReplacementTest, NamesWhatItMakes) {
    Replacement replacement(path_);
    EXPECT_EQ(replacement.keepOld(QStringLiteral("Jet")), u"a (Jet).mdb");
    EXPECT_EQ(replacement.addText(QStringLiteral("left out"), "names"), u"a (left out).txt");
    EXPECT_EQ(QFileInfo(replacement.newPath()).path(), folder_.path());
    EXPECT_FALSE(QFile::exists(replacement.newPath()));
}

TEST_F(ReplacementTest, LeavesNothingWithoutItsEnd) {
    {
        Replacement replacement(path_);
        makeFile(replacement.newPath(), kNew);
        makeFile(replacement.newPath() + QStringLiteral("-journal"));
        replacement.keepOld(QStringLiteral("Jet"));
        replacement.addText(QStringLiteral("left out"), "names");
    }
    EXPECT_EQ(files(), names({"a.mdb"}));
    EXPECT_EQ(fileBytes(path_), kOld);
}

TEST_F(ReplacementTest, OverwritesNothing) {
    makeFile(path("a (Jet).mdb"), "another");
    makeFile(path("A (JET 2).MDB"), "a third");
    makeFile(path("a (left out).txt"), "others");
    replace();
    EXPECT_EQ(fileBytes(path("a (Jet).mdb")), "another");
    EXPECT_EQ(fileBytes(path("A (JET 2).MDB")), "a third");
    EXPECT_EQ(fileBytes(path("a (Jet 3).mdb")), kOld);
    EXPECT_EQ(fileBytes(path("a (left out).txt")), "others");
    EXPECT_EQ(fileBytes(path("a (left out 2).txt")), "names");
    EXPECT_EQ(fileBytes(path_), kNew);
}

TEST_F(ReplacementTest, TakesAFileOfOtherContentsAndTheSameSizeForAnother) {
    QByteArray nearly = kOld;
    nearly.back() = '!';
    makeFile(path("a (Jet).mdb"), nearly);
    makeFile(path("a (left out).txt"), "Names");
    replace();
    EXPECT_EQ(fileBytes(path("a (Jet).mdb")), nearly);
    EXPECT_EQ(fileBytes(path("a (Jet 2).mdb")), kOld);
    EXPECT_EQ(fileBytes(path("a (left out).txt")), "Names");
    EXPECT_EQ(fileBytes(path("a (left out 2).txt")), "names");
}

TEST_F(ReplacementTest, GoesRoundAFolderOfTheName) {
    QDir(folder_.path()).mkdir(QStringLiteral("a (Jet).mdb"));
    QDir(folder_.path()).mkdir(QStringLiteral("a (left out).txt"));
    const QByteArray asLarge(QFileInfo(path("a (Jet).mdb")).size(), 'x');
    makeFile(path_, asLarge);
    Replacement replacement(path_);
    EXPECT_EQ(replacement.keepOld(QStringLiteral("Jet")), u"a (Jet 2).mdb");
    EXPECT_EQ(replacement.addText(QStringLiteral("left out"), asLarge), u"a (left out 2).txt");
}

TEST_F(ReplacementTest, UsesOrRemovesWhatAStoppedOneLeft) {
    makeFile(path("a.mdb.new"), "half a file");
    makeFile(path("a.mdb.new-journal"), "its journal");
    makeFile(path("a.mdb.half"), "half a copy");
    {
        const Replacement replacement(path_);
        EXPECT_EQ(files(), names({"a.mdb"}));
    }
    replace();
    expectReplaced();

    makeFile(path_, kOld);
    makeFile(path("a.mdb.new"), kNew);
    replace();
    expectReplaced();
}

TEST_F(ReplacementTest, KeepsWhatAStoppedOneLeftWhereItIsStoppedItself) {
    makeFile(path("a (Jet).mdb"), kOld);
    makeFile(path("a (left out).txt"), "names");
    {
        Replacement replacement(path_);
        replacement.keepOld(QStringLiteral("Jet"));
        replacement.addText(QStringLiteral("left out"), "names");
    }
    EXPECT_EQ(files(), names({"a (Jet).mdb", "a (left out).txt", "a.mdb"}));
}

// Or SQLite would undo with it what has never been done.
TEST_F(ReplacementTest, LeavesNoJournalOfAnOlderFileBesideTheNewOne) {
    for (const char* name : {"a.mdb-journal", "a.mdb-wal", "a.mdb-shm"})
        makeFile(path(name), "of another database");
    replace();
    expectReplaced();
}

TEST_F(ReplacementTest, FailsBeforeAnythingWhereALeftoverStays) {
    QDir(folder_.path()).mkdir(QStringLiteral("a.mdb.new"));
    EXPECT_EQ(errorOf([this] { replace(); }), 75);
    EXPECT_EQ(files(), names({"a.mdb", "a.mdb.new"}));
}

TEST_F(ReplacementTest, LeavesEverythingAsItWasWhereTheLastStepFails) {
    const auto withoutNewFile = [this] {
        Replacement replacement(path_);
        replacement.keepOld(QStringLiteral("Jet"));
        replacement.addText(QStringLiteral("left out"), "names");
        replacement.commit();
    };
    EXPECT_EQ(errorOf(withoutNewFile), 75);
    EXPECT_TRUE(descriptionOf(withoutNewFile).endsWith(QDir::toNativeSeparators(path_)));
    EXPECT_EQ(files(), names({"a.mdb"}));
    EXPECT_EQ(fileBytes(path_), kOld);
}

TEST_F(ReplacementTest, LeavesNoHalfCopy) {
    const auto keepWhatIsGone = [this] {
        Replacement replacement(path_);
        QFile::remove(path_);
        replacement.keepOld(QStringLiteral("Jet"));
    };
    EXPECT_EQ(errorOf(keepWhatIsGone), 75);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(ReplacementTest, GivesBothFilesThePermissionsOfTheOldOne) {
    const auto own = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QFile::setPermissions(path_, QFile::ReadOwner | QFile::WriteOwner);
    if (QFile::permissions(path_) != own)
        GTEST_SKIP() << "The file system knows no such permissions.";
    replace();
    EXPECT_EQ(QFile::permissions(path_), own);
    EXPECT_EQ(QFile::permissions(path("a (Jet).mdb")), own);
}
