// What may be read of the folder of the help.
#include "controls/help_folder.h"

#include <gtest/gtest.h>

#ifdef Q_OS_LINUX
#include <sys/stat.h>
#endif

#include "support/help_files.h"
#include "support/printing.h"

namespace {

class HelpFolderTest : public testing::Test {
  protected:
    HelpFolderTest() {
        files_.write(QStringLiteral("a.html"), "<p>A");
        files_.write(QStringLiteral("charts/days.htm"), "<p>Days");
        files_.write(QStringLiteral("picture.png"), "PNG");
        files_.write(QStringLiteral("../outside.html"), "<p>Outside");
        files_.write(QStringLiteral("../test2/outside.html"), "<p>Outside");
    }

    HelpFolder folder() const { return HelpFolder(files_.helpFile()); }

    bool hasPage(const QString& name) const { return folder().hasPage(files_.address(name)); }

    HelpFiles files_;
};

constexpr int kLargest = 1024 * 1024;

TEST_F(HelpFolderTest, HasPagesInItselfAndInFoldersBelow) {
    EXPECT_TRUE(hasPage(QStringLiteral("a.html")));
    EXPECT_TRUE(hasPage(QStringLiteral("charts/days.htm")));
    EXPECT_EQ(folder().read(files_.address(QStringLiteral("charts/days.htm"))), "<p>Days");
}

TEST_F(HelpFolderTest, HasNoPageThatIsNotThereOrIsNoPage) {
    files_.write(QStringLiteral("folder.html/inner.html"), "");
    EXPECT_FALSE(hasPage(QStringLiteral("missing.html")));
    EXPECT_FALSE(hasPage(QStringLiteral("folder.html")));
    EXPECT_FALSE(hasPage(QStringLiteral("picture.png")));
    EXPECT_FALSE(hasPage(QString()));
}

TEST_F(HelpFolderTest, ReadsPicturesToo) {
    EXPECT_EQ(folder().read(files_.address(QStringLiteral("picture.png"))), "PNG");
}

TEST_F(HelpFolderTest, ReadsNothingOutside) {
    for (const char* name : {"../outside.html", "charts/../../outside.html",
                             "../test2/outside.html", "../test/../outside.html"}) {
        const QUrl address = files_.address(QString::fromLatin1(name));
        ASSERT_TRUE(QFile::exists(address.toLocalFile())) << name;
        EXPECT_FALSE(folder().hasPage(address)) << name;
        EXPECT_EQ(folder().read(address), QByteArray()) << name;
    }
}

TEST_F(HelpFolderTest, ReadsNothingFromElsewhereThanFiles) {
    for (const char* address :
         {"http://localhost/a.html", "qrc:/art/about.png", "a.html", "data:text/html,a.html", ""}) {
        EXPECT_FALSE(folder().hasPage(QUrl(QString::fromLatin1(address)))) << address;
        EXPECT_EQ(folder().read(QUrl(QString::fromLatin1(address))), QByteArray()) << address;
    }
}

TEST_F(HelpFolderTest, ReadsNoFileThatIsTooLarge) {
    files_.write(QStringLiteral("largest.html"), QByteArray(kLargest, 'x'));
    files_.write(QStringLiteral("larger.html"), QByteArray(kLargest + 1, 'x'));
    EXPECT_TRUE(hasPage(QStringLiteral("largest.html")));
    EXPECT_FALSE(hasPage(QStringLiteral("larger.html")));
    EXPECT_EQ(folder().read(files_.address(QStringLiteral("larger.html"))), QByteArray());
}

TEST_F(HelpFolderTest, HasItsContentsInTheFileOfItsName) {
    files_.writeContents("<UL>" + HelpFiles::entry("A", "a.html") + "</UL>");
    const std::vector<HelpTopic> expected{{QStringLiteral("A"), QStringLiteral("a.html"), 0}};
    EXPECT_EQ(folder().topics(), expected);
}

TEST_F(HelpFolderTest, HasNoContentsWithoutThatFileOrWithOneThatIsTooLarge) {
    EXPECT_TRUE(folder().topics().empty());
    files_.writeContents(HelpFiles::entry("A", "a.html") + QByteArray(kLargest, ' '));
    EXPECT_TRUE(folder().topics().empty());
}

TEST_F(HelpFolderTest, FindsThePagesOfItsContentsWithEitherSlash) {
    const auto addressOf = [&](const char* page) {
        return folder().addressOf({QStringLiteral("Title"), QString::fromLatin1(page), 0});
    };
    EXPECT_EQ(addressOf("charts/days.htm"), files_.address(QStringLiteral("charts/days.htm")));
    EXPECT_EQ(addressOf("charts\\days.htm"), files_.address(QStringLiteral("charts/days.htm")));
    EXPECT_EQ(addressOf("a.html#part").fragment(), QStringLiteral("part"));
    EXPECT_TRUE(folder().hasPage(addressOf("a.html#part")));
    EXPECT_FALSE(folder().hasPage(addressOf("..\\outside.html")));
    EXPECT_FALSE(folder().hasPage(addressOf("http://localhost/a.html")));
}

TEST_F(HelpFolderTest, IsLookedForInTheCurrentDirectory) {
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QFileInfo(files_.helpFile()).path()));
    const HelpFolder folder(QStringLiteral("test.chm"));
    QDir::setCurrent(before);
    EXPECT_TRUE(folder.hasPage(files_.address(QStringLiteral("a.html"))));
}

TEST(HelpFolder, IsEmptyWhereThereIsNone) {
    const HelpFiles files;
    const HelpFolder folder(files.helpFile());
    EXPECT_TRUE(folder.topics().empty());
    EXPECT_FALSE(folder.hasPage(files.address(QStringLiteral("a.html"))));
    files.write(QStringLiteral("../outside.html"), "<p>Outside");
    const QUrl outside = files.address(QStringLiteral("../outside.html"));
    EXPECT_FALSE(folder.hasPage(outside));
    EXPECT_EQ(folder.read(outside), QByteArray());
}

#ifdef Q_OS_LINUX

TEST_F(HelpFolderTest, FollowsNoLinkOfTheFileSystemOutside) {
    ASSERT_TRUE(QFile::link(files_.path(QStringLiteral("../outside.html")),
                            files_.path(QStringLiteral("link.html"))));
    EXPECT_FALSE(hasPage(QStringLiteral("link.html")));
}

TEST_F(HelpFolderTest, WaitsForNoPipe) {
    ASSERT_EQ(mkfifo(qPrintable(files_.path(QStringLiteral("pipe.html"))), 0600), 0);
    EXPECT_FALSE(hasPage(QStringLiteral("pipe.html")));
    EXPECT_EQ(folder().read(files_.address(QStringLiteral("pipe.html"))), QByteArray());
}

#endif

}  // namespace
