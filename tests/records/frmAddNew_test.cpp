// The add-person wizard: its steps, what it writes, and how it closes.
#include "records/frmAddNew.h"

#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include "controls/combo_box.h"
#include "controls/date_picker.h"
#include "controls/list_box.h"
#include "controls/multi_line_text_box.h"
#include "records/wizard_driver.h"
#include "support/form_rules.h"

using modCycles::DateSerial;

namespace {

class Wizard : public WizardTest {
  protected:
    using Steps = std::vector<Integer>;
    const Steps kShown{1, 2, 3, 4, 5, 6, 8};

    QStringList visibleControls() {
        QStringList visible;
        for (const char* name : {"lblType", "txtType", "lblF", "txtF", "lblN", "txtN", "cmdEdit",
                                 "lblBirth", "dtpBDate", "lblG", "chkG", "lblCats", "lstCats",
                                 "txtNewCat", "cmdAddCat", "txtNotes", "txtFinal"}) {
            if (in<QWidget>(name).isVisibleTo(&wizard()))
                visible += QString::fromLatin1(name);
        }
        return visible;
    }
};

TEST_F(Wizard, StartsWithTheName) {
    open();
    EXPECT_EQ(wizard().windowTitle(), QStringLiteral("Add new person wizard"));
    EXPECT_EQ(wizard().WizardStep, 1);
    EXPECT_FALSE(wizard().WizardDirty);
    EXPECT_FALSE(isEnabled("cmdNext"));
    EXPECT_EQ(in<DatePicker>("dtpBDate").Value(), DateSerial(2000, 3, 14));
    EXPECT_EQ(in<DatePicker>("dtpBDate").CustomFormat(), QStringLiteral("d MMMM yyyy"));
}

TEST_F(Wizard, ProposesTheDayOnWhichItIsLoaded) {
    frmAddNew form(&load());
    host_.setNow(DateSerial(2000, 3, 15));
    form.Load();
    EXPECT_EQ(child<DatePicker>(form, QStringLiteral("dtpBDate")).Value(), DateSerial(2000, 3, 15));
}

TEST_F(Wizard, CallsItsControlsByTheirTexts) {
    open();
    const std::pair<const char*, const char16_t*> labels[] = {
        {"lblType", u"Type a name:"},
        {"lblF", u"First name"},
        {"lblN", u"Name"},
        {"lblBirth", u"Type or select the date of birth:"},
        {"lblG", u"Select the gender:"},
        {"lblCats", u"Select a category:"}};
    for (const auto& [label, text] : labels)
        EXPECT_EQ(in<QLabel>(label).text(), QString::fromUtf16(text));
    const std::pair<const char*, const char16_t*> buttons[] = {
        {"cmdEdit", u"&Edit"},   {"chkG", u"Male"},       {"cmdAddCat", u"&Add category"},
        {"cmdBack", u"< &Back"}, {"cmdNext", u"&Next >"}, {"cmdClose", u"&Close"}};
    for (const auto& [button, text] : buttons)
        EXPECT_EQ(captionOf(button), QString::fromUtf16(text));
}

TEST_F(Wizard, ShowsTheControlsOfItsStepAndNoOthers) {
    const std::vector<QString> visible{
        QStringLiteral("lblType txtType lblF txtF lblN txtN cmdEdit"),
        QStringLiteral("lblBirth dtpBDate"),
        QStringLiteral("lblG chkG"),
        QStringLiteral("lblCats lstCats txtNewCat cmdAddCat"),
        QStringLiteral("txtNotes"),
        QStringLiteral("txtFinal")};
    openWithEntries();
    for (const QString& controls : visible) {
        EXPECT_EQ(visibleControls().join(u' '), controls);
        press("cmdNext");
    }
    EXPECT_EQ(wizard().WizardStep, wizard::kDone);
    EXPECT_EQ(visibleControls(), QStringList());
}

TEST_F(Wizard, GuidesTheUserFromStepToStep) {
    openWithEntries();
    for (Integer step = 1; step <= wizard::kSummary; ++step) {
        EXPECT_EQ(in<QLabel>("lblIntro").text(), wizard::step(step).guidance);
        EXPECT_EQ(captionOf("cmdNext"),
                  step == wizard::kSummary ? QStringLiteral("&Finish") : QStringLiteral("&Next >"));
        press("cmdNext");
    }
    EXPECT_EQ(in<QLabel>("lblIntro").text(), wizard::step(wizard::kDone).guidance);
    EXPECT_EQ(captionOf("cmdNext"), QStringLiteral("&Next >"));
}

TEST_F(Wizard, GivesTheNextKeyToTheControlThatTheStepNames) {
    openWithEntries();
    for (const Integer step : Steps{2, 3, 4, 5, 6, 8}) {
        goTo(step);
        EXPECT_EQ(wizard().focusWidget()->objectName(), wizard::step(step).focus);
    }
}

TEST_F(Wizard, KeepsItsSizeAndRoomForItsGuidanceInEveryStep) {
    openWithEntries();
    const QSize size = wizard().size();
    const QRect controls = in<QWidget>("stkSteps").geometry();
    const auto& guidance = in<QLabel>("lblIntro");
    for (const Integer step : kShown) {
        goTo(step);
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(wizard().size(), size) << step;
        EXPECT_EQ(in<QWidget>("stkSteps").geometry(), controls) << step;
        EXPECT_LE(guidance.heightForWidth(guidance.width()), guidance.height()) << step;
    }
}

TEST_F(Wizard, IsWalkedThroughInOrderInEveryStep) {
    openWithEntries();
    for (const Integer step : kShown) {
        goTo(step);
        EXPECT_EQ(objectionsToTabOrder(wizard()), Objections()) << step;
    }
}

TEST_F(Wizard, DoesNothingForAStepThatIsNone) {
    open();
    for (const Integer none : Steps{-1, 0, 9}) {
        wizard().ShowWizardStep(none);
        EXPECT_EQ(in<QLabel>("lblIntro").text(), wizard::step(wizard::kName).guidance);
        EXPECT_TRUE(visibleControls().contains(QStringLiteral("txtType")));
    }
}

TEST_F(Wizard, GoesBackStepByStep) {
    openAtSummary();
    press("cmdBack");
    EXPECT_EQ(wizard().WizardStep, wizard::kNotes);
    EXPECT_EQ(captionOf("cmdNext"), QStringLiteral("&Next >"));
    for (const Integer step : Steps{4, 3, 2, 1, 1}) {
        press("cmdBack");
        EXPECT_EQ(wizard().WizardStep, step);
        EXPECT_EQ(in<QLabel>("lblIntro").text(), wizard::step(step).guidance);
    }
}

TEST_F(Wizard, SumsUpWhatWasEntered) {
    open();
    enterName(kJohnDoe);
    in<DatePicker>("dtpBDate").setValue(DateSerial(1972, 10, 20));
    press("chkG");
    in<ListBox>("lstCats").setText(kFamily);
    in<MultiLineTextBox>("txtNotes").setText(QStringLiteral(" one\r\ntwo "));
    goTo(wizard::kSummary);
    const auto& summary = in<MultiLineTextBox>("txtFinal");
    EXPECT_TRUE(summary.isReadOnly());
    EXPECT_EQ(summary.Text(), newPersonSummary({.firstName = QStringLiteral("John"),
                                                .name = QStringLiteral("Doe"),
                                                .birthdate = DateSerial(1972, 10, 20),
                                                .isFemale = true,
                                                .notes = QStringLiteral("one\r\ntwo")},
                                               kFamily));
    EXPECT_TRUE(summary.toPlainText().startsWith(QStringLiteral(
        "The following information will be written to the database:\n\nName:\n     Doe\n\n")));
}

TEST_F(Wizard, WritesThePersonAndSaysSo) {
    openAtSummary();
    in<DatePicker>("dtpBDate").setValue(DateSerial(2100, 1, 2));
    type(in<MultiLineTextBox>("txtNotes"), QStringLiteral("one"));
    pressKey(in<MultiLineTextBox>("txtNotes"), Qt::Key_Return);
    type(in<MultiLineTextBox>("txtNotes"), QStringLiteral("two"));
    press("cmdNext");
    EXPECT_EQ(wizard().WizardStep, wizard::kDone);
    EXPECT_TRUE(wizard().WizardDirty);
    EXPECT_EQ(peopleStored(), 4);
    EXPECT_EQ(stored("SELECT FName FROM Data WHERE Name = 'Doe'"), Value(QStringLiteral("John")));
    EXPECT_EQ(stored("SELECT Birthdate FROM Data WHERE Name = 'Doe'"),
              Value(DateSerial(2100, 1, 2)));
    EXPECT_EQ(stored("SELECT Gender FROM Data WHERE Name = 'Doe'"), Value(0));
    EXPECT_EQ(stored("SELECT CatID FROM Data WHERE Name = 'Doe'"), Value(family_));
    EXPECT_EQ(stored("SELECT Notes FROM Data WHERE Name = 'Doe'"),
              Value(QStringLiteral("one\r\ntwo")));
}

TEST_F(Wizard, WritesThePersonAgainForWhoGoesBackAndFinishesAgain) {
    openAtSummary();
    press("cmdNext");
    press("cmdBack");
    EXPECT_EQ(wizard().WizardStep, wizard::kSummary);
    EXPECT_EQ(visibleControls(), QStringList{QStringLiteral("txtFinal")});
    EXPECT_EQ(captionOf("cmdNext"), QStringLiteral("&Finish"));
    press("cmdNext");
    EXPECT_EQ(stored("SELECT count(*) FROM Data WHERE Name = 'Doe'"), Value(2));
}

TEST_F(Wizard, StartsAgainWithEverythingThatWasEntered) {
    open();
    enterName(kJohnDoe);
    in<DatePicker>("dtpBDate").setValue(DateSerial(1972, 10, 20));
    press("chkG");
    in<ListBox>("lstCats").setText(kFamily);
    in<MultiLineTextBox>("txtNotes").setText(QStringLiteral("notes"));
    goTo(wizard::kDone);
    press("cmdNext");
    EXPECT_EQ(wizard().WizardStep, wizard::kName);
    EXPECT_TRUE(isEnabled("cmdNext"));
    EXPECT_EQ(textOf("txtType"), kJohnDoe);
    EXPECT_EQ(textOf("txtF"), QStringLiteral("John"));
    EXPECT_EQ(textOf("txtN"), QStringLiteral("Doe"));
    EXPECT_EQ(in<DatePicker>("dtpBDate").Value(), DateSerial(1972, 10, 20));
    EXPECT_EQ(captionOf("chkG"), QStringLiteral("Female"));
    EXPECT_EQ(in<ListBox>("lstCats").Text(), kFamily);
    EXPECT_EQ(in<MultiLineTextBox>("txtNotes").Text(), QStringLiteral("notes"));
}

TEST_F(Wizard, LeavesTheMainListsAloneWhereNothingWasAdded) {
    open();
    control<ListBox>("lstMain").setText(QStringLiteral("Smith, Anna"));
    enterName(kJohnDoe);
    goTo(wizard::kSummary);
    press("cmdClose");
    EXPECT_FALSE(wizard().isLoaded());
    EXPECT_FALSE(wizard().isVisible());
    EXPECT_EQ(control<ListBox>("lstMain").Text(), QStringLiteral("Smith, Anna"));
}

TEST_F(Wizard, FillsTheMainListsAnewWhenAPersonWasAdded) {
    openAtSummary();
    press("cmdNext");
    EXPECT_EQ(control<ListBox>("lstMain").ListCount(), 3);
    press("cmdClose");
    EXPECT_EQ(control<ListBox>("lstMain").ListCount(), 4);
    EXPECT_EQ(control<ListBox>("lstMain").ListIndex(), -1);
}

TEST_F(Wizard, FillsBothMainListsAnewWhenACategoryAloneWasAdded) {
    open();
    control<ListBox>("lstMain").setText(QStringLiteral("Smith, Anna"));
    enterCategory(QStringLiteral("Aunts"));
    EXPECT_EQ(control<ComboBox>("cbCategory").ListCount(), 3);
    wizard().close();
    EXPECT_EQ(control<ListBox>("lstMain").ListIndex(), -1);
    EXPECT_EQ(control<ComboBox>("cbCategory").ListCount(), 4);
    EXPECT_EQ(control<ComboBox>("cbCategory").ListIndex(), 0);
}

TEST_F(Wizard, IsGoneWhenItsCommandReturns) {
    load();
    {
        frmAddNew form(&window());
        QTimer::singleShot(
            0, &form, [&] { child<QAbstractButton>(form, QStringLiteral("cmdClose")).click(); });
        form.ShowModal();
    }
    EXPECT_EQ(Form::forms(), std::vector<Form*>{&window()});
    EXPECT_TRUE(window().findChildren<frmAddNew*>().isEmpty());
}

}  // namespace
