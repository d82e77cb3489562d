// The event routines of quick match.
#include "analyses/frmQuick.h"

#include "analyses/birthdate_match.h"
#include "analyses/match_labels.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "shell/main_controls.h"
#include "store/databases.h"
#include "store/person_entry.h"
#include "store/statements.h"
#include "ui_frmQuick.h"

namespace {

constexpr Long kEmotionalColour = 0xC00000;  // 0xBBGGRR

}  // namespace

frmQuick::frmQuick(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmQuick>()) {
    ui_->setupUi(this);
    ui_->lblE->setForeColor(kEmotionalColour);
    ui_->lblP->setForeColor(kPhysicalMatchColour);
    ui_->lblI->setForeColor(kIntellectualMatchColour);
    ui_->lblAvg->setForeColor(kAverageMatchColour);
    ui_->lblSign->setForeColor(kAverageMatchColour);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmQuick::cmdClose_Click);
    onEvent(ui_->cmdGo, &PictureButton::Click, this, &frmQuick::cmdGo_Click);
    onEvent(ui_->dtpQuick, &DatePicker::Change, this, &frmQuick::dtpQuick_Change);
}

frmQuick::~frmQuick() = default;

void frmQuick::Form_Load() {
    connection_ = openPersonDatabase();
    adoFindBirth_.emplace(*connection_, statements::person(chosenNameId()));
    setWindowTitle(QStringLiteral("Quick Match ") + fullName(*adoFindBirth_));
    ui_->dtpQuick->setValue(host().today());
}

void frmQuick::Form_Unload() {
    adoFindBirth_.reset();
    connection_.reset();
}

void frmQuick::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmQuick::cmdClose_Click() {
    Unload();
}

void frmQuick::dtpQuick_Change() {
    cmdGo_Click();
}

void frmQuick::cmdGo_Click() {
    trapped(this, [this] {
        const BirthdateMatch match =
            matchBirthdates(adoFindBirth_->Fields(u"birthdate").toDate(), ui_->dtpQuick->Value());
        showMatch(match, {*ui_->lblE, *ui_->lblP, *ui_->lblI, *ui_->lblInter, *ui_->lblSign});
        ui_->lblAvg->setText(match.average);
    });
}
