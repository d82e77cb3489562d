// The strip of items of which one is chosen.
#include "controls/button_bar.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QLineEdit>
#include <utility>
#include <vector>

#include "runtime/event.h"
#include "support/errors.h"
#include "support/printing.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

using Clicks = std::vector<std::pair<int, int>>;

// Records the clicks as a form hears them.
class ClickRecord : public QObject {
  public:
    explicit ClickRecord(ButtonBar& bar) {
        onEvent(&bar, &ButtonBar::Click, this, &ClickRecord::add);
    }

    Clicks taken() { return std::exchange(clicks_, {}); }

  private:
    void add(int group, int item) { clicks_.emplace_back(group, item); }

    Clicks clicks_;
};

QIcon plainIcon(Qt::GlobalColor colour) {
    QPixmap picture(24, 24);
    picture.fill(colour);
    return QIcon(picture);
}

class ButtonBarTest : public testing::Test {
  protected:
    ButtonBarTest() {
        bar_.setObjectName(QStringLiteral("bbFood"));
        bar_.setGroup(QStringLiteral("Food"), {{QStringLiteral("Bread"), plainIcon(Qt::red)},
                                               {QStringLiteral("&Cheese"), plainIcon(Qt::green)},
                                               {QStringLiteral("Wine"), plainIcon(Qt::blue)}});
        bar_.show();
    }

    QAbstractButton& item(int number) {
        return child<QAbstractButton>(bar_, QStringLiteral("bbFood_%1").arg(number));
    }

    std::vector<bool> checked() {
        return {item(1).isChecked(), item(2).isChecked(), item(3).isChecked()};
    }

    QImage picture(int number) { return item(number).grab().toImage(); }

    RecordingHost host_;
    ButtonBar bar_;
    ClickRecord clicks_{bar_};
};

const std::vector<bool> kFirst{true, false, false};
const std::vector<bool> kSecond{false, true, false};

}  // namespace

TEST_F(ButtonBarTest, ShowsItsItemsFromLeftToRightByCaptionAndIcon) {
    EXPECT_EQ(item(1).text(), QStringLiteral("Bread"));
    EXPECT_LT(item(1).x(), item(2).x());
    EXPECT_LT(item(2).x(), item(3).x());
    const QImage first = picture(1);
    EXPECT_EQ(first.pixelColor(24, first.height() / 2), QColor(Qt::red));
}

TEST_F(ButtonBarTest, BeginsWithTheFirstItemChosenAndFiresNothing) {
    EXPECT_EQ(bar_.ChosenItem(), 1);
    EXPECT_EQ(checked(), kFirst);
    EXPECT_EQ(clicks_.taken(), Clicks());
}

TEST_F(ButtonBarTest, FiresClickWithGroupAndItemCountedFromOne) {
    click(item(2));
    EXPECT_EQ(clicks_.taken(), (Clicks{{1, 2}}));
    EXPECT_EQ(bar_.ChosenItem(), 2);
    EXPECT_EQ(checked(), kSecond);
}

TEST_F(ButtonBarTest, HasChosenTheItemByTheTimeOfTheClick) {
    int chosen = 0;
    QObject::connect(&bar_, &ButtonBar::Click, [&] { chosen = bar_.ChosenItem(); });
    click(item(3));
    EXPECT_EQ(chosen, 3);
}

TEST_F(ButtonBarTest, FiresClickForTheChosenItemTooAndKeepsItChosen) {
    click(item(1));
    EXPECT_EQ(clicks_.taken(), (Clicks{{1, 1}}));
    EXPECT_EQ(checked(), kFirst);
}

TEST_F(ButtonBarTest, FiresNothingForAnItemThatCodeChooses) {
    bar_.setChosenItem(2);
    EXPECT_EQ(checked(), kSecond);
    EXPECT_EQ(clicks_.taken(), Clicks());
}

TEST_F(ButtonBarTest, FiresNothingForADisabledItem) {
    bar_.setItemEnabled(2, false);
    click(item(2));
    EXPECT_EQ(clicks_.taken(), Clicks());
    EXPECT_EQ(checked(), kFirst);
    EXPECT_FALSE(bar_.isItemEnabled(2));
    EXPECT_TRUE(bar_.isItemEnabled(1));
    bar_.setItemEnabled(2, true);
    click(item(2));
    EXPECT_EQ(clicks_.taken(), (Clicks{{1, 2}}));
}

TEST_F(ButtonBarTest, KeepsAnItemChosenThatIsDisabled) {
    bar_.setItemEnabled(1, false);
    EXPECT_EQ(bar_.ChosenItem(), 1);
    EXPECT_EQ(checked(), kFirst);
    EXPECT_EQ(clicks_.taken(), Clicks());
}

TEST_F(ButtonBarTest, MakesTheChosenItemStandOut) {
    const QImage chosen = picture(1);
    bar_.setChosenItem(2);
    EXPECT_NE(picture(1), chosen);
    const QPoint mark(chosen.width() / 2, chosen.height() - 1);
    EXPECT_EQ(chosen.pixelColor(mark), bar_.palette().color(QPalette::Highlight));
    EXPECT_NE(picture(1).pixelColor(mark), bar_.palette().color(QPalette::Highlight));
}

TEST_F(ButtonBarTest, ShowsThatAnItemIsDisabled) {
    const QImage enabled = picture(2);
    bar_.setItemEnabled(2, false);
    EXPECT_NE(picture(2), enabled);
}

TEST_F(ButtonBarTest, IsWalkedAlongByTheArrowKeysAndStopsAtItsEnds) {
    pressKey(item(1), Qt::Key_Right);
    pressKey(item(2), Qt::Key_Down);
    pressKey(item(3), Qt::Key_Right);
    EXPECT_EQ(clicks_.taken(), (Clicks{{1, 2}, {1, 3}}));
    pressKey(item(3), Qt::Key_Left);
    pressKey(item(2), Qt::Key_Up);
    pressKey(item(1), Qt::Key_Left);
    EXPECT_EQ(clicks_.taken(), (Clicks{{1, 2}, {1, 1}}));
}

TEST_F(ButtonBarTest, IsWalkedPastItemsThatAreDisabled) {
    bar_.setItemEnabled(2, false);
    pressKey(item(1), Qt::Key_Right);
    EXPECT_EQ(clicks_.taken(), (Clicks{{1, 3}}));
    bar_.setItemEnabled(1, false);
    pressKey(item(3), Qt::Key_Left);
    EXPECT_EQ(clicks_.taken(), Clicks());
    EXPECT_EQ(bar_.ChosenItem(), 3);
}

TEST_F(ButtonBarTest, FiresClickForTheBlankAndHasTheMnemonicsOfItsCaptions) {
    pressKey(item(3), Qt::Key_Space);
    EXPECT_EQ(clicks_.taken(), (Clicks{{1, 3}}));
    EXPECT_EQ(item(2).shortcut(), QKeySequence(Qt::ALT | Qt::Key_C));
}

TEST_F(ButtonBarTest, LetsTabComeToTheChosenItemAlone) {
    bar_.setChosenItem(2);
    EXPECT_FALSE(item(1).focusPolicy() & Qt::TabFocus);
    EXPECT_TRUE(item(2).focusPolicy() & Qt::TabFocus);
}

TEST_F(ButtonBarTest, HandsTheFocusOnToTheChosenItem) {
    bar_.setChosenItem(2);
    EXPECT_EQ(bar_.focusProxy(), &item(2));
}

TEST_F(ButtonBarTest, HasItsItemsWhereItStandsItselfInTheOrderOfTab) {
    QWidget window;
    auto* before = new QLineEdit(&window);
    auto* bar = new ButtonBar(&window);
    auto* behind = new QLineEdit(&window);
    bar->setGroup({}, {{QStringLiteral("One"), {}}, {QStringLiteral("Two"), {}}});
    EXPECT_EQ(before->nextInFocusChain(), bar);
    EXPECT_EQ(bar->nextInFocusChain()->nextInFocusChain()->nextInFocusChain(), behind);
    QWidget::setTabOrder(behind, bar);
    EXPECT_EQ(window.nextInFocusChain()->nextInFocusChain(), behind);
}

TEST_F(ButtonBarTest, IsReadOutByTheCaptionOfItsGroupAndThoseOfItsItems) {
    const auto name = [](QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    };
    EXPECT_EQ(name(bar_), QStringLiteral("Food"));
    EXPECT_EQ(name(item(2)), QStringLiteral("Cheese"));
}

TEST_F(ButtonBarTest, BeginsAnewWithAnotherGroup) {
    bar_.setChosenItem(3);
    bar_.setGroup(QStringLiteral("Tools"), {{QStringLiteral("Saw"), {}}});
    EXPECT_EQ(bar_.ChosenItem(), 1);
    EXPECT_EQ(item(1).text(), QStringLiteral("Saw"));
    EXPECT_TRUE(item(1).isChecked());
    EXPECT_EQ(bar_.findChildren<QAbstractButton*>().size(), 1);
}

TEST_F(ButtonBarTest, RaisesForAnItemThatIsNotThere) {
    for (const int missing : {0, 4}) {
        EXPECT_EQ(errorOf([&] { bar_.setChosenItem(missing); }), 381);
        EXPECT_EQ(errorOf([&] { bar_.setItemEnabled(missing, true); }), 381);
        EXPECT_EQ(errorOf([&] { bar_.isItemEnabled(missing); }), 381);
    }
    EXPECT_EQ(bar_.ChosenItem(), 1);
}
