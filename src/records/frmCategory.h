// "Manage Categories": the categories, one at a time.
#pragma once

#include <memory>

#include "records/record_editor.h"

namespace Ui {
class frmCategory;
}

// Opens on the first category in order. An update stays on its row, and after an addition on the
// last. To delete a category is to delete its people, whom the store takes along; the user is told
// how many there are at that moment. When something has been written, closing it fills the main
// window's lists anew.
class frmCategory final : public RecordEditor {
    Q_OBJECT

  public:
    explicit frmCategory(QWidget* owner = nullptr);
    ~frmCategory() override;

  protected:
    void Form_Load() override;

    void LockFields(bool locked) override;
    Message lastRowRefusal() override;
    Message deletionQuestion() override;
    void refillMainLists() override;

  private:
    std::unique_ptr<Ui::frmCategory> ui_;
};
