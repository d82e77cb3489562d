// The person manager: what it shows, and how it moves.
#include "records/frmAdd.h"

#include "controls/date_picker.h"
#include "controls/multi_line_text_box.h"
#include "cycles/calendar.h"
#include "records/editor_driver.h"
#include "shell/default_instance.h"
#include "shell/frmWait.h"

using modCycles::DateSerial;

namespace {

// Adler and Zed are Friends, Smith is Family, all of them male.
class PersonManager : public EditorTest<frmAdd> {
  protected:
    QString name() { return textOf("txtFields_0"); }
    QString category() { return in<ComboBox>("cbAddCat").Text(); }
    QString notes() { return in<MultiLineTextBox>("txtFields_5").Text(); }
    QString word() { return labelOf("lblMF"); }

    void expectNothingShown() {
        for (const char* box : {"txtFields_0", "txtFields_1", "txtFields_4"})
            EXPECT_EQ(textOf(box), QString()) << box;
        EXPECT_EQ(notes(), QString());
        EXPECT_EQ(labelOf("lblID"), QString());
        EXPECT_TRUE(in<DatePicker>("dtpBirthday").isEmpty());
        EXPECT_FALSE(in<QCheckBox>("chkGender").isChecked());
    }
};

const QString kMale = QStringLiteral("Male");
const QString kFemale = QStringLiteral("Female");

TEST_F(PersonManager, ShowsEveryFieldOfThePerson) {
    const Long nameId = addPerson({.name = QStringLiteral("Aa"),
                                   .firstName = QStringLiteral("Eve"),
                                   .birthdate = Value(DateSerial(1815, 12, 10)),
                                   .isFemale = true,
                                   .catId = friends_,
                                   .notes = QStringLiteral("First.\r\nSecond.")});
    open();
    EXPECT_EQ(editor().windowTitle(), QStringLiteral("Manage the database"));
    EXPECT_EQ(name(), QStringLiteral("Aa"));
    EXPECT_EQ(textOf("txtFields_1"), QStringLiteral("Eve"));
    EXPECT_EQ(in<DatePicker>("dtpBirthday").text(), QStringLiteral("10 December 1815"));
    EXPECT_TRUE(in<QCheckBox>("chkGender").isChecked());
    EXPECT_EQ(word(), kFemale);
    EXPECT_EQ(textOf("txtFields_4"), QString::number(friends_));
    EXPECT_EQ(category(), QStringLiteral("Friends"));
    EXPECT_EQ(notes(), QStringLiteral("First.\r\nSecond."));
    EXPECT_EQ(labelOf("lblID"), QString::number(nameId));
}

TEST_F(PersonManager, LabelsItsInputs) {
    open();
    for (const auto& [label, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"lblName", "* Name:"},
             {"lblFName", "First Name:"},
             {"lblBirthday", "* Birthdate:"},
             {"lblGender", "* Gender:"},
             {"lblCategory", "* Category:"},
             {"lblNotes", "Notes:"},
             {"lblNameID", "Name ID:"},
             {"lblRequired", "* = Required field"}})
        EXPECT_EQ(labelOf(label), QString::fromLatin1(text));
}

TEST_F(PersonManager, CaptionsItsAlphabet) {
    open();
    QStringList captions;
    for (int button = 0; button < 13; ++button)
        captions +=
            in<QAbstractButton>(QStringLiteral("cmdAlphabet_%1").arg(button).toLatin1().constData())
                .text();
    EXPECT_EQ(captions.join(u' '), QStringLiteral("ab cd ef gh ij kl mn op qr st uv wx yz"));
}

TEST_F(PersonManager, HasTheCategoriesInOrder) {
    addCategory(QStringLiteral("aunts"));
    open();
    auto& list = in<ComboBox>("cbAddCat");
    ASSERT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.List(0), QStringLiteral("aunts"));
    EXPECT_EQ(list.List(1), QStringLiteral("Family"));
    EXPECT_EQ(list.ItemData(1), family_);
    list.AddItem(QStringLiteral("Cousins"));
    EXPECT_EQ(list.NewIndex(), 1);
}

TEST_F(PersonManager, ShowsNoBirthDateThatIsNullOrNoDate) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("A"), .birthdate = Value()});
    addPerson({.name = QStringLiteral("B"), .birthdate = Value(DateSerial(1600, 1, 1))});
    addPerson({.name = QStringLiteral("C"), .birthdate = QStringLiteral("soon")});
    addPerson({.name = QStringLiteral("D"), .birthdate = Value(DateSerial(1753, 1, 1))});
    open();
    EXPECT_TRUE(in<DatePicker>("dtpBirthday").isEmpty());
    press("cmdNext");
    EXPECT_TRUE(in<DatePicker>("dtpBirthday").isEmpty());
    press("cmdNext");
    EXPECT_EQ(name(), QStringLiteral("C"));
    EXPECT_TRUE(in<DatePicker>("dtpBirthday").isEmpty());
    press("cmdNext");
    EXPECT_EQ(in<DatePicker>("dtpBirthday").text(), QStringLiteral("1 January 1753"));
}

TEST_F(PersonManager, OpensOnThePersonWhoIsHandedOver) {
    const Long nameId = addPerson({.name = QStringLiteral("Moss"), .isFemale = true});
    openOn(nameId);
    EXPECT_EQ(name(), QStringLiteral("Moss"));
    EXPECT_EQ(status(), QStringLiteral("Record: 2"));
    EXPECT_EQ(modCycles::SelectedNameID, nameId);
}

TEST_F(PersonManager, KeepsTheWaitWindowUntilThePersonHasBeenFound) {
    load();
    showWaitWindow();
    QString nameMeanwhile;
    modCycles::SelectedNameID = addPerson({.name = QStringLiteral("Moss")});
    frmAdd form(&window());
    QObject::connect(&defaultInstance<frmWait>(), &Form::unloaded, &form, [&] {
        nameMeanwhile = child<QLineEdit>(form, QStringLiteral("txtFields_0")).text();
    });
    form.Show();
    EXPECT_EQ(nameMeanwhile, QStringLiteral("Moss"));
}

TEST_F(PersonManager, OpensWithTheGenderOfTheFirstPersonWhoeverIsHandedOver) {
    openOn(addPerson({.name = QStringLiteral("Moss"), .isFemale = true}));
    EXPECT_TRUE(in<QCheckBox>("chkGender").isChecked());
    EXPECT_EQ(word(), kMale);
}

TEST_F(PersonManager, OpensBehindTheLastForAPersonWhoIsGone) {
    openOn(4711);
    expectNothingShown();
    EXPECT_EQ(status(), QStringLiteral("Record: -3"));
}

TEST_F(PersonManager, FollowsTheGenderWithEveryArrow) {
    addPerson({.name = QStringLiteral("Aa"), .isFemale = true});
    addPerson({.name = QStringLiteral("Zz"), .isFemale = true});
    open();
    EXPECT_EQ(word(), kFemale);
    press("cmdNext");
    EXPECT_EQ(word(), kMale);
    press("cmdLast");
    EXPECT_EQ(word(), kFemale);
    press("cmdPrevious");
    EXPECT_EQ(word(), kMale);
    press("cmdFirst");
    EXPECT_EQ(word(), kFemale);
}

TEST_F(PersonManager, KeepsTheGenderReadOffAnEndWhenItStepsBack) {
    addPerson({.name = QStringLiteral("Aa"), .isFemale = true});
    addPerson({.name = QStringLiteral("Zz"), .isFemale = true});
    open();
    press("cmdPrevious");
    EXPECT_EQ(name(), QStringLiteral("Aa"));
    EXPECT_TRUE(in<QCheckBox>("chkGender").isChecked());
    EXPECT_EQ(word(), kMale);
    press("cmdLast");
    press("cmdNext");
    EXPECT_EQ(name(), QStringLiteral("Zz"));
    EXPECT_EQ(word(), kMale);
    EXPECT_EQ(host_.beeps(), 2);
}

TEST_F(PersonManager, GoesToALetterByItsButton) {
    open();
    press("cmdAlphabet_9");
    EXPECT_EQ(name(), QStringLiteral("Smith"));
    EXPECT_EQ(status(), QStringLiteral("Record: 2"));
    press("cmdAlphabet_0");
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    press("cmdAlphabet_12");
    EXPECT_EQ(name(), QStringLiteral("Zed"));
}

TEST_F(PersonManager, KeepsTheGenderOfWhoWasShownBeforeAButtonOfTheAlphabet) {
    addPerson({.name = QStringLiteral("Moss"), .isFemale = true});
    open();
    press("cmdAlphabet_6");
    EXPECT_EQ(name(), QStringLiteral("Moss"));
    EXPECT_TRUE(in<QCheckBox>("chkGender").isChecked());
    EXPECT_EQ(word(), kMale);
    press("cmdNext");
    press("cmdPrevious");
    EXPECT_EQ(word(), kFemale);
}

TEST_F(PersonManager, EndsTheProgramByAButtonOfTheAlphabetInAnEmptyTable) {
    load();
    runOnStore("DELETE FROM Data");
    open();
    host_.expectMessage(noCurrentRecordBox());
    press("cmdAlphabet_0");
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

class BehindTheLast : public PersonManager {
  protected:
    BehindTheLast() {
        runOnStore("DELETE FROM Data WHERE Name = 'Zed'");
        open();
        press("cmdAlphabet_12");
    }

    void expectBoxThat(const char* button) {
        expectTrap(noCurrentRecord());
        press(button);
        EXPECT_FALSE(isEditing());
        EXPECT_FALSE(editor().mbEditFlag);
        EXPECT_FALSE(editor().mbAddNewFlag);
    }
};

TEST_F(BehindTheLast, ShowsNothing) {
    expectNothingShown();
    EXPECT_EQ(category(), QStringLiteral("Friends"));  // an empty number leaves the list as it is
    EXPECT_EQ(status(), QStringLiteral("Record: -3"));
}

TEST_F(BehindTheLast, TellsThatNothingCanBeEditedOrAdded) {
    expectBoxThat("cmdEdit");
    expectBoxThat("cmdAdd");
    EXPECT_EQ(status(), QStringLiteral("Record: -3"));
}

TEST_F(BehindTheLast, TellsThatNothingCanBeDeleted) {
    host_.expectMessage(QStringLiteral("Are you sure?"), Answer::Yes);
    expectBoxThat("cmdDelete");
    EXPECT_EQ(stored("SELECT count(*) FROM Data"), Value(2));
    EXPECT_FALSE(editor().mbListsStale);
}

TEST_F(BehindTheLast, LeadsToTheLastPersonByPreviousAndByNextWithABeep) {
    press("cmdPrevious");
    EXPECT_EQ(name(), QStringLiteral("Smith"));
    EXPECT_EQ(host_.beeps(), 0);
    press("cmdAlphabet_12");
    press("cmdNext");
    EXPECT_EQ(name(), QStringLiteral("Smith"));
    EXPECT_EQ(host_.beeps(), 1);
}

TEST_F(BehindTheLast, LeadsToTheEndsByHomeAndEnd) {
    key(Qt::Key_Home);
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    press("cmdAlphabet_12");
    key(Qt::Key_End);
    EXPECT_EQ(name(), QStringLiteral("Smith"));
}

TEST_F(BehindTheLast, TellsDuringAnEditThatThereIsNothingToUpdate) {
    press("cmdFirst");
    press("cmdEdit");
    enter("txtFields_0", QStringLiteral("Aaron"));
    press("cmdAlphabet_12");
    expectNothingShown();
    enter("txtFields_0", QStringLiteral("nobody"));
    expectTrap(noCurrentRecord());
    press("cmdUpdate");
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Adler'"), Value(1));
}

TEST_F(BehindTheLast, IsLeftByCancelWithoutABox) {
    press("cmdFirst");
    press("cmdEdit");
    enter("txtFields_0", QStringLiteral("Aaron"));
    press("cmdAlphabet_12");
    press("cmdCancel");
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(status(), QStringLiteral("Record: 1"));
    EXPECT_EQ(name(), QStringLiteral("Aaron"));  // it was pending on a row that was not cancelled
    EXPECT_TRUE(host_.messages().empty());
}

TEST_F(PersonManager, WalksOnWithAnArrowInTheNotes) {
    open();
    auto& box = in<MultiLineTextBox>("txtFields_5");
    box.setFocus();
    pressKey(box, Qt::Key_Down);
    EXPECT_EQ(name(), QStringLiteral("Smith"));
}

TEST_F(PersonManager, WalksOnWithAnArrowInTheListOfCategories) {
    open();
    auto& list = in<ComboBox>("cbAddCat");
    list.setFocus();
    pressKey(list, Qt::Key_Down);
    EXPECT_EQ(name(), QStringLiteral("Smith"));
    EXPECT_EQ(category(), QStringLiteral("Family"));
}

TEST_F(PersonManager, ClosesByEsc) {
    open();
    key(Qt::Key_Escape);
    EXPECT_FALSE(editor().isLoaded());
}

TEST_F(PersonManager, LocksItsInputsWhileItBrowses) {
    open();
    EXPECT_FALSE(in<QWidget>("chkGender").isEnabled());
    EXPECT_FALSE(in<QWidget>("dtpBirthday").isEnabled());
    EXPECT_TRUE(in<ComboBox>("cbAddCat").isLocked());
    for (const char* box : {"txtFields_0", "txtFields_1", "txtFields_4"})
        EXPECT_TRUE(in<QLineEdit>(box).isReadOnly()) << box;
    EXPECT_TRUE(in<MultiLineTextBox>("txtFields_5").isReadOnly());
}

}  // namespace
