// The event routines of the import wizard.
#include "import/frmImport.h"

#include <QDir>
#include <QFileInfo>

#include "controls/file_dialog.h"
#include "controls/label_room.h"
#include "import/import_rows.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "runtime/numbers.h"
#include "shell/main_lists.h"
#include "store/connection_string.h"
#include "store/databases.h"
#include "store/list_fillers.h"
#include "store/statements.h"
#include "ui_frmImport.h"

frmImport::frmImport(QWidget* owner)
    : Form(owner), ui_(std::make_unique<Ui::frmImport>()), cdgImport_(new FileDialog(this)) {
    ui_->setupUi(this);
    setUpControls();
    reserveRoomForGuidance();
    connectEvents();
}

frmImport::~frmImport() = default;

void frmImport::setUpControls() {
    cdgImport_->setObjectName(QStringLiteral("cdgImport"));
    cdgImport_->setDialogTitle(QStringLiteral("Locate Names.mdb"));
    cdgImport_->setFileName(QStringLiteral("names.mdb"));
    cdgImport_->setFilter(QStringLiteral("Ondara 1.0 database|names.mdb"));
    ui_->txtPath->setLocked(true);
    ui_->lvImport->setCheckBoxes(true);
    ui_->lvImport->setColumns(importColumns());
    ui_->cbImport->setSorted(true);
}

// The step of the editing says most. Where its words have room, no step with such words moves the
// controls below them.
void frmImport::reserveRoomForGuidance() {
    reserveRoom(*ui_->lblIntro, *importing::step(importing::kEditing).guidance,
                ui_->stkSteps->minimumWidth());
}

void frmImport::connectEvents() {
    onEvent(ui_->chkAll, &QCheckBox::stateChanged, this, &frmImport::chkAll_Click);
    onEvent(ui_->cmdAssign, &PictureButton::Click, this, &frmImport::cmdAssign_Click);
    onEvent(ui_->cmdBack, &PictureButton::Click, this, &frmImport::cmdBack_Click);
    onEvent(ui_->cmdBrowse, &PictureButton::Click, this, &frmImport::cmdBrowse_Click);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmImport::cmdClose_Click);
    onEvent(ui_->cmdNext, &PictureButton::Click, this, &frmImport::cmdNext_Click);
    onEvent(ui_->cmdUpdate, &PictureButton::Click, this, &frmImport::cmdUpdate_Click);
    onEvent(ui_->lvImport, &ListView::ItemClick, this, &frmImport::lvImport_ItemClick);
}

void frmImport::Form_Load() {
    ui_->cmdNext->setEnabled(false);
    ImportDirty = false;
    ImportStep = importing::kLocation;
    WizardSteps(ImportStep);
    FillImportCategories();
}

void frmImport::Form_Unload() {
    OldPeople_.reset();
    oldDatabase_.reset();
    if (ImportDirty)
        modCycles::FillPersonList();
}

void frmImport::WizardSteps(Integer step) {
    if (!importing::isStep(step))
        return;
    if (step == importing::kConfirmation && isAnyoneUnassigned()) {
        host().showMessage({.text = importing::notEveryoneAssigned(), .owner = this});
        --ImportStep;
        WizardSteps(importing::kEditing);
        return;
    }
    showChanges(importing::step(step));
    if (step == importing::kListing)
        FillImportList();
    if (step == importing::kWriting)
        ImportPeople();
}

void frmImport::showChanges(const importing::Step& step) {
    if (step.guidance) {
        ui_->lblIntro->setText(*step.guidance);
        ui_->lblIntro->setVisible(!step.guidance->isEmpty());
    }
    if (!step.page.isEmpty())
        ui_->stkSteps->setCurrentWidget(findChild<QWidget*>(step.page));
    if (!step.nextCaption.isEmpty())
        ui_->cmdNext->setText(step.nextCaption);
    if (!step.focus.isEmpty())
        findChild<QWidget*>(step.focus)->setFocus();
    if (step.closing)
        ui_->lblFinish->setText(*step.closing);
    ui_->txtFinish->setVisible(step.showsImported);
    ui_->pbImport->setVisible(step.showsImported);
}

void frmImport::goTo(std::optional<Integer> step) {
    if (!step)
        return;
    ImportStep = *step;
    WizardSteps(ImportStep);
}

void frmImport::cmdNext_Click() {
    goTo(importing::stepAfter(ImportStep));
}

void frmImport::cmdBack_Click() {
    goTo(importing::stepBefore(ImportStep));
}

void frmImport::cmdClose_Click() {
    Unload();
}

void frmImport::cmdBrowse_Click() {
    const auto browse = [this] {
        cdgImport_->setCancelError(true);
        cdgImport_->ShowOpen();
        openOldDatabase(cdgImport_->FileName());
    };
    trapped(this, browse, ErrorNumber::Cancelled);
}

// The names come behind those that are there already, though these are not in the database any
// more that is now open.
void frmImport::openOldDatabase(const QString& path) {
    if (!QFileInfo(pathOfDataSource(path)).isFile()) {
        host().showMessage({.text = importing::noSuchFile(), .owner = this});
        return;
    }
    ui_->txtPath->setText(QDir::toNativeSeparators(path));
    oldDatabase_ = openOldPeople(path);
    OldPeople_ = Recordset(*oldDatabase_, statements::wholeTable());
    readOldNames(*OldPeople_, [this](const QString& name) { ui_->lstImport->AddItem(name); });
    ui_->cmdNext->setEnabled(true);
}

// A box that is neither empty nor checked changes nothing.
void frmImport::chkAll_Click() {
    const Qt::CheckState state = ui_->chkAll->checkState();
    if (state == Qt::PartiallyChecked)
        return;
    ui_->lstImport->setAllSelected(state == Qt::Checked);
    ui_->lstImport->setListIndex(-1);
}

void frmImport::FillImportCategories() {
    Connection people = openPersonDatabase();
    Recordset categories(people, statements::categories());
    ui_->cbImport->fill(categoryEntries(categories));
    ui_->cbImport->setListIndex(0);
}

// With nobody selected, or after an error, the step stays that of the listing.
void frmImport::FillImportList() {
    trapped(this, [this] {
        ui_->lvImport->Clear();
        if (!isAnySelected(ui_->lstImport->all()))
            return;
        readImportRows(*OldPeople_, ui_->lstImport->all(),
                       [this](ListRow row) { ui_->lvImport->AddRow(std::move(row)); });
        goTo(importing::stepAfter(ImportStep));
    });
}

bool frmImport::isAnyoneUnassigned() const {
    for (int row = 1; row <= ui_->lvImport->ListCount(); ++row) {
        if (isUnassigned(ui_->lvImport->ListItem(row)))
            return true;
    }
    return false;
}

void frmImport::lvImport_ItemClick(int row) {
    ImportRow = RoundToInteger(row + 1);
    const ImportFields fields = importFields(ui_->lvImport->ListItem(ImportRow));
    ui_->txtN->setText(fields.name);
    ui_->txtF->setText(fields.firstName);
    ui_->dtpImport->setValue(fields.birthdate);
    ui_->cbImport->setListIndex(fields.categoryIndex);
}

ListEntry frmImport::chosenCategory() const {
    const ComboBox& categories = *ui_->cbImport;
    return {.text = categories.Text(), .itemData = categories.ItemData(categories.ListIndex())};
}

// The row may be another one by now, or there may be none: the list can have been built anew since
// it was clicked.
void frmImport::cmdUpdate_Click() {
    const ImportFields fields{.name = ui_->txtN->text(),
                              .firstName = ui_->txtF->text(),
                              .birthdate = ui_->dtpImport->Value(),
                              .categoryIndex = ui_->cbImport->ListIndex()};
    ListView& rows = *ui_->lvImport;
    rows.setListItem(ImportRow, updatedRow(rows.ListItem(ImportRow), fields, chosenCategory()));
}

void frmImport::cmdAssign_Click() {
    const ListEntry category = chosenCategory();
    ListView& rows = *ui_->lvImport;
    for (int row = 1; row <= rows.ListCount(); ++row)
        rows.setListItem(row, assignedRow(rows.ListItem(row), category));
}

void frmImport::ImportPeople() {
    bool isNobody = false;
    const auto error = errorEnding([&] {
        Connection connection = openPersonDatabase();
        Recordset people(connection, statements::wholeTable());
        isNobody = ui_->lvImport->ListCount() == 0;
        if (!isNobody)
            importRowsFromLast(people);
    });
    if (isNobody) {
        host().showMessage({.text = importing::nobodyToImport(), .owner = this});
        return;
    }
    ui_->lblFinish->setText(importing::closingWords(error.has_value()));
    ui_->pbImport->hide();
}

void frmImport::importRowsFromLast(Recordset& people) {
    ui_->lblFinish->clear();
    ui_->txtFinish->clear();
    for (int i = ui_->lvImport->ListCount(); i > 0; --i) {
        const ListRow row = ui_->lvImport->ListItem(i);
        people.AddNew();
        for (const auto& [field, value] : importedRecord(row))
            people.Collect(field, value);
        people.Update();
        ImportDirty = true;
        ui_->txtFinish->append(importedLine(row));
        ui_->lvImport->Remove(i);
    }
}
