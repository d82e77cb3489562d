// The drop-down menu of a toolbar's button.
#include "controls/button_menu.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QToolBar>
#include <QToolButton>

#include "support/errors.h"
#include "support/printing.h"
#include "support/recording_host.h"

namespace {

class ButtonMenuTest : public testing::Test {
  protected:
    ButtonMenuTest() {
        menu_.Add(QStringLiteral("AddFaves"), QStringLiteral("Add to Favourites"));
        menu_.Add(QStringLiteral("sep"), QStringLiteral("-"));
        menu_.Add({}, QStringLiteral("Smith & Sons"));
        QObject::connect(&menu_, &ButtonMenu::ButtonMenuClick, &menu_,
                         [this](int index) { clicked_.push_back(index); });
    }

    // What the user sees when the menu opens.
    QList<QAction*> shown() {
        Q_EMIT menu_.aboutToShow();
        return menu_.actions();
    }

    ButtonMenu menu_;
    std::vector<int> clicked_;
};

TEST_F(ButtonMenuTest, CountsItsEntriesFromOne) {
    EXPECT_EQ(menu_.Count(), 3);
    EXPECT_EQ(menu_.Key(1), QStringLiteral("AddFaves"));
    EXPECT_EQ(menu_.Text(3), QStringLiteral("Smith & Sons"));
    for (const int index : {0, 4}) {
        EXPECT_EQ(errorOf([&] { menu_.Key(index); }), 35600);
        EXPECT_EQ(errorOf([&] { menu_.Text(index); }), 35600);
        EXPECT_EQ(errorOf([&] { menu_.Remove(index); }), 35600);
    }
}

TEST_F(ButtonMenuTest, DropsFromTheButtonOfAToolbar) {
    QToolBar bar;
    bar.addAction(QStringLiteral("Help"));
    QAction& faves = *bar.addAction(QStringLiteral("Favourites"));
    const QToolButton& button = menu_.dropFrom(bar, faves);
    EXPECT_EQ(&button, bar.widgetForAction(&faves));
    EXPECT_EQ(button.menu(), &menu_);
    EXPECT_EQ(button.popupMode(), QToolButton::InstantPopup);
}

TEST_F(ButtonMenuTest, ShowsTextsAsTheyAreAndTheDashAsASeparator) {
    const QList<QAction*> entries = shown();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0]->text(), QStringLiteral("Add to Favourites"));
    EXPECT_TRUE(entries[1]->isSeparator());
    EXPECT_EQ(entries[2]->text(), QStringLiteral("Smith && Sons"));
}

TEST_F(ButtonMenuTest, TellsWhichEntryIsClicked) {
    shown()[2]->trigger();
    shown()[0]->trigger();
    EXPECT_EQ(clicked_, (std::vector<int>{3, 1}));
}

TEST_F(ButtonMenuTest, ShowsWhatIsAddedAndRemovedWhenItOpensNext) {
    shown();
    menu_.Remove(1);
    menu_.Add({}, QStringLiteral("Zed"));
    EXPECT_EQ(shown().size(), 3);
    EXPECT_EQ(shown()[2]->text(), QStringLiteral("Zed"));
    shown()[2]->trigger();
    EXPECT_EQ(clicked_, std::vector<int>{3});
}

TEST_F(ButtonMenuTest, StaysInOneColumnHoweverLong) {
    for (int entry = 0; entry < 500; ++entry)
        menu_.Add({}, QStringLiteral("Zed"));
    const QList<QAction*> entries = shown();
    menu_.popup({0, 0});
    EXPECT_EQ(menu_.actionGeometry(entries.front()).left(),
              menu_.actionGeometry(entries.back()).left());
    menu_.close();
}

TEST_F(ButtonMenuTest, IsEmptyWhenItHasBeenCleared) {
    menu_.Clear();
    EXPECT_EQ(menu_.Count(), 0);
    EXPECT_TRUE(shown().isEmpty());
}

}  // namespace
