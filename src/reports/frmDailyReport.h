// "Daily Report": the window in which the reports are shown, printed and saved.
#pragma once

#include <memory>
#include <span>

#include "controls/form.h"
#include "cycles/cycle.h"
#include "shell/chart_days.h"

namespace Ui {
class frmDailyReport;
}
class FileDialog;

// The reports are on the person that is selected when the window is loaded, and on the date that is
// selected when one is built; the overview is on neither. Nothing is built before the user asks for
// it. A report with a chart empties the clipboard. mnuDailySave and mnuDailyPrint are there and do
// nothing, as they always have. No error is trapped here.
class frmDailyReport final : public Form {
    Q_OBJECT

  public:
    explicit frmDailyReport(QWidget* owner = nullptr);
    ~frmDailyReport() override;

  protected:
    void Form_Load() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    // The reports that are in colours or in black and white, each with a box for that.
    enum class ColouredReport { None, Daily, Monthly };

    void chkColour_0_Click();
    void chkColour_1_Click();
    void cmdClose_Click();
    void cmdPrint_Click();
    void cmdSave_Click();
    void Form_Resize();
    void mnuDailyClose_Click();
    void mnuReportDaily_Click();
    void mnuReportDatabase_Click();
    void mnuReportMonthly_Click();

    void setUpCharts();
    void setUpDialog();
    void connectEvents();
    void emptyReport();
    void offerColour(ColouredReport report);
    void ShowDailyReport();
    void ShowMonthlyReport();
    Date readBirthdate() const;
    void PlaceDailyChart(const modCycles::CycleValues& values, Integer colour);
    void PlaceMonthlyChart(std::span<const modCycles::ChartDay> days, Integer colour);
    void placePicture();

    std::unique_ptr<Ui::frmDailyReport> ui_;
    FileDialog* dlgDaily_;
    Long ReportPersonID_ = 0;
};
