// The two states of the buttons.
#include "records/record_bar.h"

#include "ui_record_bar.h"

RecordBar::RecordBar(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::RecordBar>()) {
    ui_->setupUi(this);
    SetButtons(true);
}

RecordBar::~RecordBar() = default;

void RecordBar::SetButtons(bool browsing) {
    for (QWidget* button : {ui_->cmdAdd, ui_->cmdEdit, ui_->cmdDelete, ui_->cmdClose})
        button->setVisible(browsing);
    for (QWidget* button : {ui_->cmdUpdate, ui_->cmdCancel})
        button->setVisible(!browsing);
    for (QWidget* button : {ui_->cmdNext, ui_->cmdFirst, ui_->cmdLast, ui_->cmdPrevious})
        button->setEnabled(browsing);
}
