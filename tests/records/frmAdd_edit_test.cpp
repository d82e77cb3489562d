// The person manager: adding, editing and deleting.
#include "controls/date_picker.h"
#include "controls/multi_line_text_box.h"
#include "cycles/calendar.h"
#include "records/editor_driver.h"
#include "records/frmAdd.h"

using modCycles::DateSerial;

namespace {

class PersonEdit : public EditorTest<frmAdd> {
  protected:
    QString name() { return textOf("txtFields_0"); }
    Value catIdOf(const char* person) const {
        return valueOf(directory_.people(),
                       QStringLiteral("SELECT CatID FROM Data WHERE Name = '%1'")
                           .arg(QString::fromLatin1(person)));
    }
    Value peopleStored() const { return stored("SELECT count(*) FROM Data"); }

    // Types a date of birth into the field, from its day on.
    void enterBirthday(const QString& day) {
        auto& picker = in<DatePicker>("dtpBirthday");
        picker.setFocus();
        picker.setSelectedSection(QDateTimeEdit::DaySection);
        type(picker, day);
    }

    void answerDeletion(Answer answer) {
        host_.expectMessage(QStringLiteral("Are you sure?"), answer);
        press("cmdDelete");
    }
};

TEST_F(PersonEdit, OpensItsInputs) {
    open();
    press("cmdEdit");
    for (const char* box : {"txtFields_0", "txtFields_1", "txtFields_4"})
        EXPECT_FALSE(in<QLineEdit>(box).isReadOnly()) << box;
    EXPECT_FALSE(in<MultiLineTextBox>("txtFields_5").isReadOnly());
    EXPECT_TRUE(in<QWidget>("chkGender").isEnabled());
    EXPECT_TRUE(in<QWidget>("dtpBirthday").isEnabled());
    EXPECT_FALSE(in<ComboBox>("cbAddCat").isLocked());
    for (int button = 0; button < 13; ++button)
        EXPECT_TRUE(
            child<QWidget>(editor(), QStringLiteral("cmdAlphabet_%1").arg(button)).isEnabled());
}

TEST_F(PersonEdit, WritesEveryField) {
    open();
    press("cmdEdit");
    enter("txtFields_0", QStringLiteral("Curie"));
    enter("txtFields_1", QStringLiteral("Marie"));
    enterBirthday(QStringLiteral("7"));
    click(in<QCheckBox>("chkGender"));
    in<ComboBox>("cbAddCat").setText(QStringLiteral("Family"));
    in<MultiLineTextBox>("txtFields_5").setText(QStringLiteral("Polish.\nFrench."));
    press("cmdUpdate");
    const char* const kRow =
        "SELECT Name || FName || Birthdate || Gender || CatID || Notes FROM Data "
        "WHERE Name = 'Curie'";
    EXPECT_EQ(stored(kRow), Value(QStringLiteral("CurieMarie%1.0-1%2Polish.\r\nFrench.")
                                      .arg(DateSerial(1990, 5, 7).dayNumber())
                                      .arg(family_)));
    EXPECT_EQ(peopleStored(), Value(3));
}

TEST_F(PersonEdit, WritesOnlyWhatWasChanged) {
    open();
    press("cmdEdit");
    enter("txtFields_1", QStringLiteral("Benjamin"));
    press("cmdUpdate");
    EXPECT_EQ(stored("SELECT FName FROM Data WHERE Name = 'Adler'"),
              Value(QStringLiteral("Benjamin")));
    EXPECT_TRUE(stored("SELECT Notes FROM Data WHERE Name = 'Adler'").isNull());
}

TEST_F(PersonEdit, WritesNullForATextThatIsTakenAway) {
    open();
    press("cmdEdit");
    enter("txtFields_1", QString());
    press("cmdUpdate");
    EXPECT_TRUE(stored("SELECT FName FROM Data WHERE Name = 'Adler'").isNull());
}

TEST_F(PersonEdit, StandsOnTheFirstPersonAfterAnUpdate) {
    open();
    press("cmdLast");
    press("cmdEdit");
    enter("txtFields_1", QStringLiteral("Zoe"));
    press("cmdUpdate");
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    EXPECT_EQ(status(), QStringLiteral("Record: 1"));
}

TEST_F(PersonEdit, SetsTheWordByTheUsersClickOnTheGender) {
    open();
    press("cmdEdit");
    click(in<QCheckBox>("chkGender"));
    EXPECT_EQ(labelOf("lblMF"), QStringLiteral("Female"));
    click(in<QCheckBox>("chkGender"));
    EXPECT_EQ(labelOf("lblMF"), QStringLiteral("Male"));
}

class WordBesideTheGender : public PersonEdit {
  protected:
    // Stands on Aa, a woman, before Adler, a man.
    WordBesideTheGender() {
        addPerson({.name = QStringLiteral("Aa"), .isFemale = true});
        open();
    }

    void expectStale() {
        EXPECT_FALSE(in<QCheckBox>("chkGender").isChecked());
        EXPECT_EQ(labelOf("lblMF"), QStringLiteral("Female"));
    }
};

TEST_F(WordBesideTheGender, StaysAsItWasWhereADeletionLeads) {
    answerDeletion(Answer::Yes);
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    expectStale();
}

TEST_F(WordBesideTheGender, StaysAsItWasWhereAnUpdateLeads) {
    answerDeletion(Answer::Yes);
    press("cmdLast");
    press("cmdEdit");
    click(in<QCheckBox>("chkGender"));
    press("cmdUpdate");
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    expectStale();
}

TEST_F(WordBesideTheGender, StaysAsItWasWhereACancelLeads) {
    answerDeletion(Answer::Yes);
    press("cmdLast");
    press("cmdEdit");
    click(in<QCheckBox>("chkGender"));
    press("cmdCancel");
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    expectStale();
}

TEST_F(PersonEdit, LetsTheNumberFollowTheListOfCategories) {
    open();
    press("cmdEdit");
    auto& list = in<ComboBox>("cbAddCat");
    list.setFocus();
    pressKey(list, Qt::Key_Up);
    EXPECT_EQ(list.Text(), QStringLiteral("Family"));
    EXPECT_EQ(textOf("txtFields_4"), QString::number(family_));
    press("cmdUpdate");
    EXPECT_EQ(catIdOf("Adler"), Value(family_));
}

TEST_F(PersonEdit, LetsTheListOfCategoriesFollowTheNumber) {
    open();
    press("cmdEdit");
    enter("txtFields_4", QString::number(family_));
    EXPECT_EQ(in<ComboBox>("cbAddCat").Text(), QStringLiteral("Family"));
    press("cmdUpdate");
    EXPECT_EQ(catIdOf("Adler"), Value(family_));
}

TEST_F(PersonEdit, LeavesTheListOfCategoriesForANumberOfNoneAndForNoNumber) {
    open();
    press("cmdEdit");
    for (const char* number : {"99", "abc", "99999999999", ".5", ""}) {
        enter("txtFields_4", QString::fromLatin1(number));
        EXPECT_EQ(textOf("txtFields_4"), QString::fromLatin1(number));
        EXPECT_EQ(in<ComboBox>("cbAddCat").Text(), QStringLiteral("Friends")) << number;
    }
    EXPECT_EQ(in<ComboBox>("cbAddCat").ListCount(), 2);
}

TEST_F(PersonEdit, LeavesTheCursorInTheNumberThatIsTyped) {
    Long last = 0;
    while (last < 12)
        last = addCategory(QStringLiteral("Category"));
    open();
    press("cmdEdit");
    enter("txtFields_4", QStringLiteral("2"));
    auto& box = in<QLineEdit>("txtFields_4");
    box.setCursorPosition(0);
    type(box, QStringLiteral("1"));
    EXPECT_EQ(box.text(), QStringLiteral("12"));
    EXPECT_EQ(box.cursorPosition(), 1);
    EXPECT_EQ(in<ComboBox>("cbAddCat").Text(), QStringLiteral("Category"));
}

TEST_F(PersonEdit, AddsAPersonOfTheFirstCategory) {
    const Long aunts = addCategory(QStringLiteral("aunts"));
    addPerson({.name = QStringLiteral("Aa"), .isFemale = true});
    open();
    EXPECT_EQ(labelOf("lblMF"), QStringLiteral("Female"));
    press("cmdAdd");
    EXPECT_EQ(in<ComboBox>("cbAddCat").Text(), QStringLiteral("aunts"));
    EXPECT_EQ(textOf("txtFields_4"), QString::number(aunts));
    EXPECT_EQ(labelOf("lblMF"), QStringLiteral("Male"));
    EXPECT_FALSE(in<QCheckBox>("chkGender").isChecked());
    EXPECT_TRUE(in<DatePicker>("dtpBirthday").isEmpty());
    EXPECT_EQ(labelOf("lblID"), QString());
    EXPECT_EQ(peopleStored(), Value(4));
    enter("txtFields_0", QStringLiteral("Moss"));
    enterBirthday(QStringLiteral("2"));
    press("cmdUpdate");
    EXPECT_EQ(catIdOf("Moss"), Value(aunts));
    EXPECT_EQ(stored("SELECT Birthdate FROM Data WHERE Name = 'Moss'"),
              Value(DateSerial(2000, 3, 2)));
    EXPECT_EQ(stored("SELECT Gender FROM Data WHERE Name = 'Moss'"), Value(0));
}

TEST_F(PersonEdit, WritesTheFirstCategoryIntoANewPersonWhereTheListStoodOnItAlready) {
    open();
    press("cmdNext");
    ASSERT_EQ(in<ComboBox>("cbAddCat").ListIndex(), 0);
    press("cmdAdd");
    EXPECT_EQ(textOf("txtFields_4"), QString::number(family_));
}

TEST_F(PersonEdit, HasTheNewPersonAtTheEndUntilItIsOpenedAgain) {
    open();
    press("cmdAdd");
    enter("txtFields_0", QStringLiteral("Aa"));
    enterBirthday(QStringLiteral("2"));
    press("cmdUpdate");
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    press("cmdLast");
    EXPECT_EQ(name(), QStringLiteral("Aa"));
    EXPECT_EQ(status(), QStringLiteral("Record: 4"));
    EXPECT_EQ(Value(labelOf("lblID").toInt()), stored("SELECT NameID FROM Data WHERE Name = 'Aa'"));
    open();
    EXPECT_EQ(name(), QStringLiteral("Aa"));
    EXPECT_EQ(status(), QStringLiteral("Record: 1"));
}

TEST_F(PersonEdit, AddsSeveralPeopleOneAfterAnother) {
    open();
    for (const char* person : {"One", "Two"}) {
        press("cmdAdd");
        enter("txtFields_0", QString::fromLatin1(person));
        enterBirthday(QStringLiteral("2"));
        press("cmdUpdate");
    }
    EXPECT_EQ(peopleStored(), Value(5));
}

TEST_F(PersonEdit, AddsToAnEmptyTable) {
    load();
    runOnStore("DELETE FROM Data");
    open();
    press("cmdAdd");
    EXPECT_TRUE(editor().mbAddNewFlag);
    EXPECT_EQ(editor().mvBookMark, 0);
    enter("txtFields_0", QStringLiteral("Moss"));
    pressKey(in<DatePicker>("dtpBirthday"), Qt::Key_Up);
    press("cmdUpdate");
    EXPECT_EQ(peopleStored(), Value(1));
}

TEST_F(PersonEdit, SaysThatThereIsNoFirstCategoryAndGoesOnAdding) {
    load();
    runOnStore("DELETE FROM Data");
    runOnStore("DELETE FROM Category");
    open();
    expectTrap(QStringLiteral("Invalid property value"));
    press("cmdAdd");
    EXPECT_TRUE(editor().mbAddNewFlag);
    EXPECT_TRUE(isEditing());
}

TEST_F(PersonEdit, LeavesWhatWasTypedPendingWhenAButtonOfTheAlphabetLeadsAway) {
    open();
    press("cmdEdit");
    enter("txtFields_0", QStringLiteral("Aaron"));
    press("cmdAlphabet_9");
    EXPECT_EQ(name(), QStringLiteral("Smith"));
    EXPECT_TRUE(isEditing());
    enter("txtFields_1", QStringLiteral("Annabel"));
    press("cmdUpdate");
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Aaron'"), Value(1));
    EXPECT_EQ(stored("SELECT FName FROM Data WHERE Name = 'Smith'"),
              Value(QStringLiteral("Annabel")));
}

TEST_F(PersonEdit, DropsAtCancelOnlyWhatIsPendingOnTheCurrentRow) {
    open();
    press("cmdEdit");
    enter("txtFields_0", QStringLiteral("Aaron"));
    press("cmdAlphabet_9");
    enter("txtFields_1", QStringLiteral("Annabel"));
    press("cmdCancel");
    EXPECT_EQ(name(), QStringLiteral("Aaron"));
    press("cmdNext");
    EXPECT_EQ(textOf("txtFields_1"), QStringLiteral("Anna"));
    press("cmdEdit");
    press("cmdUpdate");
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Aaron'"), Value(1));
}

TEST_F(PersonEdit, AsksBeforeItDeletes) {
    open();
    answerDeletion(Answer::No);
    EXPECT_EQ(peopleStored(), Value(3));
    EXPECT_EQ(name(), QStringLiteral("Adler"));
    EXPECT_FALSE(editor().mbListsStale);
    const Message& question = host_.messages().back();
    EXPECT_EQ(question.title, QStringLiteral("Confirm delete"));
    EXPECT_EQ(question.icon, MessageIcon::Exclamation);
    EXPECT_EQ(question.buttons, MessageButtons::YesNo);
    EXPECT_EQ(question.owner, &editor());
}

TEST_F(PersonEdit, StandsOnTheNextPersonAfterADeletion) {
    open();
    press("cmdNext");
    answerDeletion(Answer::Yes);
    EXPECT_EQ(name(), QStringLiteral("Zed"));
    EXPECT_EQ(status(), QStringLiteral("Record: 2"));
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Smith'"), Value(0));
    EXPECT_EQ(peopleStored(), Value(2));
    EXPECT_TRUE(editor().mbListsStale);
}

TEST_F(PersonEdit, StandsOnTheNewLastPersonAfterTheLastIsDeleted) {
    open();
    press("cmdLast");
    answerDeletion(Answer::Yes);
    EXPECT_EQ(name(), QStringLiteral("Smith"));
    EXPECT_EQ(status(), QStringLiteral("Record: 2"));
    EXPECT_TRUE(editor().mbListsStale);
}

TEST_F(PersonEdit, KeepsTheLastPerson) {
    runOnStore("DELETE FROM Data WHERE Name <> 'Smith'");
    open();
    host_.expectMessage(QStringLiteral("You can not delete all records."));
    press("cmdDelete");
    EXPECT_EQ(peopleStored(), Value(1));
    EXPECT_EQ(name(), QStringLiteral("Smith"));
    EXPECT_EQ(host_.messages().back().owner, &editor());
    EXPECT_FALSE(editor().mbListsStale);
}

TEST_F(PersonEdit, ListsThePeopleAloneWhenItCloses) {
    load();
    auto& filter = control<ComboBox>("cbCategory");
    filter.setText(QStringLiteral("Family"));
    open();
    press("cmdEdit");
    enter("txtFields_1", QStringLiteral("Benjamin"));
    press("cmdUpdate");
    EXPECT_EQ(people().ListCount(), 1);
    close();
    EXPECT_EQ(filter.Text(), QStringLiteral("Family"));
    ASSERT_EQ(people().ListCount(), 3);
    EXPECT_EQ(people().List(0), QStringLiteral("Adler, Benjamin"));
}

TEST_F(PersonEdit, LeavesTheListAloneWhereACancelFollowedADeletion) {
    openOverChosen(QStringLiteral("Smith, Anna"));
    answerDeletion(Answer::Yes);
    press("cmdEdit");
    press("cmdCancel");
    close();
    EXPECT_EQ(people().ListCount(), 3);
    EXPECT_TRUE(isSomebodyChosen());
    EXPECT_EQ(peopleStored(), Value(2));
}

}  // namespace
