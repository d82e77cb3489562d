// The event routines of the person manager.
#include "records/frmAdd.h"

#include <QButtonGroup>

#include "records/alphabet_search.h"
#include "records/bound_fields.h"
#include "records/deletion_messages.h"
#include "records/new_person.h"
#include "runtime/event.h"
#include "runtime/numbers.h"
#include "shell/frmWait.h"
#include "shell/handover.h"
#include "shell/main_lists.h"
#include "store/list_fillers.h"
#include "store/statements.h"
#include "ui_frmAdd.h"

frmAdd::frmAdd(QWidget* owner) : RecordEditor(owner), ui_(std::make_unique<Ui::frmAdd>()) {
    ui_->setupUi(this);
    ui_->cbAddCat->setSorted(true);
    useBar(*ui_->barRecord);
    connectEvents();
}

frmAdd::~frmAdd() = default;

void frmAdd::connectEvents() {
    onEvent(ui_->cbAddCat, &ComboBox::Click, this, &frmAdd::cbAddCat_Click);
    onEvent(ui_->chkGender, &QCheckBox::clicked, this, &frmAdd::chkGender_Click);
    onEvent(ui_->txtFields_4, &TextBox::textChanged, this, &frmAdd::txtFields_Change);
    auto* cmdAlphabet = new QButtonGroup(this);
    for (int button = 0; button < kAlphabetButtons; ++button)
        cmdAlphabet->addButton(
            findChild<QPushButton*>(QStringLiteral("cmdAlphabet_%1").arg(button)), button);
    onEvent(cmdAlphabet, &QButtonGroup::idClicked, this, &frmAdd::cmdAlphabet_Click);
}

void frmAdd::Form_Load() {
    openRecords(statements::allPeopleWithNotes());
    Recordset adoCats(connection(), statements::categoriesInOrder());
    bindInputs();
    ui_->cbAddCat->fill(categoryEntries(adoCats));
    txtFields_Change();
    SetGender(ui_->chkGender->isChecked());
    if (modCycles::SelectedNameID != 0)
        find(QStringLiteral("NameID = ") + numberText(modCycles::SelectedNameID));
    unloadWaitWindow();
}

void frmAdd::bindInputs() {
    inputs().bind(*ui_->txtFields_0, QStringLiteral("Name"));
    inputs().bind(*ui_->txtFields_1, QStringLiteral("FName"));
    inputs().bind(*ui_->dtpBirthday, QStringLiteral("Birthdate"));
    inputs().bind(*ui_->chkGender, QStringLiteral("Gender"));
    inputs().bind(*ui_->txtFields_4, QStringLiteral("CatID"));
    inputs().bind(*ui_->txtFields_5, QStringLiteral("Notes"));
    inputs().bind(*ui_->lblID, QStringLiteral("NameID"));
    adoPrimaryRS_MoveComplete();
}

void frmAdd::LockFields(bool locked) {
    for (TextBox* box : {ui_->txtFields_0, ui_->txtFields_1, ui_->txtFields_4})
        box->setLocked(locked);
    ui_->txtFields_5->setLocked(locked);
    ui_->chkGender->setEnabled(!locked);
    ui_->dtpBirthday->setEnabled(!locked);
    ui_->cbAddCat->setLocked(locked);
}

void frmAdd::SetGender(bool gender) {
    ui_->lblMF->setText(genderCaption(gender));
}

void frmAdd::chkGender_Click() {
    SetGender(ui_->chkGender->isChecked());
}

// The number that is typed is left alone where it is right, and so is the cursor in it.
void frmAdd::cbAddCat_Click() {
    const QString catId = numberText(ui_->cbAddCat->ItemData(ui_->cbAddCat->ListIndex()));
    if (ui_->txtFields_4->text() != catId)
        ui_->txtFields_4->setText(catId);
}

// Selects the category whose number the box holds. A number of none, and what is no number, leaves
// the list as it is.
void frmAdd::txtFields_Change() {
    bool isNumber = false;
    const Long catId = ui_->txtFields_4->text().toInt(&isNumber);
    const int entry = isNumber ? ui_->cbAddCat->indexOf(catId) : -1;
    if (entry != -1)
        ui_->cbAddCat->setListIndex(entry);
}

void frmAdd::afterStep() {
    SetGender(ui_->chkGender->isChecked());
}

// Selecting a category writes it into the new row.
void frmAdd::afterAdd() {
    SetGender(false);
    ui_->cbAddCat->setListIndex(0);
}

void frmAdd::afterUpdate() {
    adoPrimaryRS().MoveFirst();
    adoPrimaryRS_MoveComplete();
}

void frmAdd::cmdAlphabet_Click(int button) {
    adoPrimaryRS().MoveFirst();
    find(alphabetCriteria(button));
}

// From the current row on.
void frmAdd::find(const QString& criteria) {
    adoPrimaryRS().Find(criteria);
    adoPrimaryRS_MoveComplete();
}

Message frmAdd::lastRowRefusal() {
    return lastPersonRefusal();
}

Message frmAdd::deletionQuestion() {
    return personDeletionQuestion();
}

void frmAdd::refillMainLists() {
    modCycles::FillPersonList();
}
