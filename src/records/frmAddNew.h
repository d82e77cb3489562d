// The wizard that adds one person after another.
#pragma once

#include <memory>

#include "controls/form.h"
#include "cycles/integers.h"
#include "records/name_split.h"
#include "records/new_person.h"
#include "records/wizard_steps.h"

namespace Ui {
class frmAddNew;
}

// Asks step by step for a person, shows a summary and writes the record. It remembers nothing of
// what it has written: whoever goes back and finishes again writes the person again. What was
// entered stays for the next person. When something has been added, closing it fills the main
// window's lists anew.
class frmAddNew final : public Form {
    Q_OBJECT

  public:
    explicit frmAddNew(QWidget* owner = nullptr);
    ~frmAddNew() override;

    Integer WizardStep = wizard::kName;
    bool WizardDirty = false;  // a person or a category has been written

    // Shows a step; the one of the writing writes. Anything but a step does nothing.
    void ShowWizardStep(Integer step);

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void reserveRoomForGuidance();
    void connectEvents();

    void chkG_Click();
    void cmdAddCat_Click();
    void cmdBack_Click();
    void cmdClose_Click();
    void cmdEdit_Click();
    void cmdNext_Click();
    void txtType_KeyDown();
    void txtType_LostFocus();

    void FillWizardCategories();
    void BuildFinalSummary();
    void WritePerson();

    NewPerson enteredPerson() const;
    SplitName shownName() const;
    void showName(const SplitName& name);
    void showChanges(const wizard::Step& step);
    void lockNames(bool locked);

    std::unique_ptr<Ui::frmAddNew> ui_;
};
