// "Biorhythm Zoom": the main window's chart, enlarged.
#pragma once

#include <memory>

#include "controls/form.h"

namespace Ui {
class dlgBZoom;
}

// Shows the chart as it stood when the dialog was opened. A click closes it, and Esc does not.
class dlgBZoom final : public Form {
    Q_OBJECT

  public:
    explicit dlgBZoom(QWidget* owner = nullptr);
    ~dlgBZoom() override;

  protected:
    void Form_Load() override;

  private:
    void Picture1_Click();

    std::unique_ptr<Ui::dlgBZoom> ui_;
};
