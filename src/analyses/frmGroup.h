// "Group Comparison": the cycles of any number of people on one date.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "controls/form.h"
#include "runtime/message.h"
#include "store/item_list.h"
#include "store/person_records.h"

class ButtonMenu;
class ListBox;

namespace Ui {
class frmGroup;
}

// People are picked into a group from the list of a category, or the group is read from a file; a
// calculation gives each of them a row of the grid, a save writes them to a file. Both go through
// the group one by one and yield after each, with the window locked. Esc ends them after the next
// person; pressed while nothing runs, it ends the next of them after the first person.
//
// Two failures leave their traces: a calculation that fails leaves the grid frozen until one
// succeeds, and a save or a deletion that fails leaves the window locked. It can still be closed.
class frmGroup final : public Form {
    Q_OBJECT

  public:
    explicit frmGroup(QWidget* owner = nullptr);
    ~frmGroup() override;

  protected:
    void Form_Load() override;
    void Form_KeyDown(QKeyEvent& key) override;
    void Form_Cancel() override;

  private:
    void bbGroup_Click(int group, int item);
    void cbCats_Click();
    void cmdAdd_Click();
    void cmdAddAll_Click();
    void cmdClose_Click();
    void cmdDelete_Click();
    void cmdRemove_Click();
    void cmdRemoveAll_Click();
    void cmdSave_Click();
    void cmdTransfer_Click();
    void dtpGroup_Change();
    void flFaves_DblClick();
    void tbGroup_ButtonMenuClick(int index);

    void Fill_Total();
    void FillGroupFavourites();
    void LockEm(bool locked);
    void SetGrid();
    void SetGroupTab(int tab);

    void setUpControls();
    void connectEvents();

    void listPeople(const QString& statement, const std::vector<ListEntry>& group);
    void moveSelected(ListBox& from, ListBox& to);
    template <class Steps>
    void whenIdle(Steps&& steps);
    void tell(const QString& text, MessageIcon icon = MessageIcon::None);

    void run(const std::function<void()>& steps);
    void startRun();
    void endRun();
    void forEachMember(const RecordTaker& step);
    void calculate();
    void saveGroup();

    std::unique_ptr<Ui::frmGroup> ui_;
    ButtonMenu* favesMenu_ = nullptr;
    bool CancelGroup_ = false;
};
