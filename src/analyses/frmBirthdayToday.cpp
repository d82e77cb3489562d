// The event routines of the birthday calendar.
#include "analyses/frmBirthdayToday.h"

#include "analyses/birthdays.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "runtime/numbers.h"
#include "store/databases.h"
#include "store/statements.h"
#include "ui_frmBirthdayToday.h"

namespace {

constexpr int kAgeWidth = 1050;  // twips

std::vector<ListRow> rowsOf(const std::vector<Birthday>& birthdays) {
    std::vector<ListRow> rows;
    rows.reserve(birthdays.size());
    for (const Birthday& birthday : birthdays)
        rows.push_back(
            {.smallIcon = birthday.signKey, .texts = {birthday.name, numberText(birthday.age)}});
    return rows;
}

}  // namespace

frmBirthdayToday::frmBirthdayToday(QWidget* owner)
    : Form(owner), ui_(std::make_unique<Ui::frmBirthdayToday>()) {
    ui_->setupUi(this);
    ui_->lvBDays->setColumns(
        {{.header = QStringLiteral("Name")},
         {.header = QStringLiteral("Age"), .width = kAgeWidth, .alignment = Qt::AlignRight}});
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmBirthdayToday::cmdClose_Click);
    onEvent(ui_->dtpBDayToday, &DatePicker::Change, this, &frmBirthdayToday::dtpBDayToday_Change);
    onEvent(ui_->lvBDays, &ListView::ColumnClick, this, &frmBirthdayToday::lvBDays_ColumnClick);
}

frmBirthdayToday::~frmBirthdayToday() = default;

void frmBirthdayToday::Form_Load() {
    connection_ = openPersonDatabase();
    adoPrimaryRS_.emplace(*connection_, statements::birthdays());
    ui_->dtpBDayToday->setValue(host().today());
    dtpBDayToday_Change();
}

void frmBirthdayToday::Form_Unload() {
    adoPrimaryRS_.reset();
    connection_.reset();
}

void frmBirthdayToday::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmBirthdayToday::cmdClose_Click() {
    Unload();
}

void frmBirthdayToday::dtpBDayToday_Change() {
    ui_->lvBDays->fill(rowsOf(birthdaysOn(ui_->dtpBDayToday->Value(), *adoPrimaryRS_)));
}

// There is no way to sort downwards: a second click on a header changes nothing.
void frmBirthdayToday::lvBDays_ColumnClick(int column) {
    ui_->lvBDays->setSortOrder(ListSortOrder::Ascending);
    ui_->lvBDays->setSortKey(column - 1);
    ui_->lvBDays->setSorted(true);
}
