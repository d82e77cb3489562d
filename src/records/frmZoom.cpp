// The event routines of the person's card.
#include "records/frmZoom.h"

#include "controls/pictures.h"
#include "records/person_card.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "runtime/text.h"
#include "shell/handover.h"
#include "store/databases.h"
#include "store/list_fillers.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "ui_frmZoom.h"

frmZoom::frmZoom(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmZoom>()) {
    ui_->setupUi(this);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmZoom::cmdClose_Click);
}

frmZoom::~frmZoom() = default;

void showCard(Long nameId, QWidget* owner) {
    modCycles::SelectedNameID = nameId;
    frmZoom(owner).ShowModal();
    modCycles::SelectedNameID = 0;
}

void frmZoom::Form_Load() {
    Connection connection = openPersonDatabase();
    Recordset categories(connection, statements::categories());
    const Recordset person(connection, statements::person(modCycles::SelectedNameID));
    ui_->listCats->fill(categoryEntries(categories));
    showCard(personCard(person, host().today()));
    showCategory(person.Fields(u"CatID"));
}

void frmZoom::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmZoom::cmdClose_Click() {
    Unload();
}

void frmZoom::showCard(const PersonCard& card) {
    ui_->lblName->setText(card.name);
    ui_->lblBirth->setText(card.birth);
    ui_->txtNotes->setText(card.notes);
    ui_->imgMale->setVisible(card.isMale);
    ui_->imgFemale->setVisible(!card.isMale);
    ui_->imgSign->setPixmap(largePicture(LCase(card.sign)));
    ui_->imgSign->setToolTip(card.sign);
    ui_->imgSign->setAccessibleName(card.sign);
}

// The selection walks down the list to the person's category. Where there is none it ends on the
// last one, and the label keeps what it says.
void frmZoom::showCategory(const Value& catId) {
    for (int row = 0; row < ui_->listCats->ListCount(); ++row) {
        ui_->listCats->setListIndex(row);
        if (Value(ui_->listCats->ItemData(row)) == catId) {
            ui_->lblCat->setText(ui_->listCats->Text());
            return;
        }
    }
}
