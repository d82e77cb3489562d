// The report window where something is gone, or cannot be printed or written.
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "reports/report_driver.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/read_only_folder.h"

namespace {

class ReportFailures : public ReportWindowTest {
  protected:
    // What is done shows the run-time's box with this text and ends the program.
    template <class Steps>
    void expectEnd(const QString& box, Steps&& steps) {
        host_.expectMessage(box);
        std::invoke(std::forward<Steps>(steps));
        EXPECT_EQ(host_.exitCode(), 1);
        host_.forgetExit();
    }

    void expectEndBy(const char* entry, const QString& box) {
        expectEnd(box, [&] { choose(entry); });
    }

    // Anna is in a database that allows everything.
    void openWithoutConstraints() {
        directory_.dropConstraints();
        addPerson({.name = QStringLiteral("Smith"),
                   .firstName = QStringLiteral("Anna"),
                   .catId = addCategory(QStringLiteral("Family"))});
        open();
    }

    void change(const char* sql) { runSql(directory_.people(), QLatin1String(sql)); }

    void saveAs(const QString& path) {
        host_.expectFileQuestion(ChosenFile{path, 1});
        click(of<QWidget>("cmdSave"));
    }

    void print() { click(of<QWidget>("cmdPrint")); }
};

QString isGoneBox(const QString& database) {
    return QStringLiteral(
               "Run-time error '53':\n\nFile not found: there is no file of this name, ") +
           QDir::toNativeSeparators(database);
}

const QString kPrinterError = QStringLiteral("Run-time error '482':\n\nPrinter error");

}  // namespace

TEST_F(ReportFailures, EndWhereThereIsNoBirthDate) {
    openWithoutConstraints();
    change("UPDATE Data SET Birthdate = NULL");
    const QString box = QStringLiteral("Run-time error '94':\n\nInvalid use of Null");
    expectEndBy("mnuReportDaily", box);
    expectEndBy("mnuReportMonthly", box);
    EXPECT_EQ(text(), QString());
    expectEndBy("mnuReportDatabase", box);
    EXPECT_EQ(text(), u"Please wait...");
}

TEST_F(ReportFailures, EndWhereTheCategoryIsGone) {
    openWithoutConstraints();
    for (const char* sql : {"UPDATE Data SET CatID = 99", "DELETE FROM Category"}) {
        change(sql);
        expectEndBy("mnuReportDaily", noCurrentRecordBox());
        expectEndBy("mnuReportMonthly", noCurrentRecordBox());
    }
    EXPECT_EQ(text(), QString());
}

TEST_F(ReportFailures, LeaveNothingOfTheLastReport) {
    open();
    choose("mnuReportMonthly");
    choose("mnuReportDaily");
    change("DELETE FROM Data WHERE Name = 'Smith'");
    for (const char* entry : {"mnuReportDaily", "mnuReportMonthly"}) {
        of<RichTextBox>("rtbDaily").setText(QStringLiteral("before"));
        expectEndBy(entry, noCurrentRecordBox());
        EXPECT_EQ(text(), QString()) << entry;
    }
    for (const char* box : {"chkColour_0", "chkColour_1"}) {
        of<QWidget>(box).show();
        of<RichTextBox>("rtbDaily").setText(QStringLiteral("before"));
        expectEnd(noCurrentRecordBox(), [&] { click(of<QWidget>(box)); });
        EXPECT_EQ(text(), QString()) << box;
    }
}

TEST_F(ReportFailures, EndWhereTheDatabaseOfPeopleIsGone) {
    open();
    QFile::remove(directory_.people());
    for (const char* entry : {"mnuReportDaily", "mnuReportMonthly", "mnuReportDatabase"}) {
        of<RichTextBox>("rtbDaily").setText(QStringLiteral("before"));
        expectEndBy(entry, isGoneBox(directory_.people()));
        EXPECT_EQ(text(), QString()) << entry;
    }
}

TEST_F(ReportFailures, EndWhereTheDatabaseOfInterpretationsIsGone) {
    open();
    QFile::remove(directory_.interpretation());
    expectEndBy("mnuReportDaily", isGoneBox(directory_.interpretation()));
    EXPECT_EQ(text(), QString());
}

TEST_F(ReportFailures, EndWhereThereIsNoRoomForTheText) {
    open();
    expectEnd(QStringLiteral("Run-time error '380':\n\nInvalid property value"),
              [this] { form_->resize(100, 20); });
}

TEST_F(ReportFailures, EndWhereThereIsNoPrinter) {
    open();
    host_.onPrinter(nullptr);
    expectEnd(kPrinterError, [this] { print(); });
}

TEST_F(ReportFailures, EndWhereThePrinterFailsAmongThePages) {
    for (int person = 0; person < 40; ++person)
        addPerson({.name = QStringLiteral("Namesake"), .catId = family_});
    open();
    choose("mnuReportDatabase");
    tray_.paper = 2;
    expectEnd(kPrinterError, [this] { print(); });
    EXPECT_TRUE(tray_.sheets.empty());
    tray_.paper = 10;
    print();
    EXPECT_GT(tray_.sheets.size(), 2U);
}

TEST_F(ReportFailures, EndWhereTheFileIsAFolder) {
    open();
    const QString folder = directory_.path(QStringLiteral("folder.rtf"));
    ASSERT_TRUE(QDir().mkdir(folder));
    expectEnd(QStringLiteral("Run-time error '75':\n\nPath/File access error: Filename refers to "
                             "a directory, ") +
                  QDir::toNativeSeparators(folder),
              [&] { saveAs(folder); });
    EXPECT_TRUE(QDir(folder).isEmpty());
}

TEST_F(ReportFailures, LeaveAFileAsItIsInAFolderThatCannotBeWritten) {
    open();
    const QString path = directory_.path(QStringLiteral("folder/report.rtf"));
    const QString folder = QFileInfo(path).path();
    ASSERT_TRUE(QDir().mkdir(folder));
    makeFile(path, "before");
    const ReadOnlyFolder readOnly(folder);
    if (!readOnly.holdsBack())
        GTEST_SKIP() << "Nothing holds this user back.";
    expectEnd(
        QStringLiteral("Run-time error '75':\n\nPath/File access error: Permission denied, ") +
            QDir::toNativeSeparators(path),
        [&] { saveAs(path); });
    EXPECT_EQ(fileBytes(path), QByteArray("before"));
}
