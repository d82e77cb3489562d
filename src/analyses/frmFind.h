// "Find events": the days of a span on which something happens in a person's cycles.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "analyses/event_list.h"
#include "analyses/event_range.h"
#include "controls/form.h"

class ElidedLabel;
class ProgressBar;

namespace Ui {
class frmFind;
}

// Searches day by day for whoever is chosen in the main window, and stays alive meanwhile: Esc ends
// the scan that is going after the next day, or the next one after its first day, and closes
// nothing. A day of the list opens the chart from that day on; when the form is closed, the main
// chart begins at the selected date again.
class frmFind final : public Form {
    Q_OBJECT

  public:
    explicit frmFind(QWidget* owner = nullptr);
    ~frmFind() override;

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyDown(QKeyEvent& key) override;
    void Form_Cancel() override;

  private:
    void chkCustom_Click();
    void cmdClose_Click();
    void cmdFind_Click();
    void cmdSelChar_Click();
    void cmdSelCycle_Click();
    void lvFind_ItemClick(int row);
    void sldPeriod_Change();

    void setUpStatusBar();
    void connectEvents();
    void readPerson();

    void find();
    EventRange chosenRange() const;
    void startResult(const EventRange& range);
    void findShared(const EventRange& range);
    Integer chosenKind() const;
    void findInCycles(const EventRange& range);
    void findInCycle(const EventRange& range, const SearchedCycle& cycle);
    void showEvents(ListRow (*rowOf)(const FoundEvent&));

    template <class Search>
    void scan(const EventRange& range, const QString& status, Search search);
    void startScan(const QString& status);
    bool goOnAfter(Long day, Long spanDays);
    void endScan();

    std::unique_ptr<Ui::frmFind> ui_;
    ElidedLabel* user_ = nullptr;  // the panels of the status bar
    ProgressBar* pbFind_ = nullptr;
    std::optional<Date> BirthDate_;
    std::optional<Date> SavedDate_;
    bool CancelSearch_ = false;
    EventHits hits_;
    std::vector<FoundEvent> events_;  // the lines of the list
};
