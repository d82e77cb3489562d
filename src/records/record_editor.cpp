// The event routines that the record editors share.
#include "records/record_editor.h"

#include <QKeyEvent>

#include "controls/screen.h"
#include "records/bound_fields.h"
#include "records/editor_keys.h"
#include "records/editor_status.h"
#include "records/record_bar.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "store/databases.h"
#include "ui_record_bar.h"

RecordEditor::RecordEditor(QWidget* owner) : Form(owner) {}
RecordEditor::~RecordEditor() = default;

void RecordEditor::useBar(RecordBar& bar) {
    bar_ = &bar;
    const Ui::RecordBar& ui = bar.controls();
    onEvent(ui.cmdAdd, &PictureButton::Click, this, &RecordEditor::cmdAdd_Click);
    onEvent(ui.cmdCancel, &PictureButton::Click, this, &RecordEditor::cmdCancel_Click);
    onEvent(ui.cmdClose, &PictureButton::Click, this, &RecordEditor::cmdClose_Click);
    onEvent(ui.cmdDelete, &PictureButton::Click, this, &RecordEditor::cmdDelete_Click);
    onEvent(ui.cmdEdit, &PictureButton::Click, this, &RecordEditor::cmdEdit_Click);
    onEvent(ui.cmdFirst, &PictureButton::Click, this, &RecordEditor::cmdFirst_Click);
    onEvent(ui.cmdLast, &PictureButton::Click, this, &RecordEditor::cmdLast_Click);
    onEvent(ui.cmdNext, &PictureButton::Click, this, &RecordEditor::cmdNext_Click);
    onEvent(ui.cmdPrevious, &PictureButton::Click, this, &RecordEditor::cmdPrevious_Click);
    onEvent(ui.cmdUpdate, &PictureButton::Click, this, &RecordEditor::cmdUpdate_Click);
}

void RecordEditor::openRecords(const QString& statement) {
    connection_ = openPersonDatabase();
    adoPrimaryRS_.emplace(*connection_, statement);
    inputs_ = std::make_unique<BoundFields>(*adoPrimaryRS_);
    endEditing();
    mvBookMark = 0;
    mbDataChanged = false;
    mbListsStale = false;
}

void RecordEditor::Form_Unload() {
    resetMousePointer();
    if (mbListsStale)
        refillMainLists();
    inputs_.reset();
    adoPrimaryRS_.reset();
    connection_.reset();
}

void RecordEditor::Form_KeyDown(QKeyEvent& key) {
    if (mbEditFlag || mbAddNewFlag)
        return;
    const auto command = browseCommandOf(key.key(), key.modifiers() & Qt::ControlModifier);
    if (!command)
        return;
    key.accept();
    switch (*command) {
        case BrowseCommand::Close:
            return cmdClose_Click();
        case BrowseCommand::First:
            return cmdFirst_Click();
        case BrowseCommand::Previous:
            return cmdPrevious_Click();
        case BrowseCommand::Next:
            return cmdNext_Click();
        case BrowseCommand::Last:
            return cmdLast_Click();
    }
}

void RecordEditor::adoPrimaryRS_MoveComplete() {
    inputs_->show();
    bar_->controls().lblStatus->setText(recordStatus(adoPrimaryRS_->AbsolutePosition()));
}

void RecordEditor::go(Move where) {
    ((*adoPrimaryRS_).*where)();
    adoPrimaryRS_MoveComplete();
}

void RecordEditor::goTo(Move end) {
    trapped(this, [&] {
        go(end);
        afterStep();
        mbDataChanged = false;
    });
}

// A step off an end beeps and is taken back.
void RecordEditor::step(Move by, bool (Recordset::*isOff)() const, Move back) {
    trapped(this, [&] {
        const Recordset& rows = *adoPrimaryRS_;
        if (!(rows.*isOff)())
            go(by);
        afterStep();
        if ((rows.*isOff)() && rows.RecordCount() > 0) {
            host().beep();
            go(back);
        }
        mbDataChanged = false;
    });
}

void RecordEditor::cmdFirst_Click() {
    goTo(&Recordset::MoveFirst);
}

void RecordEditor::cmdLast_Click() {
    goTo(&Recordset::MoveLast);
}

void RecordEditor::cmdNext_Click() {
    step(&Recordset::MoveNext, &Recordset::EndOfFile, &Recordset::MoveLast);
}

void RecordEditor::cmdPrevious_Click() {
    step(&Recordset::MovePrevious, &Recordset::BOF, &Recordset::MoveFirst);
}

void RecordEditor::beginEditing(bool& flag, const QString& status) {
    bar_->controls().lblStatus->setText(status);
    flag = true;
    bar_->SetButtons(false);
    LockFields(false);
}

void RecordEditor::endEditing() {
    bar_->SetButtons(true);
    LockFields(true);
    mbEditFlag = false;
    mbAddNewFlag = false;
}

void RecordEditor::cmdAdd_Click() {
    trapped(this, [this] {
        const bool isEmpty = adoPrimaryRS_->BOF() && adoPrimaryRS_->EndOfFile();
        if (!isEmpty)
            mvBookMark = adoPrimaryRS_->Bookmark();
        go(&Recordset::AddNew);
        beginEditing(mbAddNewFlag, addStatus());
        afterAdd();
    });
}

void RecordEditor::cmdEdit_Click() {
    trapped(this, [this] {
        adoPrimaryRS_->Edit();
        beginEditing(mbEditFlag, editStatus());
    });
}

// A batch needs no current row, but the update that the user asks for is that of one.
void RecordEditor::cmdUpdate_Click() {
    trapped(this, [this] {
        adoPrimaryRS_->Edit();
        adoPrimaryRS_->UpdateBatch(adAffectAll);
        if (mbAddNewFlag)
            go(&Recordset::MoveLast);
        endEditing();
        mbDataChanged = false;
        mbListsStale = true;
        afterUpdate();
    });
}

void RecordEditor::cmdCancel_Click() {
    endEditing();
    resumingNext([this] { adoPrimaryRS_->CancelUpdate(); });
    resumingNext([this] { goBack(); });
    adoPrimaryRS_MoveComplete();
    mbDataChanged = false;
    mbListsStale = false;
}

void RecordEditor::goBack() {
    if (mvBookMark > 0)
        adoPrimaryRS_->setBookmark(mvBookMark);
    else
        adoPrimaryRS_->MoveFirst();
}

void RecordEditor::cmdDelete_Click() {
    trapped(this, [this] {
        if (adoPrimaryRS_->RecordCount() == 1) {
            ask(lastRowRefusal());
            return;
        }
        if (ask(deletionQuestion()) == Answer::No)
            return;
        adoPrimaryRS_->Delete(adAffectCurrent);
        go(&Recordset::MoveNext);
        if (adoPrimaryRS_->EndOfFile())
            go(&Recordset::MoveLast);
        mbListsStale = true;
    });
}

Answer RecordEditor::ask(Message message) {
    message.owner = this;
    return host().showMessage(message);
}

void RecordEditor::cmdClose_Click() {
    Unload();
}
