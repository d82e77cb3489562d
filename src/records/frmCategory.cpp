// The event routines of the category manager.
#include "records/frmCategory.h"

#include "records/bound_fields.h"
#include "records/bound_values.h"
#include "records/deletion_messages.h"
#include "shell/frmWait.h"
#include "shell/main_lists.h"
#include "store/databases.h"
#include "store/statements.h"
#include "ui_frmCategory.h"

namespace {

Long countPeopleOfCategory(Long catId) {
    Connection connection = openPersonDatabase();
    return Recordset(connection, statements::peopleOfCategory(catId)).RecordCount();
}

}  // namespace

frmCategory::frmCategory(QWidget* owner)
    : RecordEditor(owner), ui_(std::make_unique<Ui::frmCategory>()) {
    ui_->setupUi(this);
    useBar(*ui_->barRecord);
}

frmCategory::~frmCategory() = default;

void frmCategory::Form_Load() {
    openRecords(statements::categoriesInOrder());
    inputs().bind(*ui_->txtFields_1, QStringLiteral("Category"));
    inputs().bind(*ui_->lblCatID, QStringLiteral("CatID"));
    adoPrimaryRS_MoveComplete();
    unloadWaitWindow();
}

void frmCategory::LockFields(bool locked) {
    ui_->txtFields_1->setLocked(locked);
}

Message frmCategory::lastRowRefusal() {
    return lastCategoryRefusal();
}

Message frmCategory::deletionQuestion() {
    const Long people = countPeopleOfCategory(adoPrimaryRS().Fields(u"CatID").toLong());
    return categoryDeletionQuestion(people, shownText(adoPrimaryRS().Fields(u"Category")));
}

void frmCategory::refillMainLists() {
    modCycles::FillCategoryList();
}
