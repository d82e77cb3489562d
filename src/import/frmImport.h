// The wizard that brings people over from the database of Ondara 1.0.
#pragma once

#include <memory>
#include <optional>

#include "controls/form.h"
#include "cycles/integers.h"
#include "import/import_steps.h"
#include "store/item_list.h"
#include "store/recordset.h"

namespace Ui {
class frmImport;
}
class FileDialog;

// Asks for the old database, for the people to import and for what is to become of each, and writes
// them. Each is written by itself and then leaves the list, so whoever goes back after an error
// writes nobody twice; but nothing keeps a person from being imported again another day. The old
// database is only read. The progress bar has always stood at 0. When somebody has been imported,
// closing it lists the people of the main window anew.
class frmImport final : public Form {
    Q_OBJECT

  public:
    explicit frmImport(QWidget* owner = nullptr);
    ~frmImport() override;

    Integer ImportStep = importing::kLocation;
    Integer ImportRow = 0;     // the row that was clicked last, counted from 1
    bool ImportDirty = false;  // a person has been written

    // Shows a step; the one of the listing lists, and goes on, and the one of the writing writes.
    // Anything but a step does nothing.
    void WizardSteps(Integer step);

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void setUpControls();
    void reserveRoomForGuidance();
    void connectEvents();

    void chkAll_Click();
    void cmdAssign_Click();
    void cmdBack_Click();
    void cmdBrowse_Click();
    void cmdClose_Click();
    void cmdNext_Click();
    void cmdUpdate_Click();
    void lvImport_ItemClick(int row);

    void goTo(std::optional<Integer> step);
    void showChanges(const importing::Step& step);
    void openOldDatabase(const QString& path);
    void FillImportList();
    void FillImportCategories();
    void ImportPeople();
    void importRowsFromLast(Recordset& people);
    bool isAnyoneUnassigned() const;
    ListEntry chosenCategory() const;

    std::unique_ptr<Ui::frmImport> ui_;
    FileDialog* cdgImport_;
    std::optional<Connection> oldDatabase_;
    std::optional<Recordset> OldPeople_;
};
