// What the user waits for in the reports: a day and a month until they are painted with their
// charts, the overview of everybody until it is painted, a report saved, and its page; and rich
// text read and written.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QPrinter>
#include <QTemporaryDir>

#include "bench/floors.h"
#include "bench/paint_watch.h"
#include "bench/surroundings.h"
#include "controls/paper_printer.h"
#include "controls/rich_text_box.h"
#include "reports/frmDailyReport.h"
#include "rtf/rtf_reader.h"
#include "rtf/rtf_writer.h"

namespace {

// The report window on the first person, open and painted.
class OpenReport {
  public:
    OpenReport() {
        mainControls().lstMain->setListIndex(0);
        form_.Show();
        paints_.waitForPaint();
    }
    ~OpenReport() { form_.Unload(); }
    Q_DISABLE_COPY_MOVE(OpenReport)

    void choose(const char* report) { form_.findChild<QAction*>(QLatin1String(report))->trigger(); }

    void show(const char* report) {
        choose(report);
        paints_.waitForPaint();
    }

    RichTextBox& box() { return *form_.findChild<RichTextBox*>(); }

  private:
    frmDailyReport form_{mainWindow()};
    PaintWatch paints_{*box().viewport()};
};

void showReport(benchmark::State& state, const char* name) {
    OpenReport report;
    for (auto _ : state)
        report.show(name);
}

void showDay(benchmark::State& state) {
    showReport(state, "mnuReportDaily");
}

void showMonth(benchmark::State& state) {
    showReport(state, "mnuReportMonthly");
}

void showOverview(benchmark::State& state) {
    showReport(state, "mnuReportDatabase");
}

// The rows read, and their words in a plain box until it is painted.
void showOverviewFloor(benchmark::State& state) {
    OpenReport report;
    report.show("mnuReportDatabase");
    const QString text = report.box().Text();
    QTextEdit plain(mainWindow());
    plain.setWindowFlag(Qt::Dialog);
    plain.show();
    PaintWatch paints(*plain.viewport());
    for (auto _ : state) {
        benchmark::DoNotOptimize(plainPeople(database()));
        plain.setPlainText(text);
        paints.waitForPaint();
    }
}

void saveDay(benchmark::State& state) {
    OpenReport report;
    report.show("mnuReportDaily");
    const QTemporaryDir folder;
    for (auto _ : state)
        report.box().SaveFile(folder.filePath(QStringLiteral("day.rtf")), TextFileType::Rich);
}

// A page into a PDF file.
void printDay(benchmark::State& state) {
    constexpr Long kInch = 1440;
    OpenReport report;
    report.show("mnuReportDaily");
    const QTemporaryDir folder;
    for (auto _ : state) {
        auto pdf = std::make_unique<QPrinter>(QPrinter::HighResolution);
        pdf->setOutputFormat(QPrinter::PdfFormat);
        pdf->setOutputFileName(folder.filePath(QStringLiteral("day.pdf")));
        PaperPrinter printer(std::move(pdf));
        const RichTextPages pages = report.box().pages(printer.Width() - 2 * kInch);
        pages.paint(
            printer.hDC(),
            {kInch, kInch, 1.0 * printer.Width() - 2 * kInch, 1.0 * printer.Height() - 2 * kInch},
            0);
        printer.EndDoc();
    }
}

// The overview's document, some hundred bytes for each of many people.
QByteArray largeDocument() {
    QByteArray document("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Times New Roman;}}");
    for (int person = 0; person < 5'000; ++person)
        document +=
            "{\\par}\\pard\\b\\i\\fs20 Anna Smith\\b0{\\par}\\i Date of birth: \\i0\\tab 2 "
            "October 1972{\\par}\\i Star sign: \\i0\\tab Libra{\\par}\\i Notes: "
            "{\\par}Some words of notes on her, no more than a line.";
    return document + "}";
}

void readRichText(benchmark::State& state) {
    const QString document = QString::fromLatin1(largeDocument());
    for (auto _ : state)
        benchmark::DoNotOptimize(readRtf(document));
    state.SetBytesProcessed(state.iterations() * document.size());
}

void writeRichText(benchmark::State& state) {
    const RichText text = readRtf(QString::fromLatin1(largeDocument()));
    qsizetype bytes = 0;
    for (auto _ : state)
        bytes += writeRtf(text).size();
    state.SetBytesProcessed(bytes);
}

BENCHMARK(showDay)->UseRealTime();
BENCHMARK(showMonth)->UseRealTime();
BENCHMARK(showOverview)->UseRealTime();
BENCHMARK(showOverviewFloor)->UseRealTime();
BENCHMARK(saveDay)->UseRealTime();
BENCHMARK(printDay)->UseRealTime();
BENCHMARK(readRichText)->UseRealTime();
BENCHMARK(writeRichText)->UseRealTime();

}  // namespace
