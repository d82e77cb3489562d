// The answer to the question for the device.
#include "reports/dlgScreenPrinter.h"

#include "runtime/event.h"
#include "shell/handover.h"
#include "ui_dlgScreenPrinter.h"

dlgScreenPrinter::dlgScreenPrinter(QWidget* owner)
    : Form(owner), ui_(std::make_unique<Ui::dlgScreenPrinter>()) {
    ui_->setupUi(this);
    setDefaultButton(*ui_->OKButton);
    onEvent(ui_->OKButton, &PictureButton::Click, this, &dlgScreenPrinter::OKButton_Click);
}

dlgScreenPrinter::~dlgScreenPrinter() = default;

void dlgScreenPrinter::OKButton_Click() {
    modCycles::ReportToScreen = ui_->optScreen->isChecked();
    Unload();
}
