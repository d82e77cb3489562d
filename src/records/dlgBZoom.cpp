// The picture of the chart, and the click that closes it.
#include "records/dlgBZoom.h"

#include "controls/chart.h"
#include "runtime/event.h"
#include "shell/main_controls.h"
#include "ui_dlgBZoom.h"

namespace {

constexpr double kEnlargement = 2;

}  // namespace

dlgBZoom::dlgBZoom(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::dlgBZoom>()) {
    ui_->setupUi(this);
    onEvent(ui_->Picture1, &PictureBox::Click, this, &dlgBZoom::Picture1_Click);
}

dlgBZoom::~dlgBZoom() = default;

void dlgBZoom::Form_Load() {
    ui_->Picture1->setPixmap(mainControls().chtMain->picture(kEnlargement));
}

void dlgBZoom::Picture1_Click() {
    Unload();
}
