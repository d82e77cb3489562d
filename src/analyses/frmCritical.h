// "Details for ...": the whole day of one person, its date and its month.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "controls/form.h"
#include "cycles/day_level.h"
#include "store/connection.h"
#include "store/recordset.h"

class BarShape;
class ColouredLabel;
class QLabel;
struct DayReading;
struct SpanFinds;

namespace Ui {
class frmCritical;
}

// Opens on the person and the date that are chosen in the main window. It has two views, and every
// change of the date analyses for both, whichever is on show. What goes wrong in an analysis is
// reported, and what had been shown by then stays.
//
// In the view of the day the pictures of peaks and lows are visible as well; the interpretation
// lies over them.
class frmCritical final : public Form {
    Q_OBJECT

  public:
    explicit frmCritical(QWidget* owner = nullptr);
    ~frmCritical() override;

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    // The slots of one cycle; a picture stands beside the peak's label of the same index.
    struct Slots {
        std::vector<ColouredLabel*> critical;
        std::vector<ColouredLabel*> peaks;
        std::vector<QLabel*> smiles;
        std::vector<QLabel*> sads;
    };

    void bbDetails_Click(int group, int item);
    void cmdClose_Click();
    void dtpCritical_Change();

    void AnalyseDay();
    void DrawBar(double value, BarShape& bar);
    void FillCriticalText();
    void SetTodayView(bool today);

    void gatherSlots();
    void colourCycles();
    void gatherViews();
    void setToolTips();
    void openPerson();
    void showReading(const DayReading& reading);
    void showFinds(const SpanFinds& finds);
    void showInterpretation(const modCycles::DayLevels& levels);

    std::unique_ptr<Ui::frmCritical> ui_;
    std::array<Slots, 3> slots_;  // emotional, physical, intellectual
    std::array<ColouredLabel*, 4> lblToday_;
    std::array<BarShape*, 4> bars_;  // of the same values
    std::vector<QWidget*> todayView_;
    std::vector<QWidget*> criticalView_;
    std::optional<Connection> connection_;
    std::optional<Recordset> adoFindBirth_;
};
