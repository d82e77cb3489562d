// Small files: what is read, written, deleted and listed, and what cannot be.
#include "store/small_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/read_only_folder.h"

namespace {

class SmallFile : public testing::Test {
  protected:
    QByteArray bytesOf(const QString& name) { return fileBytes(folder_.filePath(name)); }

    void make(const QString& name, const QByteArray& bytes = {}) {
        makeFile(folder_.filePath(name), bytes);
    }

    void makeFolder(const QString& name) { ASSERT_TRUE(QDir(path()).mkdir(name)); }

    QString path() const { return folder_.path(); }
    QString read(const QString& name) { return readSmallFile(path(), name); }
    void write(const QString& name, const QString& text) { writeSmallFile(path(), name, text); }

    // All that the folder holds.
    QStringList entries() const {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }

    QTemporaryDir folder_;
    const QString kAnna = QStringLiteral("Smith, Anna.ofp");
};

TEST_F(SmallFile, HoldsTheTextInTheSystemsCodePage) {
    write(kAnna, QStringLiteral("42,\"Müller, Zoë\"\r\n"));
    EXPECT_EQ(bytesOf(kAnna), QByteArray("42,\"M\xFCller, Zo\xEB\"\r\n"));
    EXPECT_EQ(read(kAnna), QStringLiteral("42,\"Müller, Zoë\"\r\n"));
}

TEST_F(SmallFile, IsWrittenOverWithoutLeavingAnythingBeside) {
    write(kAnna, QStringLiteral("a long text"));
    write(kAnna, QStringLiteral("short"));
    EXPECT_EQ(bytesOf(kAnna), QByteArray("short"));
    EXPECT_EQ(entries(), QStringList(kAnna));
}

TEST_F(SmallFile, IsTheSameWhenItsNameDiffersInCaseAlone) {
    write(kAnna, QStringLiteral("old"));
    write(QStringLiteral("smith, anna.OFP"), QStringLiteral("new"));
    EXPECT_EQ(entries(), QStringList(kAnna));
    EXPECT_EQ(read(QStringLiteral("SMITH, ANNA.ofp")), QStringLiteral("new"));
    deleteSmallFile(path(), QStringLiteral("SMITH, ANNA.OFP"));
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(SmallFile, IsNotWrittenUnderANameThatASystemRefuses) {
    for (const char* name :
         {"", "AC/DC.ofp", "a\\b.ofp", "a:b.ofp", "a*.ofp", "a?.ofp", "a\"b.ofp", "a<b.ofp",
          "a>b.ofp", "a|b.ofp", "a\nb.ofp", "../up.ofp", "Con.ofp", "nul.ofp", "LPT1.a.ofp"})
        EXPECT_EQ(errorOf([&] { write(QString::fromLatin1(name), QStringLiteral("text")); }), 52)
            << name;
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(SmallFile, IsReadAndDeletedUnderAnyNameThatItHas) {
    const QString name = QStringLiteral("Doe: \"John\".ofp");
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        GTEST_SKIP() << "this system has no file of such a name";
    file.close();
    EXPECT_EQ(read(name), QString());
    deleteSmallFile(path(), name);
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(SmallFile, IsNeverOneOutsideItsFolder) {
    makeFolder(QStringLiteral("inside"));
    make(kAnna, "text");
    const QString inside = folder_.filePath(QStringLiteral("inside"));
    for (const QString& name :
         {QString(), QStringLiteral("../") + kAnna, folder_.filePath(kAnna)}) {
        EXPECT_EQ(errorOf([&] { readSmallFile(inside, name); }), 52);
        EXPECT_EQ(errorOf([&] { deleteSmallFile(inside, name); }), 52);
    }
    EXPECT_EQ(read(kAnna), QStringLiteral("text"));
}

TEST_F(SmallFile, MayBearANameThatOnlyBeginsLikeADevice) {
    for (const char* name : {"Conrad.ofp", "Com, Ada.ofp", "lpt0.ofp"})
        write(QString::fromLatin1(name), QStringLiteral("text"));
    EXPECT_EQ(entries().size(), 3);
}

TEST_F(SmallFile, ThatIsGoneRaises53) {
    EXPECT_EQ(descriptionOf([&] { read(kAnna); }),
              QStringLiteral("File not found: there is no file of this name, ") +
                  QDir::toNativeSeparators(folder_.filePath(kAnna)));
    EXPECT_EQ(errorOf([&] { read(kAnna); }), 53);
    EXPECT_EQ(errorOf([&] { deleteSmallFile(path(), kAnna); }), 53);
}

TEST_F(SmallFile, ThatIsAFolderRaises75AndStays) {
    makeFolder(kAnna);
    EXPECT_EQ(errorOf([&] { read(kAnna); }), 75);
    EXPECT_EQ(errorOf([&] { write(kAnna, QStringLiteral("text")); }), 75);
    EXPECT_EQ(errorOf([&] { deleteSmallFile(path(), kAnna); }), 75);
    EXPECT_EQ(entries(), QStringList(kAnna));
}

TEST_F(SmallFile, ThatMayNotBeReadRaises75) {
    make(kAnna, "text");
    QFile file(folder_.filePath(kAnna));
    file.setPermissions({});
    if (file.open(QIODevice::ReadOnly))
        GTEST_SKIP() << "this user may read whatever the permissions say";
    EXPECT_EQ(errorOf([&] { read(kAnna); }), 75);
}

TEST_F(SmallFile, InAFolderThatMayNotBeWrittenRaises75AndStaysAsItWas) {
    make(kAnna, "old");
    const ReadOnlyFolder readOnly(path());
    if (!readOnly.holdsBack())
        GTEST_SKIP() << "this user may write whatever the permissions say";
    EXPECT_EQ(errorOf([&] { write(QStringLiteral("new.ofp"), QStringLiteral("text")); }), 75);
    EXPECT_EQ(errorOf([&] { deleteSmallFile(path(), kAnna); }), 75);
    EXPECT_EQ(bytesOf(kAnna), QByteArray("old"));
}

TEST_F(SmallFile, MuchTooLargeRaises321AndIsNotRead) {
    make(kAnna);
    ASSERT_TRUE(QFile::resize(folder_.filePath(kAnna), qint64{1} << 40));
    EXPECT_EQ(errorOf([&] { read(kAnna); }), 321);
}

TEST_F(SmallFile, OfMegabytesIsRead) {
    make(kAnna, QByteArray(5'000'000, '\x07'));
    EXPECT_EQ(read(kAnna), QString(5'000'000, u'\x07'));
}

TEST_F(SmallFile, IsListedByItsExtensionInWhateverCase) {
    make(QStringLiteral("smith, anna.OFP"));
    make(QStringLiteral("a.b.ofp"));
    make(QStringLiteral("team.ofg"));
    make(QStringLiteral("ofp"));
    makeFolder(QStringLiteral("folder.ofp"));
    QStringList names = smallFiles(path(), QStringLiteral(".ofp"));
    names.sort();
    EXPECT_EQ(names, QStringList({QStringLiteral("a.b.ofp"), QStringLiteral("smith, anna.OFP")}));
}

TEST_F(SmallFile, OfAFolderThatIsGoneAreNone) {
    EXPECT_EQ(smallFiles(path() + QStringLiteral("/gone"), QStringLiteral(".ofp")), QStringList());
}

}  // namespace
