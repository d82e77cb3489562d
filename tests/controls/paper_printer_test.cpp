// A printer of the desktop, which prints into a file here.
#include "controls/paper_printer.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "support/errors.h"
#include "support/printing.h"

namespace {

class PaperPrinterTest : public testing::Test {
  protected:
    std::unique_ptr<PaperPrinter> printer(const QString& path) {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(path);
        printer->setPageSize(QPageSize(QPageSize::A4));
        return std::make_unique<PaperPrinter>(std::move(printer));
    }

    std::unique_ptr<PaperPrinter> printer() { return printer(path()); }

    QString path() const { return folder_.filePath(QStringLiteral("printed.pdf")); }

    QByteArray printed() const {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder_;
};

}  // namespace

TEST_F(PaperPrinterTest, TellsThePaperInTwips) {
    const auto paper = printer();
    EXPECT_NEAR(paper->Width(), 11906, 20);
    EXPECT_NEAR(paper->Height(), 16838, 20);
}

TEST_F(PaperPrinterTest, ReachesTheWholePaperWhereItHasNoEdge) {
    const auto paper = printer();
    EXPECT_EQ(paper->physicalOffsetX(), 0);
    EXPECT_EQ(paper->physicalOffsetY(), 0);
    EXPECT_EQ(paper->ScaleX(1200), 1440);
    EXPECT_EQ(paper->ScaleY(600), 720);
}

TEST_F(PaperPrinterTest, TellsWhatItCannotReach) {
    auto withEdges = std::make_unique<QPrinter>(QPrinter::HighResolution);
    withEdges->setOutputFormat(QPrinter::PdfFormat);
    QPageLayout layout = withEdges->pageLayout();
    layout.setMinimumMargins({18, 36, 9, 27});  // points
    withEdges->setPageLayout(layout);
    const PaperPrinter paper(std::move(withEdges));
    EXPECT_EQ(paper.physicalOffsetX(), 300);
    EXPECT_EQ(paper.physicalOffsetY(), 600);
}

TEST_F(PaperPrinterTest, PaintsInTwipsPageByPage) {
    const auto paper = printer();
    paper->open();
    const QTransform transform = paper->hDC().transform();
    EXPECT_DOUBLE_EQ(transform.m11(), 1200.0 / 1440);
    paper->hDC().fillRect(0, 0, 1440, 1440, Qt::black);
    paper->NewPage();
    paper->hDC().fillRect(0, 0, 1440, 1440, Qt::black);
    paper->EndDoc();
    EXPECT_TRUE(printed().contains("/Count 2")) << printed().size();
}

TEST_F(PaperPrinterTest, PrintsAnEmptyPageOfAJobWithoutInk) {
    const auto paper = printer();
    paper->open();
    paper->EndDoc();
    EXPECT_TRUE(printed().contains("/Count 1"));
}

TEST_F(PaperPrinterTest, LeavesNoTraceOfAJobThatIsDropped) {
    const auto paper = printer();
    paper->open();
    paper->KillDoc();
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(PaperPrinterTest, HasNoPageOutsideAJob) {
    const auto paper = printer();
    EXPECT_EQ(errorOf([&] { paper->NewPage(); }), 482);
}

TEST_F(PaperPrinterTest, FailsWhereTheDeviceCannotBeReached) {
    const auto paper = printer(folder_.filePath(QStringLiteral("none/printed.pdf")));
    paper->open();
    EXPECT_EQ(errorOf([&] { paper->hDC(); }), 482);
}
