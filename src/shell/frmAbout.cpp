// The event routines of the about window.
#include "shell/frmAbout.h"

#include "runtime/app.h"
#include "runtime/event.h"
#include "shell/system_info.h"
#include "ui_frmAbout.h"

frmAbout::frmAbout(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmAbout>()) {
    ui_->setupUi(this);
    ui_->cmdOK->setFocus();
    onEvent(ui_->cmdOK, &PictureButton::Click, this, &frmAbout::cmdOK_Click);
    onEvent(ui_->cmdSysInfo, &PictureButton::Click, this, &frmAbout::cmdSysInfo_Click);
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load() {
    setWindowTitle(QStringLiteral("About Ondara 2.0"));
    ui_->lblTitle->setText(App::Title());
    ui_->lblVersion->setText(QStringLiteral("Version %1.%2.%3")
                                 .arg(App::Major())
                                 .arg(App::Minor())
                                 .arg(App::Revision()));
}

void frmAbout::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdOK_Click();
}

void frmAbout::cmdOK_Click() {
    Unload();
}

void frmAbout::cmdSysInfo_Click() {
    modCycles::StartSysInfo();
}
