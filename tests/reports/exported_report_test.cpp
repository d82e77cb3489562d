// Saved and printed reports, as other programs see them.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPrinter>
#include <QRegularExpression>

#include "controls/paper_printer.h"
#include "controls/rich_text_document.h"
#include "reports/report_driver.h"
#include "rtf/rich_text_marks.h"
#include "rtf/rtf_reader.h"
#include "support/files.h"
#include "support/other_programs.h"

namespace {

const QString kNotes = QStringLiteral("Žofie Чехова — “quoted”");

class ExportedReport : public ReportWindowTest {
  protected:
    ExportedReport() {
        runSql(directory_.people(), QStringLiteral("UPDATE Data SET Notes = '%1'").arg(kNotes));
    }

    QString folder() const { return QFileInfo(directory_.path(QStringLiteral("x"))).path(); }

    QByteArray bytesOf(const char* fileName) const {
        return fileBytes(directory_.path(QLatin1String(fileName)));
    }

    void save(const char* report) {
        if (!form_)
            open();
        choose(report);
        of<RichTextBox>("rtbDaily").SaveFile(path("report.rtf"), TextFileType::Rich);
    }

    // Prints on A4 into printed.pdf.
    void print() {
        host_.onPrinter([this] {
            auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
            printer->setOutputFormat(QPrinter::PdfFormat);
            printer->setOutputFileName(path("printed.pdf"));
            printer->setPageSize(QPageSize(QPageSize::A4));
            return std::make_unique<PaperPrinter>(std::move(printer));
        });
        click(of<QWidget>("cmdPrint"));
    }

    // What LibreOffice makes of a file.
    void convert(const char* format, const char* fileName) {
        outputOf("soffice",
                 {QStringLiteral("-env:UserInstallation=file://%1/profile").arg(folder()),
                  QStringLiteral("--headless"), QStringLiteral("--convert-to"),
                  QLatin1String(format), QLatin1String(fileName)},
                 folder());
    }

    QString path(const char* fileName) const { return directory_.path(QLatin1String(fileName)); }

    // The lines with something in them.
    static QStringList linesOf(const QString& text) {
        QStringList lines;
        for (const QString& line : text.split(QRegularExpression(QStringLiteral("[\r\n\f]+")))) {
            if (const QString words = line.simplified(); !words.isEmpty())
                lines += words;
        }
        return lines;
    }

    // The pictures of a PDF file: width and height in pixels.
    QStringList picturesIn(const char* pdf) {
        QStringList pictures;
        const QByteArray listed =
            outputOf("pdfimages", {QStringLiteral("-list"), QLatin1String(pdf)}, folder());
        for (const QString& line : QString::fromUtf8(listed).split(u'\n').mid(2)) {
            const QStringList fields = line.simplified().split(u' ');
            if (fields.value(2) == u"image")
                pictures += fields[3] + u'x' + fields[4];
        }
        return pictures;
    }

    // The words of a printed page with their places in points: left, top, right, bottom.
    std::vector<QRectF> wordPlaces(int page) {
        const QString number = QString::number(page);
        const QString words = QString::fromUtf8(
            outputOf("pdftotext",
                     {QStringLiteral("-bbox"), QStringLiteral("-f"), number, QStringLiteral("-l"),
                      number, QStringLiteral("printed.pdf"), QStringLiteral("-")},
                     folder()));
        const QRegularExpression word(QStringLiteral(
            "xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\""));
        std::vector<QRectF> places;
        for (const QRegularExpressionMatch& match : word.globalMatch(words))
            places.emplace_back(
                QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()),
                QPointF(match.captured(3).toDouble(), match.captured(4).toDouble()));
        return places;
    }
};

constexpr double kInch = 72;  // points
const QRectF kWithinMargins(QPointF(kInch - 2, kInch - 4), QPointF(595.3 - kInch, 841.9 - kInch));

}  // namespace

TEST_F(ExportedReport, IsReadByAWordProcessorWordForWord) {
    SKIP_WITHOUT("soffice");
    for (const char* report : {"mnuReportDaily", "mnuReportMonthly", "mnuReportDatabase"}) {
        save(report);
        convert("txt:Text (encoded):UTF8", "report.rtf");
        QString read = QString::fromUtf8(bytesOf("report.txt"));
        read.remove(QChar::ByteOrderMark);
        EXPECT_EQ(linesOf(read), linesOf(text())) << report;
        EXPECT_TRUE(read.contains(kNotes)) << report;
    }
}

TEST_F(ExportedReport, HasItsPictureInAWordProcessor) {
    SKIP_WITHOUT("soffice");
    SKIP_WITHOUT("pdfimages");
    save("mnuReportDaily");
    convert("pdf", "report.rtf");
    EXPECT_EQ(picturesIn("report.pdf"), QStringList(QStringLiteral("1128x878")));
}

TEST_F(ExportedReport, ComesBackFromAWordProcessorAsItWas) {
    SKIP_WITHOUT("soffice");
    save("mnuReportDaily");
    const QStringList before = marksOf(readRtf(QString::fromLatin1(bytesOf("report.rtf"))));
    convert("odt", "report.rtf");
    QFile::remove(path("report.rtf"));
    convert("rtf", "report.odt");
    QStringList after = marksOf(readRtf(QString::fromLatin1(bytesOf("report.rtf"))));
    while (after.last().isEmpty())
        after.removeLast();
    EXPECT_EQ(after, before);
}

TEST_F(ExportedReport, IsBoldAndColouredInAnotherReader) {
    SKIP_WITHOUT("unrtf");
    save("mnuReportDaily");
    const QString html = QString::fromUtf8(
        outputOf("unrtf", {QStringLiteral("--html"), QStringLiteral("report.rtf")}, folder()));
    EXPECT_TRUE(html.contains(QRegularExpression(QStringLiteral("<b>[^/]*Daily Report for"))))
        << html.left(3000).toStdString();
    for (const char* colour : {"#0000ff", "#ff0000", "#008000", "#800080"})
        EXPECT_TRUE(html.contains(QLatin1String(colour))) << colour;
    EXPECT_EQ(html.count(u"<img "), 1);
    EXPECT_EQ(QDir(folder()).entryList({QStringLiteral("pict*.png")}).size(), 1);
}

TEST_F(ExportedReport, IsPrintedWordForWordWithinTheMargins) {
    SKIP_WITHOUT("pdftotext");
    open();
    choose("mnuReportDaily");
    print();
    const QString printed = QString::fromUtf8(outputOf(
        "pdftotext",
        {QStringLiteral("-layout"), QStringLiteral("printed.pdf"), QStringLiteral("-")}, folder()));
    EXPECT_EQ(printed.simplified().remove(u' '), text().simplified().remove(u' '));
    for (const QRectF& place : wordPlaces(1))
        EXPECT_TRUE(kWithinMargins.contains(place)) << place.left() << " " << place.top();
    EXPECT_NEAR(wordPlaces(1).front().top(), kInch, 6);
}

TEST_F(ExportedReport, IsThePromptWhereNoneWasChosen) {
    SKIP_WITHOUT("pdftotext");
    open();
    print();
    EXPECT_EQ(linesOf(QString::fromUtf8(outputOf(
                  "pdftotext", {QStringLiteral("printed.pdf"), QStringLiteral("-")}, folder()))),
              QStringList(QStringLiteral("Select a report from the 'Report' menu")));
}

TEST_F(ExportedReport, IsPrintedWithItsPicture) {
    SKIP_WITHOUT("pdfimages");
    open();
    choose("mnuReportMonthly");
    print();
    EXPECT_EQ(picturesIn("printed.pdf"), QStringList(QStringLiteral("1428x853")));
}

TEST_F(ExportedReport, IsPrintedOnAsManyPagesAsItTakes) {
    SKIP_WITHOUT("pdftotext");
    for (int person = 0; person < 40; ++person)
        addPerson({.name = QStringLiteral("Namesake"), .catId = family_});
    open();
    choose("mnuReportDatabase");
    print();
    const QString printed = QString::fromUtf8(
        outputOf("pdftotext", {QStringLiteral("printed.pdf"), QStringLiteral("-")}, folder()));
    EXPECT_EQ(printed.count(u"Namesake"), 40);
    const qsizetype pages = printed.count(u'\f');
    EXPECT_GE(pages, 4);
    for (int page = 1; page <= pages; ++page) {
        for (const QRectF& place : wordPlaces(page))
            ASSERT_TRUE(kWithinMargins.contains(place)) << page << ": " << place.top();
        EXPECT_LT(wordPlaces(page).front().top(), kInch + 20) << page;
    }
}
