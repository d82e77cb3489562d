// The event routines of the group comparison.
#include "analyses/frmGroup.h"

#include <QPointer>
#include <QScopeGuard>
#include <QToolButton>

#include "analyses/group_cells.h"
#include "analyses/group_comparison.h"
#include "analyses/group_lists.h"
#include "controls/button_menu.h"
#include "runtime/app.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "runtime/text.h"
#include "shell/favourites_menu.h"
#include "shell/frmWait.h"
#include "shell/main_controls.h"
#include "store/databases.h"
#include "store/group_files.h"
#include "store/list_fillers.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "ui_frmGroup.h"

namespace {

// The items of the bar.
constexpr int kSelectGroup = 1;
constexpr int kSavedGroups = 2;
constexpr int kDefineGroups = 3;
constexpr int kDeleteGroups = 4;

}  // namespace

frmGroup::frmGroup(QWidget* owner) : Form(owner), ui_(std::make_unique<Ui::frmGroup>()) {
    ui_->setupUi(this);
    setUpControls();
    connectEvents();
}

frmGroup::~frmGroup() = default;

void frmGroup::setUpControls() {
    ui_->bbGroup->setGroup(
        QStringLiteral("Groups"),
        {{QStringLiteral("Select group"), QIcon(QStringLiteral(":/art/group.png"))},
         {QStringLiteral("Saved groups"), QIcon(QStringLiteral(":/art/group-saved.png"))},
         {QStringLiteral("Define groups"), QIcon(QStringLiteral(":/art/group-define.png"))},
         {QStringLiteral("Delete groups"), QIcon(QStringLiteral(":/art/group-delete.png"))}});
    for (ListControl* list :
         std::initializer_list<ListControl*>{ui_->cbCats, ui_->lstTotal, ui_->lstGroup})
        list->setSorted(true);
    // The group has its place also while a run hides it.
    QSizePolicy policy = ui_->lstGroup->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    ui_->lstGroup->setSizePolicy(policy);
    ui_->grdGroup->change(clearGroup);
    ui_->lblProc->hide();
    favesMenu_ = new ButtonMenu(this);
    favesMenu_->dropFrom(*ui_->tbGroup, *ui_->tbGroup_Faves).setFocusPolicy(Qt::TabFocus);
}

void frmGroup::connectEvents() {
    onEvent(ui_->bbGroup, &ButtonBar::Click, this, &frmGroup::bbGroup_Click);
    onEvent(ui_->cbCats, &ComboBox::Click, this, &frmGroup::cbCats_Click);
    onEvent(ui_->cmdAdd, &PictureButton::Click, this, &frmGroup::cmdAdd_Click);
    onEvent(ui_->cmdAddAll, &PictureButton::Click, this, &frmGroup::cmdAddAll_Click);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmGroup::cmdClose_Click);
    onEvent(ui_->cmdDelete, &PictureButton::Click, this, &frmGroup::cmdDelete_Click);
    onEvent(ui_->cmdRemove, &PictureButton::Click, this, &frmGroup::cmdRemove_Click);
    onEvent(ui_->cmdRemoveAll, &PictureButton::Click, this, &frmGroup::cmdRemoveAll_Click);
    onEvent(ui_->cmdSave, &PictureButton::Click, this, &frmGroup::cmdSave_Click);
    onEvent(ui_->cmdTransfer, &PictureButton::Click, this, &frmGroup::cmdTransfer_Click);
    onEvent(ui_->dtpGroup, &DatePicker::Change, this, &frmGroup::dtpGroup_Change);
    onEvent(ui_->flFaves, &FileListBox::DblClick, this, &frmGroup::flFaves_DblClick);
    onEvent(ui_->lstGroup, &ListBox::DblClick, this, &frmGroup::cmdRemove_Click);
    onEvent(ui_->lstTotal, &ListBox::DblClick, this, &frmGroup::cmdAdd_Click);
    onEvent(favesMenu_, &ButtonMenu::ButtonMenuClick, this, &frmGroup::tbGroup_ButtonMenuClick);
}

void frmGroup::Form_Load() {
    ui_->lstGroup->Clear();
    ui_->dtpGroup->setValue(host().today());
    Fill_Total();
    SetGrid();
    Connection connection = openPersonDatabase();
    Recordset categories(connection, statements::categories());
    ui_->cbCats->fill(categoryFilter(categoryEntries(categories)));
    ui_->cbCats->setListIndex(kEverybody);
    ui_->lstTotal->setListIndex(0);
    ui_->bbGroup->setChosenItem(kSelectGroup);
    SetGroupTab(kSelectGroup);
    FillGroupFavourites();
    CancelGroup_ = false;
    unloadWaitWindow();
}

void frmGroup::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        CancelGroup_ = true;
}

void frmGroup::Form_Cancel() {
    CancelGroup_ = true;
}

void frmGroup::cmdClose_Click() {
    Unload();
}

// What the lock leaves open does nothing during a run; an error of it is trapped.
template <class Steps>
void frmGroup::whenIdle(Steps&& steps) {
    if (!isAtWork())
        trapped(this, std::forward<Steps>(steps));
}

void frmGroup::tell(const QString& text, MessageIcon icon) {
    host().showMessage({.text = text, .icon = icon, .owner = this});
}

void frmGroup::bbGroup_Click(int, int item) {
    ui_->lstGroup->Clear();
    SetGroupTab(item);
    if (item != kSelectGroup) {
        ui_->flFaves->setPath(App::Path());
        ui_->flFaves->setPattern(groupPattern());
        ui_->flFaves->Refresh();
    }
    ui_->cbCats->setListIndex(kEverybody);
}

void frmGroup::SetGroupTab(int tab) {
    const bool picks = tab == kSelectGroup || tab == kDefineGroups;
    const bool compares = tab == kSelectGroup || tab == kSavedGroups;
    ui_->Shape1->setVisible(picks);
    ui_->pnlFiles->setVisible(!picks);
    ui_->pnlComparison->setVisible(compares);
    ui_->pnlName->setVisible(tab == kDefineGroups);
    ui_->cmdDelete->setVisible(tab == kDeleteGroups);
    ui_->lblCancel->setVisible(tab != kDeleteGroups);
}

void frmGroup::Fill_Total() {
    listPeople(statements::allPeopleWithNotes(), {});
}

void frmGroup::cbCats_Click() {
    trapped(this, [this] {
        const int category = ui_->cbCats->ListIndex();
        if (category == -1)
            return;
        listPeople(category == kEverybody
                       ? statements::allPeopleWithNotes()
                       : statements::peopleOfCategory(ui_->cbCats->ItemData(category)),
                   ui_->lstGroup->all());
    });
}

void frmGroup::listPeople(const QString& statement, const std::vector<ListEntry>& group) {
    Connection connection = openPersonDatabase();
    Recordset people(connection, statement);
    ui_->lstTotal->Clear();
    ui_->lstTotal->fill(outsideGroup(personEntries(people), group));
}

void frmGroup::cmdAdd_Click() {
    moveSelected(*ui_->lstTotal, *ui_->lstGroup);
}

void frmGroup::cmdRemove_Click() {
    moveSelected(*ui_->lstGroup, *ui_->lstTotal);
}

void frmGroup::moveSelected(ListBox& from, ListBox& to) {
    const int selected = from.ListIndex();
    if (selected == -1) {
        tell(QStringLiteral("Please select a person first."));
        return;
    }
    to.AddItem(from.Text());
    to.setItemData(to.NewIndex(), from.ItemData(selected));
    from.RemoveItem(selected);
}

// The last comes first: namesakes change their order.
void frmGroup::cmdAddAll_Click() {
    const std::vector<ListEntry>& people = ui_->lstTotal->all();
    ui_->lstGroup->add({people.rbegin(), people.rend()});
    ui_->lstTotal->Clear();
}

void frmGroup::cmdRemoveAll_Click() {
    ui_->cbCats->setListIndex(kEverybody);
    Fill_Total();
    ui_->lstGroup->Clear();
}

void frmGroup::FillGroupFavourites() {
    modCycles::fillFavourites(*favesMenu_, 0, *mainControls().flFavePerson);
}

void frmGroup::tbGroup_ButtonMenuClick(int index) {
    whenIdle([this, index] {
        if (favesMenu_->Key(index).isEmpty() &&
            !modCycles::selectFavourite(favesMenu_->Text(index), *ui_->cbCats, *ui_->lstTotal))
            tell(QStringLiteral("This person is not available in the selection list."));
    });
}

// The control that has the focus gives it up before the lock can take it, and has it again
// afterwards: so a date stays in the part that the user changes.
void frmGroup::run(const std::function<void()>& steps) {
    const QPointer<QWidget> focused = focusWidget();
    work(steps);
    if (focused)
        focused->setFocus(Qt::PopupFocusReason);
}

void frmGroup::startRun() {
    if (QWidget* focused = focusWidget())
        focused->clearFocus();
    ui_->lstGroup->hide();
    LockEm(true);
    ui_->lblCancel->setText(QStringLiteral("Press Esc to cancel"));
    ui_->lblProc->show();
}

void frmGroup::endRun() {
    CancelGroup_ = false;
    ui_->lblCancel->clear();
    ui_->lblProc->hide();
    LockEm(false);
    ui_->lstGroup->show();
}

void frmGroup::LockEm(bool locked) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             ui_->cmdTransfer, ui_->lstGroup, ui_->lstTotal, ui_->cbCats, ui_->cmdAdd,
             ui_->cmdAddAll, ui_->cmdRemove, ui_->cmdRemoveAll, ui_->dtpGroup, ui_->cmdClose})
        control->setEnabled(!locked);
    for (int item = kSelectGroup; item <= kDeleteGroups; ++item)
        ui_->bbGroup->setItemEnabled(item, !locked);
}

void frmGroup::forEachMember(const RecordTaker& step) {
    for (int member = 0; member < ui_->lstGroup->ListCount(); ++member) {
        ui_->lstGroup->setListIndex(member);
        step({ui_->lstGroup->ItemData(member), ui_->lstGroup->Text()});
        if (CancelGroup_)
            return;
        host().yield();
    }
}

void frmGroup::cmdTransfer_Click() {
    run([this] {
        if (trapped(this, [this] { calculate(); }))
            endRun();
    });
}

void frmGroup::dtpGroup_Change() {
    if (ui_->lstGroup->ListCount() > 0)
        cmdTransfer_Click();
}

void frmGroup::calculate() {
    if (ui_->lstGroup->ListCount() == 0) {
        tell(QStringLiteral("Please select a group of people first."));
        return;
    }
    startRun();
    GroupComparison comparison(*ui_->grdGroup, ui_->dtpGroup->Value());
    forEachMember([&](const PersonRecord& member) { comparison.Add(member); });
    comparison.Finish();
    endRun();
}

void frmGroup::SetGrid() {
    ui_->grdGroup->change(setGroupGrid);
}

void frmGroup::cmdSave_Click() {
    whenIdle([this] { run([this] { trapped(this, [this] { saveGroup(); }); }); });
}

void frmGroup::saveGroup() {
    const QString name = ui_->txtGroupName->text();
    if (ui_->lstGroup->ListCount() == 0) {
        tell(QStringLiteral("Please select people from the list first!"), MessageIcon::Exclamation);
        return;
    }
    if (Trim(name).isEmpty())
        return;
    if (isGroupListed(name, ui_->flFaves->all())) {
        tell(QStringLiteral("This group already exists!"), MessageIcon::Exclamation);
        return;
    }
    startRun();
    GroupWriter file(groupFileName(name));
    forEachMember([&](const PersonRecord& member) { file.Write(member); });
    file.Close();
    tell(QStringLiteral("Done!"), MessageIcon::Information);
    endRun();
}

void frmGroup::flFaves_DblClick() {
    whenIdle([this] {
        std::vector<ListEntry> members;
        const auto show = qScopeGuard([&] { ui_->lstGroup->fill(std::move(members)); });
        readGroup(ui_->flFaves->FileName(), [&](const PersonRecord& member) {
            members.push_back({member.displayText, member.nameId});
        });
    });
}

void frmGroup::cmdDelete_Click() {
    whenIdle([this] {
        if (ui_->flFaves->ListIndex() == -1)
            return;
        LockEm(true);
        deleteGroupFile(ui_->flFaves->FileName());
        ui_->flFaves->Refresh();
        LockEm(false);
    });
}
