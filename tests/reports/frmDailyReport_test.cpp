// The report window: its reports, its size, printing and saving.
#include "reports/frmDailyReport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include "controls/file_dialog.h"
#include "controls/picture_box.h"
#include "controls/rich_text_document.h"
#include "controls/twips.h"
#include "reports/report_driver.h"
#include "rtf/rtf_reader.h"
#include "shell/default_instance.h"
#include "shell/frmWait.h"
#include "support/files.h"

namespace {

const QString kPrompt = QStringLiteral("Select a report from the 'Report' menu");

class ReportWindow : public ReportWindowTest {
  protected:
    void save(const char* fileName, int filter) {
        saveAs(ChosenFile{directory_.path(QLatin1String(fileName)), filter});
    }

    void cancelSaving() { saveAs(std::nullopt); }

    const FileQuestion& asked() { return host_.fileQuestions().back(); }

    QByteArray bytesOf(const char* fileName) {
        return fileBytes(directory_.path(QLatin1String(fileName)));
    }

    QStringList filesBesideTheProgram() {
        return QFileInfo(directory_.people()).dir().entryList(QDir::Files);
    }

    // The picture at the end of the report; a null one where there is none.
    QImage picture() {
        const RichText text = richTextOf(*of<RichTextBox>("rtbDaily").document());
        if (text.back().runs.empty() || text.back().format.alignment != RichAlignment::Centre)
            return {};
        const auto* found = std::get_if<RichPicture>(&text.back().runs.back().content);
        return found ? QImage::fromData(found->file) : QImage();
    }

    bool hasColour(const QColor& colour) {
        const QImage shown = picture();
        for (int y = 0; y < shown.height(); y += 2) {
            for (int x = 0; x < shown.width(); x += 2) {
                if (shown.pixelColor(x, y) == colour)
                    return true;
            }
        }
        return false;
    }

  private:
    void saveAs(const std::optional<ChosenFile>& answer) {
        host_.expectFileQuestion(answer);
        click(of<QWidget>("cmdSave"));
    }
};

const QColor kBlue(0, 0, 255);

}  // namespace

TEST_F(ReportWindow, OpensWithThePromptAndNoReport) {
    showWaitWindow();
    open();
    EXPECT_EQ(form_->windowTitle(), u"Daily Report");
    EXPECT_EQ(text(), kPrompt);
    EXPECT_EQ(colourBoxes(), std::pair(false, false));
    EXPECT_TRUE(defaultInstance<frmWait>().isHidden());
    EXPECT_EQ(of<QWidget>("client").size(), QSize(457, 398));
    EXPECT_TRUE(form_->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(ReportWindow, CallsItsControlsByTheirTexts) {
    open();
    for (const auto& [name, caption] :
         {std::pair("cmdSave", "Export"), {"cmdPrint", "Print"}, {"cmdClose", "Close"}})
        EXPECT_EQ(of<QAbstractButton>(name).text(), QLatin1String(caption));
    for (const auto& [name, caption] : {std::pair("mnuDailySave", "&Export"),
                                        {"mnuDailyPrint", "&Print"},
                                        {"mnuDailyClose", "&Close"},
                                        {"mnuReportDaily", "&Daily report"},
                                        {"mnuReportMonthly", "&Monthly chart"},
                                        {"mnuReportDatabase", "&Database overview"}})
        EXPECT_EQ(form_->findChild<QAction*>(QLatin1String(name))->text(), QLatin1String(caption));
    EXPECT_EQ(of<QCheckBox>("chkColour_0").text(), u"Colour");
    EXPECT_TRUE(of<QCheckBox>("chkColour_0").isChecked());
    EXPECT_EQ(of<QCheckBox>("chkColour_1").text(), u"Colour");
    EXPECT_TRUE(of<QCheckBox>("chkColour_1").isChecked());
    EXPECT_TRUE(form_->findChild<FileDialog*>(QStringLiteral("dlgDaily")));
}

TEST_F(ReportWindow, ShowsTheDailyReportWithItsChart) {
    open();
    choose("mnuReportDaily");
    EXPECT_TRUE(
        text().startsWith(u"Daily Report for Anna Smith\r\n\r\nDate of birth: \tFriday, 20 "
                          u"October 1972\r\n"))
        << qPrintable(text());
    EXPECT_TRUE(text().contains(u"Biorhythm details for 14 March 2000"));
    EXPECT_EQ(colourBoxes(), std::pair(true, false));
    EXPECT_EQ(of<RichTextBox>("rtbDaily").SelStart(), 0);
    EXPECT_EQ(picture().size(), QSize(1128, 878));
    EXPECT_TRUE(hasColour(kBlue));
}

TEST_F(ReportWindow, ShowsTheMonthlyChart) {
    open();
    choose("mnuReportMonthly");
    EXPECT_TRUE(
        text().startsWith(u"Monthly Chart for Anna Smith\r\n\r\nFrom 14/03/2000 to 14/04/2000\r\n"))
        << qPrintable(text());
    EXPECT_EQ(colourBoxes(), std::pair(false, true));
    EXPECT_EQ(picture().size(), QSize(1428, 853));
    EXPECT_TRUE(hasColour(kBlue));
}

TEST_F(ReportWindow, ShowsTheDatabaseOverviewWithoutAColour) {
    open();
    choose("mnuReportDaily");
    choose("mnuReportDatabase");
    EXPECT_TRUE(text().startsWith(u"Database Overview\r\nBen Adler\r\n")) << qPrintable(text());
    EXPECT_EQ(colourBoxes(), std::pair(false, false));
    EXPECT_TRUE(picture().isNull());
}

TEST_F(ReportWindow, IsInBlackAndWhiteByTheBoxOfEachReport) {
    open();
    choose("mnuReportDaily");
    click(of<QWidget>("chkColour_0"));
    EXPECT_FALSE(hasColour(kBlue));
    EXPECT_TRUE(hasColour(QColor(125, 125, 125)));
    choose("mnuReportMonthly");
    EXPECT_TRUE(of<QCheckBox>("chkColour_1").isChecked());
    EXPECT_TRUE(hasColour(kBlue));
    EXPECT_EQ(of<QWidget>("chkColour_1").geometry(), of<QWidget>("chkColour_0").geometry());
    click(of<QWidget>("chkColour_1"));
    EXPECT_FALSE(hasColour(kBlue));
    EXPECT_TRUE(text().contains(u"Physical (Ditted)"));
    choose("mnuReportDaily");
    EXPECT_FALSE(of<QCheckBox>("chkColour_0").isChecked());
}

TEST_F(ReportWindow, LeavesNothingOnTheClipboardAndNoFile) {
    host_.setClipboard("the user's");
    open();
    for (const char* report : {"mnuReportDaily", "mnuReportMonthly"}) {
        choose(report);
        EXPECT_EQ(host_.clipboard(), std::nullopt) << report;
        EXPECT_TRUE(of<PictureBox>("Picture1").pixmap(Qt::ReturnByValue).isNull()) << report;
        EXPECT_FALSE(QFile::exists(directory_.path(QStringLiteral("tempchart.bmp")))) << report;
    }
}

TEST_F(ReportWindow, EndsTheProgramInGreyWithoutAPictureOnTheClipboard) {
    open();
    choose("mnuReportDaily");
    auto& box = of<QCheckBox>("chkColour_0");
    box.setTristate(true);
    box.setCheckState(Qt::Unchecked);
    host_.expectMessage(QStringLiteral("Run-time error '380':\n\nInvalid property value"));
    click(box);
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_EQ(text(), QString());
    host_.forgetExit();
}

TEST_F(ReportWindow, EndsTheProgramWhereThePictureCannotBeWritten) {
    open();
    const QString path = directory_.path(QStringLiteral("tempchart.bmp"));
    ASSERT_TRUE(QDir().mkdir(path));
    host_.expectMessage(QStringLiteral("Run-time error '75':\n\nPath/File access error: Is a "
                                       "directory, ") +
                        QDir::toNativeSeparators(path));
    choose("mnuReportDaily");
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_TRUE(host_.clipboard());
    EXPECT_EQ(of<PictureBox>("Picture1").pixmap(Qt::ReturnByValue).size(), QSize(1128, 878));
    EXPECT_TRUE(picture().isNull());
    host_.forgetExit();
}

TEST_F(ReportWindow, EndsTheProgramWhereThePersonIsGone) {
    open();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data WHERE Name = 'Smith'"));
    host_.expectMessage(QStringLiteral(
        "Run-time error '3021':\n\nEither BOF or EOF is True, or the current record has been "
        "deleted. Requested operation requires a current record."));
    choose("mnuReportDaily");
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(ReportWindow, DoesNothingByTheEntriesForSavingAndPrinting) {
    open();
    choose("mnuDailySave");
    choose("mnuDailyPrint");
    EXPECT_TRUE(host_.fileQuestions().empty());
    EXPECT_TRUE(tray_.sheets.empty());
    EXPECT_TRUE(form_->isLoaded());
}

TEST_F(ReportWindow, ClosesByItsEntry) {
    open();
    choose("mnuDailyClose");
    EXPECT_FALSE(form_->isLoaded());
}

TEST_F(ReportWindow, ClosesByItsButton) {
    open();
    click(of<QWidget>("cmdClose"));
    EXPECT_FALSE(form_->isLoaded());
}

TEST_F(ReportWindow, PrintsThePromptWhereNoReportWasChosen) {
    open();
    click(of<QWidget>("cmdPrint"));
    ASSERT_EQ(tray_.sheets.size(), 1U);
    EXPECT_NEAR(tray_.inked(0).left(), 1440, 40);
    EXPECT_NEAR(tray_.inked(0).top(), 1440, 100);
}

TEST_F(ReportWindow, PrintsTheReportWithItsChart) {
    open();
    choose("mnuReportDaily");
    click(of<QWidget>("cmdPrint"));
    ASSERT_GE(tray_.sheets.size(), 1U);
    EXPECT_GT(tray_.inked(0).height(), 8000);
}

TEST_F(ReportWindow, IsAsWideAsThePrintersLine) {
    modCycles::ReportToScreen = false;
    open();
    EXPECT_EQ(form_->width(), (11906 - 2880 + 200) / 15);
    EXPECT_EQ(of<QWidget>("client").height(), 398);
    EXPECT_EQ(of<RichTextBox>("rtbDaily").document()->textWidth(), (11906 - 2880) / 15);
    EXPECT_TRUE(tray_.sheets.empty());
}

TEST_F(ReportWindow, EndsTheProgramWithoutAPrinter) {
    modCycles::ReportToScreen = false;
    tray_.isBroken = true;
    host_.expectMessage(QStringLiteral("Run-time error '482':\n\nPrinter error"));
    open();
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(ReportWindow, LaysItselfOutInEverySize) {
    open();
    form_->resize(700, 600);
    const QSize client = of<QWidget>("client").size();
    const QRect box = of<QWidget>("rtbDaily").geometry();
    EXPECT_NEAR(box.width() * 15, client.width() * 15 - 200, 15);
    EXPECT_NEAR(box.height() * 15, client.height() * 15 - 600, 15);
    EXPECT_NEAR(of<QWidget>("cmdPrint").x() * 15, 350 * 15 - 547, 15);
    EXPECT_NEAR(of<QWidget>("cmdClose").x() * 15, 350 * 15 - 547 + 1145, 15);
    EXPECT_NEAR(of<QWidget>("cmdSave").x() * 15, 350 * 15 - 547 - 1145, 15);
    EXPECT_EQ(of<QWidget>("chkColour_0").geometry(), QRect(8, 8, 73, 25));
}

TEST_F(ReportWindow, SavesWhereTheUserChooses) {
    open();
    choose("mnuReportDaily");
    save("report.rtf", 1);
    EXPECT_EQ(asked().title, u"Save Report ...");
    EXPECT_EQ(asked().folder, QFileInfo(directory_.people()).path());
    EXPECT_EQ(asked().defaultExtension, u"rtf");
    EXPECT_EQ(asked().filters, (std::vector<FileFilter>{
                                   {QStringLiteral("Rich Text (*.rtf)"), QStringLiteral("*.rtf")},
                                   {QStringLiteral("Plain Text (*.txt)"), QStringLiteral("*.txt")},
                                   {QStringLiteral("All files (*.*)"), QStringLiteral("*.*")}}));
    const RichText saved = readRtf(QString::fromLatin1(bytesOf("report.rtf")));
    EXPECT_TRUE(std::holds_alternative<RichPicture>(saved.back().runs.back().content));
}

TEST_F(ReportWindow, SavesRichTextForAllFilesAndPlainTextForTexts) {
    open();
    save("any.doc", 3);
    EXPECT_TRUE(bytesOf("any.doc").startsWith("{\\rtf1"));
    save("plain.txt", 2);
    EXPECT_EQ(asked().defaultExtension, u"rtf");
    EXPECT_EQ(bytesOf("plain.txt"), kPrompt.toLatin1());
    save("plain.txt", 1);
    EXPECT_EQ(asked().defaultExtension, u"txt");
    cancelSaving();
    EXPECT_EQ(asked().defaultExtension, u"rtf");
}

TEST_F(ReportWindow, AsksBeforeOverwritingFromTheSecondTimeOn) {
    open();
    save("one.rtf", 1);
    EXPECT_FALSE(asked().asksBeforeOverwriting);
    save("one.rtf", 1);
    EXPECT_TRUE(asked().asksBeforeOverwriting);
}

TEST_F(ReportWindow, SavesNothingWhereTheFirstQuestionIsCancelled) {
    open();
    const QStringList before = filesBesideTheProgram();
    cancelSaving();
    EXPECT_EQ(host_.exitCode(), std::nullopt);
    EXPECT_EQ(filesBesideTheProgram(), before);
}

TEST_F(ReportWindow, WritesTheLastFileAgainWhereALaterQuestionIsCancelled) {
    open();
    save("one.txt", 2);
    choose("mnuReportDatabase");
    cancelSaving();
    EXPECT_TRUE(bytesOf("one.txt").startsWith("Database Overview"));
}

TEST_F(ReportWindow, EndsTheProgramWhereAFileCannotBeSaved) {
    open();
    host_.expectMessage(
        QStringLiteral("Run-time error '75':\n\nPath/File access error: Not a directory, ") +
        directory_.path(QStringLiteral("Ondara2.mdb/x.rtf")));
    save("Ondara2.mdb/x.rtf", 1);
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}
