// The event routines of the add-person wizard.
#include "records/frmAddNew.h"

#include <utility>

#include "controls/label_room.h"
#include "records/new_records.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "runtime/text.h"
#include "shell/main_lists.h"
#include "store/databases.h"
#include "store/list_fillers.h"
#include "ui_frmAddNew.h"

namespace {

const QString& editCaption() {
    static const QString caption = QStringLiteral("&Edit");
    return caption;
}

}  // namespace

frmAddNew::frmAddNew(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmAddNew>()) {
    ui_->setupUi(this);
    reserveRoomForGuidance();
    ui_->lstCats->setSorted(true);
    lockNames(true);
    connectEvents();
}

frmAddNew::~frmAddNew() = default;

// The first step says most. Where its words have room, no step moves the controls below them.
void frmAddNew::reserveRoomForGuidance() {
    reserveRoom(*ui_->lblIntro, wizard::step(wizard::kName).guidance,
                ui_->stkSteps->minimumWidth());
}

void frmAddNew::connectEvents() {
    onEvent(ui_->chkG, &QCheckBox::toggled, this, &frmAddNew::chkG_Click);
    onEvent(ui_->cmdAddCat, &PictureButton::Click, this, &frmAddNew::cmdAddCat_Click);
    onEvent(ui_->cmdBack, &PictureButton::Click, this, &frmAddNew::cmdBack_Click);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmAddNew::cmdClose_Click);
    onEvent(ui_->cmdEdit, &PictureButton::Click, this, &frmAddNew::cmdEdit_Click);
    onEvent(ui_->cmdNext, &PictureButton::Click, this, &frmAddNew::cmdNext_Click);
    onEvent(ui_->txtType, &TextBox::returnPressed, this, &frmAddNew::txtType_KeyDown);
    onEvent(ui_->txtType, &TextBox::LostFocus, this, &frmAddNew::txtType_LostFocus);
}

void frmAddNew::Form_Load() {
    WizardDirty = false;
    WizardStep = wizard::kName;
    ShowWizardStep(WizardStep);
    ui_->dtpBDate->setValue(host().today());
    FillWizardCategories();
}

void frmAddNew::Form_Unload() {
    if (!WizardDirty)
        return;
    modCycles::FillPersonList();
    modCycles::FillCategoryList();
}

void frmAddNew::ShowWizardStep(Integer step) {
    if (!wizard::isStep(step))
        return;
    if (step == wizard::kSummary)
        BuildFinalSummary();
    showChanges(wizard::step(step));
    if (step == wizard::kWriting)
        WritePerson();
}

void frmAddNew::showChanges(const wizard::Step& step) {
    if (!step.guidance.isEmpty())
        ui_->lblIntro->setText(step.guidance);
    if (!step.page.isEmpty())
        ui_->stkSteps->setCurrentWidget(findChild<QWidget*>(step.page));
    if (!step.nextCaption.isEmpty())
        ui_->cmdNext->setText(step.nextCaption);
    if (!step.focus.isEmpty())
        findChild<QWidget*>(step.focus)->setFocus();
}

void frmAddNew::cmdNext_Click() {
    WizardStep = wizard::stepAfter(WizardStep);
    ShowWizardStep(WizardStep);
}

void frmAddNew::cmdBack_Click() {
    WizardStep = wizard::stepBefore(WizardStep);
    ShowWizardStep(WizardStep);
}

void frmAddNew::cmdClose_Click() {
    Unload();
}

// Enter takes the typed name apart. Once there has been a name, Next stays enabled.
void frmAddNew::txtType_KeyDown() {
    showName(splitName(ui_->txtType->text()));
    if (!ui_->txtN->text().isEmpty())
        ui_->cmdNext->setEnabled(true);
}

void frmAddNew::txtType_LostFocus() {
    txtType_KeyDown();
}

void frmAddNew::cmdEdit_Click() {
    const bool starts = ui_->cmdEdit->text() == editCaption();
    ui_->cmdEdit->setText(starts ? QStringLiteral("&Update") : editCaption());
    if (!starts)
        ui_->txtType->setText(joinedName(shownName()));
    lockNames(!starts);
}

void frmAddNew::chkG_Click() {
    ui_->chkG->setText(genderCaption(ui_->chkG->isChecked()));
}

void frmAddNew::cmdAddCat_Click() {
    if (ui_->txtNewCat->text().isEmpty())
        return;
    const QString category = Trim(ui_->txtNewCat->text());
    writeCategory(openPersonDatabase(), category);
    WizardDirty = true;
    FillWizardCategories();
    ui_->lstCats->setText(category);
    ui_->txtNewCat->clear();
}

void frmAddNew::FillWizardCategories() {
    ui_->lstCats->fill(readCategories());
}

void frmAddNew::BuildFinalSummary() {
    ui_->txtFinal->setText(newPersonSummary(enteredPerson(), ui_->lstCats->Text()));
}

void frmAddNew::WritePerson() {
    const bool failed = trapped(this, [this] {
        Connection people = openPersonDatabase();
        const Long catId = ui_->lstCats->ItemData(ui_->lstCats->ListIndex());
        writePerson(std::move(people), enteredPerson(), catId);
    });
    if (failed)
        return;
    WizardDirty = true;
    ++WizardStep;
    ShowWizardStep(WizardStep);
}

NewPerson frmAddNew::enteredPerson() const {
    return {.firstName = ui_->txtF->text(),
            .name = ui_->txtN->text(),
            .birthdate = ui_->dtpBDate->Value(),
            .isFemale = ui_->chkG->isChecked(),
            .notes = ui_->txtNotes->Text()};
}

SplitName frmAddNew::shownName() const {
    return {.first = ui_->txtF->text(), .last = ui_->txtN->text()};
}

void frmAddNew::showName(const SplitName& name) {
    ui_->txtF->setText(name.first);
    ui_->txtN->setText(name.last);
}

// Either the typed name can be changed or the names that were derived from it.
void frmAddNew::lockNames(bool locked) {
    ui_->txtType->setReadOnly(!locked);
    for (TextBox* box : {ui_->txtF, ui_->txtN})
        box->setLocked(locked);
}
