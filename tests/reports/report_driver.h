// What tests of the report window share.
#pragma once

#include <QAction>
#include <QCheckBox>

#include "controls/rich_text_box.h"
#include "reports/frmDailyReport.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "shell/handover.h"
#include "support/main_window.h"
#include "support/sheet_printer.h"

// The report window on Anna Smith, on 14 March 2000.
class ReportWindowTest : public MainWindowTest {
  protected:
    ReportWindowTest() {
        host_.onPrinter([this] { return std::make_unique<SheetPrinter>(tray_); });
    }

    ~ReportWindowTest() override { modCycles::ReportToScreen = true; }

    void open() {
        form_ = std::make_unique<frmDailyReport>(&loadAndChoose(QStringLiteral("Smith, Anna")));
        runEvent([this] { form_->Show(); });
    }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    void choose(const char* entry) { form_->findChild<QAction*>(QLatin1String(entry))->trigger(); }

    QString text() { return of<RichTextBox>("rtbDaily").Text(); }

    // Which of the boxes for colours are on show.
    std::pair<bool, bool> colourBoxes() {
        return {of<QCheckBox>("chkColour_0").isVisible(), of<QCheckBox>("chkColour_1").isVisible()};
    }

    PrinterTray tray_;
    std::unique_ptr<frmDailyReport> form_;
};
