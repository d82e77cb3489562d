// The boxes of the desktop, its questions for files, its clipboard, its printer, and its help.
#include "controls/desktop_host.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>

#include "controls/bitmap.h"
#include "controls/help_browser.h"
#include "controls/help_window.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/help_files.h"
#include "support/printing.h"
#include "support/widget_driver.h"

namespace {

class DesktopHostTest : public testing::Test {
  protected:
    // Shows a box, looks at it with `look`, and answers it with a button.
    template <class Look>
    Answer answered(const Message& message, QMessageBox::StandardButton button, Look look) {
        QTimer shown;
        shown.setSingleShot(true);
        QObject::connect(&shown, &QTimer::timeout, &shown, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            look(*box);
            box->done(button);
        });
        shown.start(0);
        return host_.showMessage(message);
    }

    static QImage redPicture() {
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::red);
        return picture;
    }

    // Asks for a file, lets `act` do what the user does in the dialog, and closes it by `slot`.
    template <class Act>
    std::optional<ChosenFile> chosen(const FileQuestion& question, const char* slot, Act act) {
        QTimer shown;
        shown.setSingleShot(true);
        QObject::connect(&shown, &QTimer::timeout, &shown, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            QMetaObject::invokeMethod(dialog, slot);
        });
        shown.start(0);
        return host_.chooseFile(question);
    }

    FileQuestion saving() const {
        return {.purpose = FilePurpose::Save,
                .title = QStringLiteral("Save"),
                .folder = folder_.path(),
                .filters = {{QStringLiteral("Rich (*.rtf)"), QStringLiteral("*.rtf")},
                            {QStringLiteral("Anything"), QStringLiteral("*.*")}},
                .defaultExtension = QStringLiteral("rtf")};
    }

    QTemporaryDir folder_;
    DesktopHost host_;
};

TEST_F(DesktopHostTest, ShowsTextTitleIconAndButtons) {
    const Message message{.text = QStringLiteral("Cannot <b>load</b>."),
                          .title = QStringLiteral("Ondara"),
                          .icon = MessageIcon::Exclamation};
    const Answer answer = answered(message, QMessageBox::Ok, [](const QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("Cannot <b>load</b>."));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Ondara"));
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
    EXPECT_EQ(answer, Answer::Ok);
}

TEST_F(DesktopHostTest, AsksForTheNameOfAFileToSave) {
    const auto file = chosen(saving(), "accept", [this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Save");
        EXPECT_EQ(dialog.directory(), QDir(folder_.path()));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        auto& filters = child<QComboBox>(dialog, QStringLiteral("fileTypeCombo"));
        EXPECT_EQ(filters.itemText(0), u"Rich (*.rtf)");
        EXPECT_EQ(filters.itemText(1), u"Anything");
        EXPECT_TRUE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
        filters.setCurrentIndex(1);
        dialog.selectFile(QStringLiteral("report"));
    });
    ASSERT_TRUE(file);
    EXPECT_EQ(file->path, folder_.filePath(QStringLiteral("report.rtf")));
    EXPECT_EQ(file->filterIndex, 2);
}

TEST_F(DesktopHostTest, AsksBeforeOverwritingWhereItIsTold) {
    FileQuestion question = saving();
    question.asksBeforeOverwriting = true;
    const auto file = chosen(question, "reject", [](const QFileDialog& dialog) {
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    });
    EXPECT_FALSE(file);
}

TEST_F(DesktopHostTest, AsksForAFileToOpen) {
    FileQuestion question = saving();
    question.purpose = FilePurpose::Open;
    makeFile(folder_.filePath(QStringLiteral("old.rtf")), "old");
    const auto file = chosen(question, "accept", [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        dialog.selectFile(QStringLiteral("old.rtf"));
    });
    ASSERT_TRUE(file);
    EXPECT_EQ(file->path, folder_.filePath(QStringLiteral("old.rtf")));
    EXPECT_EQ(file->filterIndex, 1);
}

TEST_F(DesktopHostTest, FailsForThePrinterWhereThereIsNone) {
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "There is a printer here.";
    EXPECT_EQ(errorOf([this] { host_.printer(); }), 482);
}

TEST_F(DesktopHostTest, ProposesANameThatNeedNotBeThatOfAFile) {
    FileQuestion question = saving();
    question.purpose = FilePurpose::Open;
    question.fileName = QStringLiteral("names.mdb");
    const auto file = chosen(question, "accept", [](const QFileDialog&) {});
    ASSERT_TRUE(file);
    EXPECT_EQ(file->path, folder_.filePath(QStringLiteral("names.mdb")));
}

TEST_F(DesktopHostTest, ProposesAFileAndAFilterOfThoseThereAre) {
    const QTemporaryDir other;
    FileQuestion question = saving();
    question.fileName = QDir(other.path()).filePath(QStringLiteral("report.txt"));
    for (int filter = 1; filter <= 2; ++filter) {
        question.filterIndex = filter;
        const auto file = chosen(question, "accept", [](const QFileDialog&) {});
        ASSERT_TRUE(file);
        EXPECT_EQ(file->path, question.fileName);
        EXPECT_EQ(file->filterIndex, filter);
    }
}

TEST_F(DesktopHostTest, CopiesABitmapForItselfAndOthers) {
    const QByteArray file = bitmapOf(redPicture());
    host_.setClipboardBitmap(file);
    EXPECT_EQ(host_.clipboardBitmap(), file);
    EXPECT_EQ(QApplication::clipboard()->image().pixelColor(1, 1), QColor(Qt::red));
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
    host_.clearClipboard();
    EXPECT_EQ(host_.clipboardBitmap(), std::nullopt);
}

TEST_F(DesktopHostTest, TakesThePictureThatAnotherProgramHasCopied) {
    QApplication::clipboard()->setImage(redPicture());
    const std::optional<QByteArray> file = host_.clipboardBitmap();
    ASSERT_TRUE(file);
    EXPECT_EQ(pictureOf(*file).pixelColor(1, 1), QColor(Qt::red));
    QApplication::clipboard()->setText(QStringLiteral("no picture"));
    EXPECT_EQ(host_.clipboardBitmap(), std::nullopt);
    host_.clearClipboard();
}

TEST_F(DesktopHostTest, IsWideEnoughForItsTitle) {
    const QString title = QStringLiteral("The requested application is already open");
    answered({.text = QStringLiteral("No."), .title = title}, QMessageBox::Ok,
             [&](const QMessageBox& box) {
                 EXPECT_GT(box.width(), box.fontMetrics().horizontalAdvance(title) + 100);
             });
}

TEST_F(DesktopHostTest, HasNoIconAndNoTitleUnlessTheyAreAskedFor) {
    answered({.text = QStringLiteral("Well?")}, QMessageBox::Ok, [](const QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        EXPECT_EQ(box.windowTitle(), QString());
    });
}

TEST_F(DesktopHostTest, HasTheIconThatIsAskedFor) {
    for (const auto& [asked, icon] :
         {std::pair(MessageIcon::Critical, QMessageBox::Critical),
          std::pair(MessageIcon::Information, QMessageBox::Information)})
        answered({.text = QStringLiteral("Done!"), .icon = asked}, QMessageBox::Ok,
                 [&](const QMessageBox& box) { EXPECT_EQ(box.icon(), icon); });
}

TEST_F(DesktopHostTest, AnswersAQuestionAsTheUserDoes) {
    const Message question{.text = QStringLiteral("Sure?"), .buttons = MessageButtons::YesNo};
    const auto look = [](const QMessageBox& box) {
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    };
    EXPECT_EQ(answered(question, QMessageBox::Yes, look), Answer::Yes);
    EXPECT_EQ(answered(question, QMessageBox::No, look), Answer::No);
}

TEST_F(DesktopHostTest, WaitsOverTheWindowOfItsOwner) {
    QWidget window;
    auto* inner = new QWidget(&window);
    answered({.text = QStringLiteral("Here."), .owner = inner}, QMessageBox::Ok,
             [&](const QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window); });
}

TEST_F(DesktopHostTest, WaitsOverTheWindowBelowAnOwnerThatIsNotShownYet) {
    QWidget window;
    window.show();
    QWidget loading(&window, Qt::Dialog);
    answered({.text = QStringLiteral("Here."), .owner = &loading}, QMessageBox::Ok,
             [&](const QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window); });
    loading.show();
    answered({.text = QStringLiteral("Here."), .owner = &loading}, QMessageBox::Ok,
             [&](const QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &loading); });
}

TEST_F(DesktopHostTest, YieldsToWaitingEvents) {
    QTimer waiting;
    waiting.setSingleShot(true);
    waiting.start(0);
    host_.yield();
    EXPECT_FALSE(waiting.isActive());
}

// A widget that is not shown on the screen stands for a window that the window system is slow with.
TEST_F(DesktopHostTest, WaitsForAWindowThatAppearsLate) {
    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    QTimer late;
    late.setSingleShot(true);
    QObject::connect(&late, &QTimer::timeout, &window, [&] {
        window.hide();
        window.setAttribute(Qt::WA_DontShowOnScreen, false);
        window.show();
    });
    late.start(10);
    host_.paintWindows();
    EXPECT_TRUE(window.windowHandle()->isExposed());
}

TEST_F(DesktopHostTest, DoesNotWaitForEverForAWindowThatStaysAway) {
    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.show();
    host_.paintWindows();
    EXPECT_FALSE(window.windowHandle()->isExposed());
}

#ifndef Q_OS_WIN  // where help is shown by the system's viewer

class HelpOfTheDesktop : public DesktopHostTest {
  protected:
    // The help windows that are there, shown or not.
    static QList<HelpWindow*> windows() {
        QList<HelpWindow*> found;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* help = qobject_cast<HelpWindow*>(window))
                found.append(help);
        }
        return found;
    }

    static QString shownText() {
        const auto found = windows();
        if (found.size() != 1 || !found[0]->isVisible())
            return QStringLiteral("not one window");
        return child<HelpBrowser>(*found[0], QStringLiteral("page")).toPlainText();
    }

    void show() { host_.showHelp(nullptr, files_.helpFile()); }

    HelpFiles files_;
};

TEST_F(HelpOfTheDesktop, IsAWindow) {
    files_.writeContents(HelpFiles::entry("A", "a.html"));
    files_.write(QStringLiteral("a.html"), "<p>A");
    show();
    EXPECT_EQ(shownText(), QStringLiteral("A"));
}

TEST_F(HelpOfTheDesktop, IsFoundFromTheCurrentDirectory) {
    files_.writeContents(HelpFiles::entry("A", "a.html"));
    files_.write(QStringLiteral("a.html"), "<p>A");
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QFileInfo(files_.helpFile()).path()));
    host_.showHelp(nullptr, QStringLiteral("test.chm"));
    QDir::setCurrent(before);
    EXPECT_EQ(shownText(), QStringLiteral("A"));
}

TEST_F(HelpOfTheDesktop, IsReadAnewIntoTheSamePlaceWhenItIsShownAgain) {
    files_.writeContents(HelpFiles::entry("A", "a.html"));
    files_.write(QStringLiteral("a.html"), "<p>A");
    show();
    ASSERT_EQ(windows().size(), 1);
    windows()[0]->resize(700, 500);
    files_.write(QStringLiteral("a.html"), "<p>New");
    show();
    EXPECT_EQ(shownText(), QStringLiteral("New"));
    EXPECT_EQ(windows()[0]->size(), QSize(700, 500));
    windows()[0]->close();
    show();
    EXPECT_EQ(shownText(), QStringLiteral("New"));
}

TEST_F(HelpOfTheDesktop, IsNothingWhereThereIsNoContents) {
    show();
    EXPECT_TRUE(windows().isEmpty());
    files_.write(QStringLiteral("a.html"), "<p>A");
    show();
    EXPECT_TRUE(windows().isEmpty());
    files_.writeContents("no contents");
    show();
    EXPECT_TRUE(windows().isEmpty());
}

TEST_F(HelpOfTheDesktop, StaysAsItIsWhenItIsNoLongerThere) {
    files_.writeContents(HelpFiles::entry("A", "a.html"));
    files_.write(QStringLiteral("a.html"), "<p>A");
    show();
    QFile::remove(files_.path(QStringLiteral("test.hhc")));
    show();
    EXPECT_EQ(shownText(), QStringLiteral("A"));
}

#endif

}  // namespace
