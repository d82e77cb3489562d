// "Compatibility": the chosen person and the others of the database.
#pragma once

#include <memory>
#include <optional>

#include "analyses/compared_person.h"
#include "controls/form.h"
#include "cycles/integers.h"
#include "store/connection.h"
#include "store/recordset.h"

class ButtonMenu;
struct PersonComparison;

namespace Ui {
class frmCompat;
}

// Compares the person who is chosen in the main window, the main person, with whoever is picked
// from a list of the others. It opens on the first of them. People are read once; the list of a
// category is read at each choice of it, so it may hold somebody new, and picking them fails.
class frmCompat final : public Form {
    Q_OBJECT

  public:
    explicit frmCompat(QWidget* owner = nullptr);
    ~frmCompat() override;

  protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    void bbCompat_Click(int tab, int item);
    void cbCatCompat_Click();
    void cmdClose_Click();
    void cmdSearch_Click();
    void lstCompat_Click();
    void lstCompat_DblClick();
    void optBar_Click();
    void optBio_Click();
    void tbCompat_ButtonMenuClick(int index);

    // Shows the controls of the comparison with one person, or those of the ordered match.
    void SingleView(bool sg);

    void FillCompatFavourites();

    void setUpControls();
    void setUpToolbar();
    void setUpCharts();
    void connectEvents();

    void openRecordSets();
    void listEverybody();
    void listCategory(Long catId);
    const Recordset& goTo(Long nameId);
    void showComparison(const PersonComparison& comparison);

    std::unique_ptr<Ui::frmCompat> ui_;
    ButtonMenu* favesMenu_ = nullptr;
    std::optional<Connection> connection_;
    std::optional<Recordset> adoPrimaryRS_;
    std::optional<Recordset> adoCats_;
    std::optional<ComparedPerson> mainPerson_;
};
