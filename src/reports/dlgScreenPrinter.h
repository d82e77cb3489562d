// "Format output for device ...": whether a report is laid out for the screen or for the printer.
#pragma once

#include <memory>

#include "controls/form.h"

namespace Ui {
class dlgScreenPrinter;
}

// The answer is ReportToScreen. Closed without OK, the dialog leaves it as it was.
class dlgScreenPrinter final : public Form {
    Q_OBJECT

  public:
    explicit dlgScreenPrinter(QWidget* owner = nullptr);
    ~dlgScreenPrinter() override;

  private:
    void OKButton_Click();

    std::unique_ptr<Ui::dlgScreenPrinter> ui_;
};
