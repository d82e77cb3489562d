// "Person Zoom": the card of one person.
#pragma once

#include <memory>

#include "controls/form.h"
#include "cycles/integers.h"

class Value;
struct PersonCard;

namespace Ui {
class frmZoom;
}

// Shows the person whom the opener has named by SelectedNameID, and changes nothing. Raises an
// error on loading if there is no such person.
class frmZoom final : public Form {
    Q_OBJECT

  public:
    explicit frmZoom(QWidget* owner = nullptr);
    ~frmZoom() override;

  protected:
    void Form_Load() override;
    void Form_KeyDown(QKeyEvent& key) override;

  private:
    void cmdClose_Click();

    void showCard(const PersonCard& card);
    void showCategory(const Value& catId);

    std::unique_ptr<Ui::frmZoom> ui_;
};

// Hands a person to the card, shows it modally over its owner, and hands nobody over after that.
void showCard(Long nameId, QWidget* owner);
