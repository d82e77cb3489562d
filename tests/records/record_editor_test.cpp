// What both record editors do alike.
#include "records/record_editor.h"

#include <QCursor>
#include <QGuiApplication>

#include "controls/date_picker.h"
#include "controls/twips.h"
#include "records/deletion_messages.h"
#include "records/editor_driver.h"
#include "records/frmAdd.h"
#include "records/frmCategory.h"
#include "shell/default_instance.h"
#include "shell/frmWait.h"

namespace {

// Where the editors differ in what the tests look at: the box with the row's name, and the names.
template <class Editor>
struct Rows;

template <>
struct Rows<frmAdd> {
    static constexpr const char* kBox = "txtFields_0";
    static constexpr const char* kFirst = "Adler";
    static constexpr const char* kSecond = "Smith";
    static constexpr const char* kLast = "Zed";
    static constexpr const char* kDeleteAll = "DELETE FROM Data";
    static Message questionOfTheFirst() { return personDeletionQuestion(); }
};

template <>
struct Rows<frmCategory> {
    static constexpr const char* kBox = "txtFields_1";
    static constexpr const char* kFirst = "Family";
    static constexpr const char* kSecond = "Friends";
    static constexpr const char* kLast = "Work";
    static constexpr const char* kDeleteAll = "DELETE FROM Category";
    static Message questionOfTheFirst() {
        return categoryDeletionQuestion(1, QString::fromLatin1(kFirst));
    }
};

template <class Editor>
class EveryEditor : public EditorTest<Editor> {
  protected:
    EveryEditor() { this->addCategory(QStringLiteral("Work")); }

    QString name() { return this->textOf(Rows<Editor>::kBox); }
    void enterName(const char* name) { this->enter(Rows<Editor>::kBox, QString::fromLatin1(name)); }

    // Adds a row of this name, born at some date if it is a person's.
    void add(const char* name) {
        this->press("cmdAdd");
        enterName(name);
        for (DatePicker* birthday : this->editor().template findChildren<DatePicker*>())
            pressKey(*birthday, Qt::Key_Up);
        this->press("cmdUpdate");
    }

    // The form stands on the row, and says so.
    void expectRow(const char* name, int place) {
        EXPECT_EQ(this->name(), QString::fromLatin1(name));
        EXPECT_EQ(this->status(), QStringLiteral("Record: %1").arg(place));
    }
    void expectFirst() { expectRow(Rows<Editor>::kFirst, 1); }
    void expectSecond() { expectRow(Rows<Editor>::kSecond, 2); }
    void expectLast() { expectRow(Rows<Editor>::kLast, 3); }
};

using Editors = testing::Types<frmAdd, frmCategory>;
TYPED_TEST_SUITE(EveryEditor, Editors);

TYPED_TEST(EveryEditor, OpensOnTheFirstRowAndBrowses) {
    this->open();
    this->expectFirst();
    EXPECT_FALSE(this->isEditing());
    EXPECT_FALSE(this->editor().mbEditFlag);
    EXPECT_FALSE(this->editor().mbAddNewFlag);
    EXPECT_FALSE(this->editor().mbListsStale);
    this->enterName("typed");
    this->expectFirst();
}

TYPED_TEST(EveryEditor, BeginsWithNothingChangedHoweverItWasLeft) {
    this->load();
    TypeParam form(&this->window());
    form.mbDataChanged = true;
    form.mbListsStale = true;
    form.Show();
    EXPECT_FALSE(form.mbDataChanged);
    EXPECT_FALSE(form.mbListsStale);
}

TYPED_TEST(EveryEditor, UnloadsTheWaitWindowAsItsLastAct) {
    this->load();
    showWaitWindow();
    const auto& wait = defaultInstance<frmWait>();
    TypeParam form(&this->window());
    bool wasThereMeanwhile = false;
    QObject::connect(&wait, &Form::unloaded, &form, [&] {
        wasThereMeanwhile = !form.template findChild<QLineEdit*>()->text().isEmpty();
    });
    form.Show();
    EXPECT_TRUE(wasThereMeanwhile);
    EXPECT_FALSE(wait.isLoaded());
}

TYPED_TEST(EveryEditor, WalksThroughTheRowsByItsArrows) {
    this->open();
    this->press("cmdNext");
    this->expectSecond();
    this->press("cmdLast");
    this->expectLast();
    this->press("cmdPrevious");
    this->expectSecond();
    this->press("cmdFirst");
    this->expectFirst();
    EXPECT_EQ(this->host_.beeps(), 0);
}

TYPED_TEST(EveryEditor, BeepsAtTheEndsAndStays) {
    this->open();
    this->press("cmdPrevious");
    this->expectFirst();
    EXPECT_EQ(this->host_.beeps(), 1);
    this->press("cmdLast");
    this->press("cmdNext");
    this->expectLast();
    EXPECT_EQ(this->host_.beeps(), 2);
}

TYPED_TEST(EveryEditor, ForgetsWithEveryMoveThatDataHaveChanged) {
    this->open();
    for (const char* arrow : {"cmdFirst", "cmdLast", "cmdNext", "cmdPrevious"}) {
        this->editor().mbDataChanged = true;
        this->press(arrow);
        EXPECT_FALSE(this->editor().mbDataChanged) << arrow;
    }
}

TYPED_TEST(EveryEditor, WalksThroughTheRowsByKeys) {
    this->open();
    this->key(Qt::Key_Down);
    this->expectSecond();
    this->key(Qt::Key_PageDown);
    this->expectLast();
    this->key(Qt::Key_Up);
    this->expectSecond();
    this->key(Qt::Key_PageUp);
    this->expectFirst();
    this->key(Qt::Key_End);
    this->expectLast();
    this->key(Qt::Key_Home);
    this->expectFirst();
}

TYPED_TEST(EveryEditor, GoesToTheEndsByCtrlAndAnArrow) {
    this->open();
    this->keyWithCtrl(Qt::Key_Down);
    this->expectLast();
    this->keyWithCtrl(Qt::Key_Up);
    this->expectFirst();
}

TYPED_TEST(EveryEditor, KeepsItsKeysFromTheControlThatHasTheFocus) {
    this->open();
    auto& box = this->template in<QLineEdit>(Rows<TypeParam>::kBox);
    box.setFocus();
    box.setCursorPosition(1);
    this->key(Qt::Key_Left);
    EXPECT_EQ(box.cursorPosition(), 0);
    this->key(Qt::Key_End);
    this->expectLast();
    EXPECT_EQ(box.cursorPosition(), 0);
}

TYPED_TEST(EveryEditor, LeavesTheKeysToTheControlsDuringAnEdit) {
    this->open();
    this->press("cmdNext");
    for (const char* start : {"cmdEdit", "cmdAdd"}) {
        this->press(start);
        this->enterName("typed");
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Home, Qt::Key_End, Qt::Key_Up,
                                  Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown})
            this->key(key);
        EXPECT_TRUE(this->editor().isLoaded());
        EXPECT_TRUE(this->isEditing());
        EXPECT_EQ(this->name(), QStringLiteral("typed"));
        this->press("cmdCancel");
    }
}

TYPED_TEST(EveryEditor, SaysWhatIsDoneWithTheRow) {
    this->open();
    this->press("cmdEdit");
    EXPECT_EQ(this->status(), QStringLiteral("Edit record"));
    EXPECT_TRUE(this->editor().mbEditFlag);
    EXPECT_FALSE(this->editor().mbAddNewFlag);
    this->press("cmdCancel");
    this->press("cmdAdd");
    EXPECT_EQ(this->status(), QStringLiteral("Add record"));
    EXPECT_TRUE(this->editor().mbAddNewFlag);
    EXPECT_FALSE(this->editor().mbEditFlag);
    EXPECT_EQ(this->name(), QString());
    this->press("cmdCancel");
    EXPECT_FALSE(this->editor().mbAddNewFlag);
    this->expectFirst();
}

TYPED_TEST(EveryEditor, WritesWhatWasTypedAndBrowsesAgain) {
    this->open();
    this->press("cmdEdit");
    this->enterName("Aaron");
    this->editor().mbDataChanged = true;
    this->press("cmdUpdate");
    EXPECT_FALSE(this->isEditing());
    EXPECT_FALSE(this->editor().mbEditFlag);
    EXPECT_FALSE(this->editor().mbDataChanged);
    EXPECT_TRUE(this->editor().mbListsStale);
    EXPECT_EQ(this->name(), QStringLiteral("Aaron"));
    this->open();
    this->expectRow("Aaron", 1);
}

TYPED_TEST(EveryEditor, ForgetsWhatWasTypedAndGoesToTheFirstRowAtCancel) {
    this->open();
    this->press("cmdNext");
    this->press("cmdEdit");
    this->enterName("typed");
    this->press("cmdCancel");
    EXPECT_FALSE(this->isEditing());
    this->expectFirst();
    this->press("cmdNext");
    this->expectSecond();
    this->enterName("locked again");
    this->expectSecond();
}

TYPED_TEST(EveryEditor, GoesBackAtCancelToTheRowThatWasCurrentAtTheLastAdd) {
    this->open();
    this->press("cmdNext");
    this->press("cmdAdd");
    this->press("cmdCancel");
    this->expectSecond();
    this->press("cmdLast");
    this->press("cmdEdit");
    this->press("cmdCancel");
    this->expectSecond();
    this->press("cmdLast");
    this->press("cmdAdd");
    this->press("cmdCancel");
    this->press("cmdFirst");
    this->press("cmdEdit");
    this->press("cmdCancel");
    this->expectLast();
}

TYPED_TEST(EveryEditor, GoesBackAtCancelToTheRowOfAnAddThatWasUpdated) {
    this->open();
    this->press("cmdNext");
    this->add("Mill");
    this->press("cmdLast");
    this->press("cmdEdit");
    this->press("cmdCancel");
    this->expectSecond();
}

TYPED_TEST(EveryEditor, BrowsesAgainAfterAnAddition) {
    this->open();
    this->add("Mill");
    EXPECT_FALSE(this->isEditing());
    EXPECT_FALSE(this->editor().mbAddNewFlag);
    EXPECT_FALSE(this->editor().mbEditFlag);
    EXPECT_TRUE(this->editor().mbListsStale);
    this->key(Qt::Key_Home);
    this->expectFirst();
    this->key(Qt::Key_End);
    this->expectRow("Mill", 4);
}

TYPED_TEST(EveryEditor, TakesANewRowOutOfTheSetAtCancel) {
    this->open();
    this->press("cmdAdd");
    this->enterName("typed");
    this->press("cmdCancel");
    this->press("cmdLast");
    this->expectLast();
}

TYPED_TEST(EveryEditor, ForgetsAtCancelThatSomethingWasWritten) {
    this->open();
    this->press("cmdEdit");
    this->enterName("Aaron");
    this->press("cmdUpdate");
    this->press("cmdEdit");
    this->press("cmdCancel");
    EXPECT_FALSE(this->editor().mbListsStale);
}

TYPED_TEST(EveryEditor, StaysAtCancelWhereTheRowToGoBackToIsGone) {
    this->open();
    this->press("cmdAdd");
    this->press("cmdCancel");
    this->host_.expectMessage(Rows<TypeParam>::questionOfTheFirst().text, Answer::Yes);
    this->press("cmdDelete");
    this->press("cmdLast");
    this->press("cmdEdit");
    this->enterName("typed");
    this->press("cmdCancel");
    EXPECT_FALSE(this->isEditing());
    this->expectRow(Rows<TypeParam>::kLast, 2);
    EXPECT_FALSE(this->editor().mbListsStale);
}

TYPED_TEST(EveryEditor, TellsOfAMoveThatIsImpossibleInAnEmptyTable) {
    this->load();
    this->runOnStore(Rows<TypeParam>::kDeleteAll);
    this->open();
    for (const char* arrow : {"cmdFirst", "cmdLast"}) {
        this->expectTrap(noCurrentRecord());
        this->press(arrow);
    }
    for (const char* arrow : {"cmdPrevious", "cmdNext"})
        this->press(arrow);
    EXPECT_EQ(this->host_.messages().size(), 2U);
    EXPECT_EQ(this->host_.beeps(), 0);
}

TYPED_TEST(EveryEditor, CancelsAnAdditionToAnEmptyTableWithoutABox) {
    this->load();
    this->runOnStore(Rows<TypeParam>::kDeleteAll);
    this->open();
    this->press("cmdAdd");
    this->editor().mbDataChanged = true;
    this->editor().mbListsStale = true;
    this->press("cmdCancel");
    EXPECT_FALSE(this->isEditing());
    EXPECT_FALSE(this->editor().mbAddNewFlag);
    EXPECT_FALSE(this->editor().mbDataChanged);
    EXPECT_FALSE(this->editor().mbListsStale);
    EXPECT_EQ(this->status(), QStringLiteral("Record: -1"));
    EXPECT_TRUE(this->host_.messages().empty());
}

TYPED_TEST(EveryEditor, GivesTheMouseItsOwnPointerBackWhenItCloses) {
    this->open();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    this->close();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TYPED_TEST(EveryEditor, LeavesTheMainWindowAloneAfterAPlainBrowse) {
    this->openOverChosen(QStringLiteral("Smith, Anna"));
    this->press("cmdLast");
    this->close();
    EXPECT_FALSE(this->editor().isLoaded());
    EXPECT_EQ(this->people().Text(), QStringLiteral("Smith, Anna"));
    EXPECT_EQ(this->template control<QLabel>("lblTitle").text(),
              QStringLiteral("Biorhythm for Anna Smith"));
}

TYPED_TEST(EveryEditor, BlanksTheMainWindowAfterAWrite) {
    this->openOverChosen(QStringLiteral("Smith, Anna"));
    this->press("cmdEdit");
    this->enterName("Aaron");
    this->press("cmdUpdate");
    this->close();
    EXPECT_FALSE(this->isSomebodyChosen());
    EXPECT_EQ(this->template control<QLabel>("lblTitle").text(),
              QStringLiteral("Biorhythm for <unspecified>"));
}

TYPED_TEST(EveryEditor, WritesNothingThatIsPendingWhenItsWindowIsClosedDuringAnEdit) {
    this->open();
    this->press("cmdEdit");
    this->enterName("typed");
    this->editor().close();
    EXPECT_FALSE(this->editor().isLoaded());
    this->open();
    this->expectFirst();
}

TYPED_TEST(EveryEditor, BrowsesAgainWhenItIsLoadedAnewAfterAnEdit) {
    this->open();
    this->press("cmdNext");
    this->press("cmdAdd");
    this->enterName("typed");
    this->editor().close();
    this->editor().Show();
    EXPECT_FALSE(this->isEditing());
    EXPECT_FALSE(this->editor().mbAddNewFlag);
    EXPECT_EQ(this->editor().mvBookMark, 0);
    this->expectFirst();
    this->enterName("locked");
    this->expectFirst();
}

TYPED_TEST(EveryEditor, HoldsNoLockWhileItIsOpen) {
    this->open();
    this->press("cmdEdit");
    this->enterName("typed");
    this->runOnStore("BEGIN EXCLUSIVE");
    this->press("cmdCancel");
}

TYPED_TEST(EveryEditor, HasItsNavigatorAlongItsLowerEdge) {
    this->open();
    for (const int width : {608, 900}) {
        this->editor().resize(width, this->editor().height());
        QCoreApplication::sendPostedEvents();
        const QRect first = this->template in<QWidget>("cmdFirst").geometry();
        const QRect status = this->template in<QWidget>("lblStatus").geometry();
        const QRect next = this->template in<QWidget>("cmdNext").geometry();
        const QRect last = this->template in<QWidget>("cmdLast").geometry();
        EXPECT_EQ(status.width(), width - toPixels(1500));
        EXPECT_EQ(next.left() - first.left(), status.width() + toPixels(700));
        EXPECT_EQ(last.left(), next.left() + toPixels(340));
        const auto& navigator = this->template in<QWidget>("cmdLast");
        EXPECT_EQ(navigator.mapTo(&this->editor(), QPoint(0, navigator.height())).y(),
                  this->editor().height() - 4);
    }
}

}  // namespace
