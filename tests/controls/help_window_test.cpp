// The window of the help.
#include "controls/help_window.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QWindow>
#include <chrono>

#include "controls/help_browser.h"
#include "support/help_files.h"
#include "support/printing.h"
#include "support/widget_driver.h"

namespace {

class HelpWindowTest : public testing::Test {
  protected:
    HelpWindowTest() {
        files_.writeContents("<UL>" + HelpFiles::entry("Start", "") + "<UL>" +
                             HelpFiles::entry("First page", "a.html") +
                             HelpFiles::entry("Its end", "a.html#end") + "</UL>" +
                             HelpFiles::entry("Second page", "b.html") +
                             HelpFiles::entry("Second page again", "b.html") +
                             HelpFiles::entry("Missing", "missing.html") + "</UL>");
        files_.write(QStringLiteral("a.html"), "<p>A");
        files_.write(QStringLiteral("b.html"), "<p>B");
        files_.write(QStringLiteral("hidden.html"), "<p>Hidden");
    }

    HelpWindow& open() {
        window_ = std::make_unique<HelpWindow>(HelpFolder(files_.helpFile()));
        window_->show();
        return *window_;
    }

    QTreeWidget& contents() { return child<QTreeWidget>(*window_, QStringLiteral("contents")); }
    HelpBrowser& page() { return child<HelpBrowser>(*window_, QStringLiteral("page")); }

    QString chosen() {
        const auto* entry = contents().currentItem();
        return entry ? entry->text(0) : QString();
    }

    void choose(const QString& title) {
        const auto found = contents().findItems(title, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1) << qPrintable(title);
        click(*contents().viewport(), contents().visualItemRect(found[0]).center());
    }

    QAction& action(const QString& text) {
        for (QAction* found : window_->findChildren<QAction*>()) {
            if (found->text() == text)
                return *found;
        }
        throw std::invalid_argument("No such action: " + text.toStdString());
    }

    QWidget& backButton() {
        const auto& bar = *window_->findChild<QToolBar*>();
        return *bar.widgetForAction(&action(QStringLiteral("Back")));
    }

    HelpFiles files_;
    std::unique_ptr<HelpWindow> window_;
};

// The user's click, by the way that events of the window system take.
void clickThroughWindowSystem(const QWidget& widget) {
    QWidget& window = *widget.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(&window, widget.rect().center()));
}

TEST_F(HelpWindowTest, BeginsWithTheFirstPageOfTheContents) {
    open();
    EXPECT_EQ(window_->windowTitle(), QStringLiteral("Ondara Help"));
    EXPECT_EQ(page().toPlainText(), QStringLiteral("A"));
    EXPECT_EQ(chosen(), QStringLiteral("First page"));
}

TEST_F(HelpWindowTest, ShowsTheContentsInTheirLevels) {
    open();
    ASSERT_EQ(contents().topLevelItemCount(), 4);
    const QTreeWidgetItem* start = contents().topLevelItem(0);
    ASSERT_EQ(start->childCount(), 2);
    EXPECT_TRUE(start->isExpanded());
    EXPECT_EQ(start->child(1)->text(0), QStringLiteral("Its end"));
    EXPECT_EQ(contents().topLevelItem(1)->text(0), QStringLiteral("Second page"));
}

TEST_F(HelpWindowTest, ShowsThePageThatIsChosen) {
    open();
    choose(QStringLiteral("Second page again"));
    EXPECT_EQ(page().toPlainText(), QStringLiteral("B"));
    EXPECT_EQ(chosen(), QStringLiteral("Second page again"));
    choose(QStringLiteral("Its end"));
    EXPECT_EQ(page().source(),
              QUrl(files_.address(QStringLiteral("a.html")).toString() + QStringLiteral("#end")));
    EXPECT_EQ(chosen(), QStringLiteral("Its end"));
}

TEST_F(HelpWindowTest, KeepsThePageWhereTheChosenOneIsMissingOrThereIsNone) {
    open();
    choose(QStringLiteral("Missing"));
    EXPECT_EQ(page().toPlainText(), QStringLiteral("A"));
    choose(QStringLiteral("Start"));
    EXPECT_EQ(page().toPlainText(), QStringLiteral("A"));
}

TEST_F(HelpWindowTest, ChoosesInTheContentsWhereALinkLed) {
    open();
    page().setSource(QUrl(QStringLiteral("b.html")));
    EXPECT_EQ(chosen(), QStringLiteral("Second page"));
    page().setSource(QUrl(QStringLiteral("a.html#middle")));
    EXPECT_EQ(chosen(), QStringLiteral("First page"));
    page().setSource(QUrl(QStringLiteral("hidden.html")));
    EXPECT_EQ(page().toPlainText(), QStringLiteral("Hidden"));
    EXPECT_EQ(chosen(), QString());
    choose(QStringLiteral("First page"));
    EXPECT_EQ(page().toPlainText(), QStringLiteral("A"));
}

TEST_F(HelpWindowTest, StaysAtThePartOfAPageWhereALinkLed) {
    files_.write(QStringLiteral("b.html"),
                 "<p>B" + QByteArray("<p>Line").repeated(200) + "<p><a name='end'>End</a>");
    open();
    page().setSource(QUrl(QStringLiteral("b.html#end")));
    EXPECT_EQ(chosen(), QStringLiteral("Second page"));
    EXPECT_GT(page().verticalScrollBar()->value(), 0);
}

TEST_F(HelpWindowTest, GoesBackAndForward) {
    open();
    QAction& back = action(QStringLiteral("Back"));
    QAction& forward = action(QStringLiteral("Forward"));
    EXPECT_FALSE(back.isEnabled());
    EXPECT_FALSE(forward.isEnabled());
    choose(QStringLiteral("Second page"));
    ASSERT_TRUE(back.isEnabled());
    back.trigger();
    EXPECT_EQ(page().toPlainText(), QStringLiteral("A"));
    EXPECT_EQ(chosen(), QStringLiteral("First page"));
    EXPECT_FALSE(back.isEnabled());
    ASSERT_TRUE(forward.isEnabled());
    forward.trigger();
    EXPECT_EQ(page().toPlainText(), QStringLiteral("B"));
}

TEST_F(HelpWindowTest, TellsWhoCannotSeeItWhatItsPartsAre) {
    open();
    EXPECT_EQ(contents().accessibleName(), QStringLiteral("Contents"));
    EXPECT_EQ(page().accessibleName(), QStringLiteral("Page"));
    EXPECT_FALSE(action(QStringLiteral("Back")).icon().isNull());
    EXPECT_FALSE(action(QStringLiteral("Forward")).icon().isNull());
}

TEST_F(HelpWindowTest, ClosesOnEscFromEitherSide) {
    open();
    pressKey(page(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
    window_->show();
    pressKey(contents(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(HelpWindowTest, HasNoContentsWithoutEntries) {
    EXPECT_TRUE(open().hasContents());
    files_.writeContents("\x01\xFF no contents");
    EXPECT_FALSE(open().hasContents());
}

TEST_F(HelpWindowTest, ShowsAnEmptyPageWhereTheFirstIsMissing) {
    files_.writeContents(HelpFiles::entry("Missing", "missing.html"));
    open();
    EXPECT_TRUE(window_->hasContents());
    EXPECT_EQ(page().toPlainText(), QString());
}

TEST_F(HelpWindowTest, LetsTheProgramEndWithTheLastOtherWindow) {
    QWidget form;
    form.show();
    open();
    QTimer::singleShot(0, &form, &QWidget::close);
    QTimer::singleShot(std::chrono::seconds(30), &form, [] { QApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(HelpWindowTest, CanBeUsedWhileAModalWindowIsOpen) {
    open();
    QWidget form;
    form.setWindowModality(Qt::ApplicationModal);
    form.show();
    choose(QStringLiteral("Second page"));
    EXPECT_EQ(page().toPlainText(), QStringLiteral("B"));
    clickThroughWindowSystem(backButton());
    EXPECT_EQ(page().toPlainText(), QStringLiteral("A"));
}

TEST_F(HelpWindowTest, CanBeUsedWhenTheBoxOverAModalWindowHasGone) {
    QWidget form;
    form.setWindowModality(Qt::ApplicationModal);
    form.show();
    open();
    auto box = std::make_unique<QWidget>(&form, Qt::Dialog);
    box->setWindowModality(Qt::ApplicationModal);
    box->show();
    box.reset();
    choose(QStringLiteral("Second page"));
    clickThroughWindowSystem(backButton());
    EXPECT_EQ(page().toPlainText(), QStringLiteral("A"));
}

}  // namespace
