// The drop-down list under the user's mouse and keys.
#include "controls/combo_box.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QWheelEvent>

#include "support/event_counter.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class ComboBoxTest : public testing::Test {
  protected:
    ComboBoxTest() {
        list_.fill(
            {{QStringLiteral("Days")}, {QStringLiteral("Weeks")}, {QStringLiteral("Years")}});
        list_.show();
    }

    void pick(int index) {
        list_.showPopup();
        QAbstractItemView& popup = *list_.view();
        click(*popup.viewport(),
              popup.visualRect(list_.QComboBox::model()->index(index, 0)).center());
    }

    RecordingHost host_;
    ComboBox list_;
    EventCounter clicks_{list_, &ComboBox::Click};
};

}  // namespace

TEST_F(ComboBoxTest, FiresClickOnceForAnEntryThatThePersonPicks) {
    pick(1);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(list_.Text(), QStringLiteral("Weeks"));
    EXPECT_EQ(clicks_.fired(), 1);
}

TEST_F(ComboBoxTest, FiresClickAgainWhenTheSelectedEntryIsPicked) {
    pick(1);
    pick(1);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_.fired(), 2);
}

TEST_F(ComboBoxTest, FiresClickOnceForAKeyThatSelectsAnotherEntry) {
    pressKey(list_, Qt::Key_Down);
    EXPECT_EQ(list_.ListIndex(), 0);
    pressKey(list_, Qt::Key_Down);
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(clicks_.fired(), 2);
    pressKey(list_, Qt::Key_End);
    pressKey(list_, Qt::Key_Down);
    EXPECT_EQ(list_.ListIndex(), 2);
    EXPECT_EQ(clicks_.fired(), 3);
}

TEST_F(ComboBoxTest, FiresNothingWhenItOpensAndClosesWithoutAChoice) {
    list_.showPopup();
    list_.hidePopup();
    EXPECT_EQ(list_.ListIndex(), -1);
    EXPECT_EQ(clicks_.fired(), 0);
}

TEST_F(ComboBoxTest, TakesNoTypedText) {
    EXPECT_FALSE(list_.isEditable());
}

TEST_F(ComboBoxTest, IsAsWideForManyLongEntriesAsForNone) {
    const int width = list_.sizeHint().width();
    list_.fill({{QString(500, QLatin1Char('W'))}});
    EXPECT_EQ(list_.sizeHint().width(), width);
}

class LockedComboBox : public ComboBoxTest {
  protected:
    LockedComboBox() {
        list_.setListIndex(1);
        list_.setLocked(true);
    }

    void turnWheel() {
        QWheelEvent turn(list_.rect().center(), list_.mapToGlobal(list_.rect().center()), {},
                         {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&list_, &turn);
    }
};

TEST_F(LockedComboBox, TakesNoChoiceOfTheUsers) {
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home, Qt::Key_Y})
        pressKey(list_, key);
    turnWheel();
    click(list_);
    EXPECT_FALSE(list_.view()->isVisible());
    EXPECT_EQ(list_.ListIndex(), 1);
    EXPECT_EQ(list_.Text(), QStringLiteral("Weeks"));
    EXPECT_EQ(clicks_.fired(), 1);  // that of the code
}

TEST_F(LockedComboBox, CanStillBeSetByCode) {
    list_.setListIndex(2);
    EXPECT_EQ(list_.Text(), QStringLiteral("Years"));
    EXPECT_EQ(clicks_.fired(), 2);
}

TEST_F(LockedComboBox, TakesChoicesAgainOnceItIsOpen) {
    list_.setLocked(false);
    pressKey(list_, Qt::Key_Down);
    EXPECT_EQ(list_.ListIndex(), 2);
    turnWheel();
    pick(0);
    EXPECT_EQ(list_.ListIndex(), 0);
}
