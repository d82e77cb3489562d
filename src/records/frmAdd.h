// "Manage the database": the people, one at a time.
#pragma once

#include <memory>

#include "records/record_editor.h"

namespace Ui {
class frmAdd;
}

// Opens on the first person in order of name, or on the one whom the opener has named by
// SelectedNameID. After every update it goes to the first. When something has been written, closing
// it lists the people anew in the main window.
//
// The word beside the gender follows the user's click and the arrows; where a button of the
// alphabet or the opener leads to somebody, it stays what it was.
class frmAdd final : public RecordEditor {
    Q_OBJECT

  public:
    explicit frmAdd(QWidget* owner = nullptr);
    ~frmAdd() override;

  protected:
    void Form_Load() override;

    void LockFields(bool locked) override;
    void afterStep() override;
    void afterAdd() override;
    void afterUpdate() override;
    Message lastRowRefusal() override;
    Message deletionQuestion() override;
    void refillMainLists() override;

  private:
    void connectEvents();
    void bindInputs();
    void find(const QString& criteria);

    void cbAddCat_Click();
    void chkGender_Click();
    void cmdAlphabet_Click(int button);
    void txtFields_Change();

    void SetGender(bool gender);  // true is female

    std::unique_ptr<Ui::frmAdd> ui_;
};
