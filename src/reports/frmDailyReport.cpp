// The event routines of the report window.
#include "reports/frmDailyReport.h"

#include "controls/bitmap.h"
#include "controls/chart.h"
#include "controls/file_dialog.h"
#include "controls/month_view.h"
#include "controls/picture_button.h"
#include "controls/rich_text_box.h"
#include "controls/twips.h"
#include "reports/report_builders.h"
#include "reports/report_charts.h"
#include "reports/report_colour.h"
#include "reports/report_export.h"
#include "reports/report_printing.h"
#include "reports/report_window_layout.h"
#include "runtime/app.h"
#include "runtime/errors.h"
#include "runtime/event.h"
#include "runtime/host.h"
#include "shell/chart_table.h"
#include "shell/frmWait.h"
#include "shell/handover.h"
#include "shell/main_controls.h"
#include "store/databases.h"
#include "store/recordset.h"
#include "store/scratch_file.h"
#include "store/statements.h"
#include "ui_frmDailyReport.h"

namespace {

constexpr Long kMargin = 1440;  // twips, on every side of the paper

// In twips.
constexpr QSizeF kClientArea(6855, 5970);
constexpr double kBesideText = 200;
constexpr QSizeF kDailyChart(5415, 4215);
constexpr QRectF kDailyPlot(750, 200, 4465, 3265);
constexpr QSizeF kMonthlyChart(6855, 4095);
constexpr QRectF kMonthlyPlot(750, 200, 5905, 3165);

void EditCopy(const Chart& chart) {
    host().setClipboardBitmap(bitmapOf(chart.paperPicture()));
}

QRect pixelRect(const QRectF& twips) {
    return QRectF(exactPixels(twips.left()), exactPixels(twips.top()), exactPixels(twips.width()),
                  exactPixels(twips.height()))
        .toRect();
}

}  // namespace

frmDailyReport::frmDailyReport(QWidget* owner)
    : Form(owner), ui_(std::make_unique<Ui::frmDailyReport>()) {
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setUpDialog();
    setUpCharts();
    connectEvents();
    resize(pixelRect({QPointF(), kClientArea}).size() +
           QSize(0, ui_->mnuDaily->sizeHint().height()));
}

frmDailyReport::~frmDailyReport() = default;

void frmDailyReport::setUpDialog() {
    dlgDaily_ = new FileDialog(this);
    dlgDaily_->setObjectName(QStringLiteral("dlgDaily"));
    dlgDaily_->setDialogTitle(QStringLiteral("Save Report ..."));
    dlgDaily_->setDefaultExt(QStringLiteral("rtf"));
    dlgDaily_->setFilter(kReportFilter);
}

// The names of the lines of a month stand in its report, those of the bars of a day do not.
void frmDailyReport::setUpCharts() {
    Chart& day = *ui_->chtDaily;
    day.setFixedTwips(kDailyChart, kDailyPlot);
    day.setChartType(ChartType::Bars);
    day.setNegativeBars(true);
    day.setShowLegend(true);
    for (int series = 1; series <= kReportSeries; ++series)
        day.setLegendText(series, reportSeriesName(series));
    Chart& month = *ui_->chtMonthly;
    month.setFixedTwips(kMonthlyChart, kMonthlyPlot);
    month.setPenColour(kReportSeries, kAveragePen.colour);
    month.setSeriesPattern(kReportSeries, kAveragePen.pattern);
}

void frmDailyReport::connectEvents() {
    onEvent(ui_->chkColour_0, &QCheckBox::clicked, this, &frmDailyReport::chkColour_0_Click);
    onEvent(ui_->chkColour_1, &QCheckBox::clicked, this, &frmDailyReport::chkColour_1_Click);
    onEvent(ui_->client, &ClientArea::Resize, this, &frmDailyReport::Form_Resize);
    onEvent(ui_->cmdClose, &PictureButton::Click, this, &frmDailyReport::cmdClose_Click);
    onEvent(ui_->cmdPrint, &PictureButton::Click, this, &frmDailyReport::cmdPrint_Click);
    onEvent(ui_->cmdSave, &PictureButton::Click, this, &frmDailyReport::cmdSave_Click);
    onEvent(ui_->mnuDailyClose, &QAction::triggered, this, &frmDailyReport::mnuDailyClose_Click);
    onEvent(ui_->mnuReportDaily, &QAction::triggered, this, &frmDailyReport::mnuReportDaily_Click);
    onEvent(ui_->mnuReportDatabase, &QAction::triggered, this,
            &frmDailyReport::mnuReportDatabase_Click);
    onEvent(ui_->mnuReportMonthly, &QAction::triggered, this,
            &frmDailyReport::mnuReportMonthly_Click);
}

void frmDailyReport::Form_Load() {
    if (!modCycles::ReportToScreen) {
        const Long lineWidth = modCycles::WysiwygRtf(*ui_->rtbDaily, kMargin, kMargin);
        resize(toPixels(lineWidth + kBesideText), height());
    }
    dlgDaily_->setInitDir(App::Path());
    ReportPersonID_ = chosenNameId();
    ui_->rtbDaily->setText(QStringLiteral("Select a report from the 'Report' menu"));
    unloadWaitWindow();
}

void frmDailyReport::Form_KeyDown(QKeyEvent& key) {
    if (takeEsc(key))
        cmdClose_Click();
}

void frmDailyReport::Form_Resize() {
    const ReportWindowPlaces places = reportWindowPlaces(
        toTwips(width()), {toTwips(ui_->client->width()), toTwips(ui_->client->height())});
    ui_->rtbDaily->setGeometry(pixelRect(places.rtbDaily));
    ui_->cmdPrint->setGeometry(pixelRect(places.cmdPrint));
    ui_->cmdClose->setGeometry(pixelRect(places.cmdClose));
    ui_->cmdSave->setGeometry(pixelRect(places.cmdSave));
    for (QCheckBox* box : {ui_->chkColour_0, ui_->chkColour_1})
        box->setGeometry(pixelRect(places.chkColour));
}

void frmDailyReport::mnuReportDaily_Click() {
    emptyReport();
    ShowDailyReport();
    offerColour(ColouredReport::Daily);
}

void frmDailyReport::mnuReportMonthly_Click() {
    emptyReport();
    ShowMonthlyReport();
    offerColour(ColouredReport::Monthly);
}

void frmDailyReport::mnuReportDatabase_Click() {
    emptyReport();
    modCycles::BuildDatabaseOverview(*ui_->rtbDaily);
    offerColour(ColouredReport::None);
}

void frmDailyReport::chkColour_0_Click() {
    emptyReport();
    ShowDailyReport();
}

void frmDailyReport::chkColour_1_Click() {
    emptyReport();
    ShowMonthlyReport();
}

void frmDailyReport::cmdClose_Click() {
    Unload();
}

void frmDailyReport::mnuDailyClose_Click() {
    cmdClose_Click();
}

void frmDailyReport::cmdPrint_Click() {
    modCycles::PrintRtf(*ui_->rtbDaily, kMargin, kMargin, kMargin, kMargin);
}

// The flag comes after the dialog, so it serves from the second time on. A cancelled dialog leaves
// the filter and the name of the last one, which is then written again.
void frmDailyReport::cmdSave_Click() {
    dlgDaily_->ShowSave();
    dlgDaily_->setFlags(FileDialog::kOverwritePrompt);
    if (const std::optional<ReportFile> file = reportFile(dlgDaily_->FilterIndex())) {
        dlgDaily_->setDefaultExt(file->extension);
        ui_->rtbDaily->SaveFile(dlgDaily_->FileName(), file->type);
    }
}

void frmDailyReport::emptyReport() {
    ui_->rtbDaily->setTextRTF({});
}

void frmDailyReport::offerColour(ColouredReport report) {
    ui_->chkColour_0->setVisible(report == ColouredReport::Daily);
    ui_->chkColour_1->setVisible(report == ColouredReport::Monthly);
}

Date frmDailyReport::readBirthdate() const {
    Connection connection = openPersonDatabase();
    const Recordset person(connection, statements::person(ReportPersonID_));
    return person.Fields(u"Birthdate").toDate();
}

void frmDailyReport::ShowDailyReport() {
    const Long days = modCycles::DayCount(readBirthdate(), mainControls().dtpSelDate->Value());
    const modCycles::CycleValues values = modCycles::CalcCycles(days, 0);
    const Integer colour = boxValue(ui_->chkColour_0->checkState());
    modCycles::BuildDailyReport(ReportPersonID_, values.emotional, values.physical,
                                values.intellectual, values.average(), colour, *ui_->rtbDaily);
    PlaceDailyChart(values, colour);
}

void frmDailyReport::ShowMonthlyReport() {
    const auto days = modCycles::chartDays(readBirthdate(), mainControls().dtpSelDate->Value());
    const Integer colour = boxValue(ui_->chkColour_1->checkState());
    modCycles::BuildMonthlyReport(ReportPersonID_, colour, *ui_->rtbDaily);
    PlaceMonthlyChart(days, colour);
}

void frmDailyReport::PlaceDailyChart(const modCycles::CycleValues& values, Integer colour) {
    if (isReportColour(colour)) {
        Chart& chart = *ui_->chtDaily;
        chart.setChartData(dailyChart(values, values.average()));
        for (int series = 1; series <= kReportSeries; ++series) {
            chart.setBarBrush(series, dailyBrush(series, colour));
            chart.setEdgeColour(series, kDailyEdge);
        }
        EditCopy(chart);
    }
    placePicture();
}

void frmDailyReport::PlaceMonthlyChart(std::span<const modCycles::ChartDay> days, Integer colour) {
    if (isReportColour(colour)) {
        Chart& chart = *ui_->chtMonthly;
        chart.setChartData(modCycles::chartTable(days));
        for (int series = 1; series <= kReportCycles; ++series) {
            const ChartPen pen = monthlyPen(series, colour);
            chart.setPenColour(series, pen.colour);
            chart.setSeriesPattern(series, pen.pattern);
        }
        EditCopy(chart);
    }
    placePicture();
}

// By way of the clipboard and a file the picture of a chart comes to the end of the text, where the
// caret is. Whatever else was on the clipboard is gone.
void frmDailyReport::placePicture() {
    const QString path = App::Path() + QStringLiteral("/tempchart.bmp");
    const std::optional<QByteArray> bitmap = host().clipboardBitmap();
    if (!bitmap)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    ui_->Picture1->setPixmap(QPixmap::fromImage(pictureOf(*bitmap)));
    writeScratchFile(path, *bitmap);
    ui_->rtbDaily->addPicture(path);
    ui_->rtbDaily->setSelStart(0);
    ui_->Picture1->clear();
    host().clearClipboard();
    deleteScratchFile(path);
}
