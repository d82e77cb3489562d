// The event routines of the form that deletes favourites.
#include "shell/frmManageFaves.h"

#include "runtime/event.h"
#include "shell/favourites_menu.h"
#include "store/favourites.h"
#include "ui_frmManageFaves.h"

frmManageFaves::frmManageFaves(QWidget* owner)
    : Form(owner), ui_(std::make_unique<Ui::frmManageFaves>()) {
    ui_->setupUi(this);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmManageFaves::cmdClose_Click);
    onEvent(ui_->cmdDelete, &PictureButton::Click, this, &frmManageFaves::cmdDelete_Click);
}

frmManageFaves::~frmManageFaves() = default;

void frmManageFaves::Form_Load() {
    modCycles::listFavourites(*ui_->flManageFaves);
}

void frmManageFaves::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmManageFaves::cmdDelete_Click() {
    if (ui_->flManageFaves->ListIndex() == -1)
        return;
    LockFaves(true);
    deleteFavouriteFile(ui_->flManageFaves->FileName());
    ui_->flManageFaves->Refresh();
    LockFaves(false);
    ui_->flManageFaves->setFocus();
}

void frmManageFaves::LockFaves(bool sett) {
    for (QWidget* control :
         std::initializer_list<QWidget*>{ui_->flManageFaves, ui_->cmdDelete, ui_->cmdClose})
        control->setEnabled(!sett);
}

void frmManageFaves::cmdClose_Click() {
    modCycles::FillFavouritesMenu();
    Unload();
}
