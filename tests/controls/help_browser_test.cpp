// The view of one page of the help.
#include "controls/help_browser.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>

#include "support/help_files.h"
#include "support/printing.h"

namespace {

QByteArray redPicture() {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer file;
    image.save(&file, "PNG");
    return file.data();
}

QByteArray pageStyledBy(const QByteArray& sheet) {
    return "<html><head><link rel=\"stylesheet\" type=\"text/css\" href=\"" + sheet +
           "\"/></head><body><p>A</p></body></html>";
}

class HelpBrowserTest : public testing::Test {
  protected:
    HelpBrowserTest() {
        files_.write(QStringLiteral("a.html"), "<p>A");
        files_.write(QStringLiteral("more/b.html"), "<p>B");
        files_.write(QStringLiteral("../outside.html"), "<p>Outside");
        files_.write(QStringLiteral("picture.png"), redPicture());
        files_.write(QStringLiteral("../outside.png"), redPicture());
    }

    HelpBrowser& browser() {
        if (!browser_)
            browser_ = std::make_unique<HelpBrowser>(HelpFolder(files_.helpFile()));
        return *browser_;
    }

    void open(const QString& name) { browser().setSource(files_.address(name)); }
    void follow(const char* link) { browser().setSource(QUrl(QString::fromLatin1(link))); }
    QString text() { return browser().toPlainText(); }

    bool isItalic() {
        QTextCursor behindFirstLetter(browser().document());
        behindFirstLetter.setPosition(1);
        return behindFirstLetter.charFormat().fontItalic();
    }

    QImage picture(const QString& name) {
        return qvariant_cast<QImage>(
            browser().loadResource(QTextDocument::ImageResource, QUrl(name)));
    }

    HelpFiles files_;

  private:
    std::unique_ptr<HelpBrowser> browser_;
};

TEST_F(HelpBrowserTest, FollowsLinksBetweenPagesAndGoesBackAndForward) {
    open(QStringLiteral("a.html"));
    follow("more/b.html");
    EXPECT_EQ(text(), QStringLiteral("B"));
    follow("../a.html");
    EXPECT_EQ(text(), QStringLiteral("A"));
    browser().backward();
    EXPECT_EQ(text(), QStringLiteral("B"));
    browser().forward();
    EXPECT_EQ(text(), QStringLiteral("A"));
}

TEST_F(HelpBrowserTest, OpensNothingThatIsNoPageOfTheFolder) {
    open(QStringLiteral("a.html"));
    const QUrl before = browser().source();
    for (const char* link :
         {"missing.html", "../outside.html", "http://localhost/", "file:///etc/passwd",
          "picture.png", "javascript:alert(1)", "mailto:anna@localhost", "data:text/html,B", ""}) {
        follow(link);
        EXPECT_EQ(text(), QStringLiteral("A")) << link;
        EXPECT_EQ(browser().source(), before) << link;
        EXPECT_FALSE(browser().isBackwardAvailable()) << link;
    }
}

TEST_F(HelpBrowserTest, GoesToAPartOfThePage) {
    files_.write(QStringLiteral("long.html"),
                 "<p>Top" + QByteArray("<p>Line").repeated(200) + "<p><a name='end'>End</a>");
    browser().resize(300, 200);
    browser().show();
    open(QStringLiteral("long.html"));
    EXPECT_EQ(browser().cursorForPosition({20, 20}).block().text(), QStringLiteral("Top"));
    follow("#end");
    EXPECT_EQ(browser().source().fragment(), QStringLiteral("end"));
    EXPECT_EQ(browser().cursorForPosition({20, 190}).block().text(), QStringLiteral("End"));
}

TEST_F(HelpBrowserTest, ShowsPicturesOfTheFolder) {
    open(QStringLiteral("more/b.html"));
    EXPECT_EQ(picture(QStringLiteral("../picture.png")).size(), QSize(40, 30));
}

TEST_F(HelpBrowserTest, LeavesThePlaceOfAnyOtherPictureEmpty) {
    files_.write(QStringLiteral("damaged.png"), redPicture().left(20));
    open(QStringLiteral("a.html"));
    for (const char* name : {"../outside.png", "missing.png", "damaged.png", "a.html",
                             "http://localhost/picture.png", "qrc:/art/about.png"}) {
        const QImage image = picture(QString::fromLatin1(name));
        ASSERT_EQ(image.size(), QSize(1, 1)) << name;
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << name;
    }
}

// What Qt is not given, it looks for by itself.
TEST_F(HelpBrowserTest, LeavesQtNoPictureToLookForByItself) {
    const QUrl outside = files_.address(QStringLiteral("../outside.png"));
    files_.write(QStringLiteral("c.html"), "<img src='" + outside.toEncoded() + "'>");
    open(QStringLiteral("c.html"));
    const auto image = qvariant_cast<QImage>(
        browser().document()->resource(QTextDocument::ImageResource, outside));
    EXPECT_EQ(image.size(), QSize(1, 1));
}

TEST_F(HelpBrowserTest, TakesStyleSheetsOfTheFolderAlone) {
    files_.write(QStringLiteral("style.css"), "p { font-style: italic }");
    files_.write(QStringLiteral("../style.css"), "p { font-style: italic }");
    files_.write(QStringLiteral("styled.html"), pageStyledBy("style.css"));
    files_.write(QStringLiteral("plain.html"), pageStyledBy("../style.css"));
    open(QStringLiteral("styled.html"));
    EXPECT_TRUE(isItalic());
    open(QStringLiteral("plain.html"));
    EXPECT_FALSE(isItalic());
}

TEST_F(HelpBrowserTest, ShowsAnEmptyPage) {
    files_.write(QStringLiteral("empty.html"), "");
    open(QStringLiteral("a.html"));
    open(QStringLiteral("empty.html"));
    EXPECT_EQ(text(), QString());
}

TEST_F(HelpBrowserTest, OutlivesPagesAndPicturesOfRandomBytes) {
    QRandomGenerator random(20000314);
    browser().resize(500, 400);
    browser().show();
    for (int size : {1, 10, 100, 1000, 10'000, 100'000}) {
        QByteArray bytes(size, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random.bounded(256));
        const QString name = QStringLiteral("random%1.html").arg(size);
        files_.write(name, bytes);
        files_.write(QStringLiteral("random.png"), redPicture().left(33) + bytes);
        open(name);
        EXPECT_EQ(browser().source(), files_.address(name));
        EXPECT_FALSE(browser().grab().isNull());
        EXPECT_FALSE(picture(QStringLiteral("random.png")).isNull());
    }
}

// A page with many bytes changed, again and again: what a damaged disk makes of it.
TEST_F(HelpBrowserTest, OutlivesDamagedPages) {
    const QByteArray page =
        "<html><head><title>T</title><style>p { color: red }</style></head><body><h1>H</h1>"
        "<ul><li>One<li>Two</ul><table border=1 width=80%><tr><td colspan=2>x<td>y</table>"
        "<p><a href='more/b.html'>B</a> <img src='picture.png' width=40></p></body></html>";
    QRandomGenerator random(1582);
    browser().resize(500, 400);
    browser().show();
    for (int round = 0; round < 200; ++round) {
        QByteArray damaged = page;
        for (int change = 0; change < 8; ++change)
            damaged[random.bounded(static_cast<int>(page.size()))] =
                static_cast<char>(random.bounded(256));
        const QString name = QStringLiteral("damaged%1.html").arg(round);
        files_.write(name, damaged);
        open(name);
        EXPECT_FALSE(browser().grab().isNull());
    }
}

}  // namespace
