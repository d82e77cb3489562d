// "Birthday Calendar": the people whose birthday falls on a chosen day.
#pragma once

#include <memory>
#include <optional>

#include "controls/form.h"
#include "store/connection.h"
#include "store/recordset.h"

namespace Ui {
class frmBirthdayToday;
}

// Opens on today. The people are read once, so those who are added later are not among them until
// the form is opened again. Raises 3021 on loading if there is nobody.
class frmBirthdayToday final : public Form {
    Q_OBJECT

  public:
    explicit frmBirthdayToday(QWidget* owner = nullptr);
    ~frmBirthdayToday() override;

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    void cmdClose_Click();
    void dtpBDayToday_Change();
    void lvBDays_ColumnClick(int column);

    std::unique_ptr<Ui::frmBirthdayToday> ui_;
    std::optional<Connection> connection_;
    std::optional<Recordset> adoPrimaryRS_;
};
