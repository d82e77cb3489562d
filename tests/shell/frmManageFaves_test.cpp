// Deleting favourites.
#include "shell/frmManageFaves.h"

#include <QDir>
#include <QFile>
#include <QPushButton>

#include "controls/button_menu.h"
#include "controls/file_list_box.h"
#include "shell/frmMain.h"
#include "shell/main_controls.h"
#include "store/favourites.h"
#include "support/main_window.h"

namespace {

const QString kBen = QStringLiteral("Adler, Ben");
const QString kZed = QStringLiteral("Zed");

class ManageFaves : public MainWindowTest {
  protected:
    ManageFaves() {
        writeFavourite({2, kBen});
        writeFavourite({3, kZed});
        form_ = std::make_unique<frmManageFaves>(&load());
        form_->Show();
    }

    FileListBox& list() { return child<FileListBox>(*form_, QStringLiteral("flManageFaves")); }
    QPushButton& button(const char* name) {
        return child<QPushButton>(*form_, QString::fromLatin1(name));
    }
    bool exists(const QString& name) {
        return QFile::exists(directory_.path(name + QStringLiteral(".ofp")));
    }
    int menuEntries() { return mainControls().mnuFaves->Count(); }

    std::unique_ptr<frmManageFaves> form_;
};

TEST_F(ManageFaves, ListsTheFilesWithTheirExtension) {
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Manage Favourites"));
    EXPECT_EQ(button("cmdDelete").text(), QStringLiteral("Delete"));
    EXPECT_EQ(button("cmdClose").text(), QStringLiteral("Close"));
    ASSERT_EQ(list().ListCount(), 2);
    EXPECT_EQ(list().List(0), QStringLiteral("Adler, Ben.ofp"));
    EXPECT_EQ(list().List(1), QStringLiteral("Zed.ofp"));
}

TEST_F(ManageFaves, DeletesTheSelectedOneWithoutAQuestion) {
    list().setListIndex(0);
    button("cmdDelete").click();
    EXPECT_FALSE(exists(kBen));
    EXPECT_TRUE(exists(kZed));
    ASSERT_EQ(list().ListCount(), 1);
    EXPECT_EQ(list().List(0), QStringLiteral("Zed.ofp"));
    for (QWidget* control :
         std::initializer_list<QWidget*>{&list(), &button("cmdDelete"), &button("cmdClose")})
        EXPECT_TRUE(control->isEnabled());
}

TEST_F(ManageFaves, DeletesNothingWithoutASelection) {
    button("cmdDelete").click();
    EXPECT_TRUE(exists(kBen));
    EXPECT_TRUE(exists(kZed));
}

TEST_F(ManageFaves, EndsTheProgramWhenAFileCannotBeDeleted) {
    list().setListIndex(0);
    const QString path = directory_.path(QStringLiteral("Adler, Ben.ofp"));
    QFile::remove(path);
    host_.expectMessage(
        QStringLiteral("Run-time error '53':\n\nFile not found: there is no file of this name, ") +
        QDir::toNativeSeparators(path));
    button("cmdDelete").click();
    EXPECT_EQ(host_.exitCode(), 1);
}

TEST_F(ManageFaves, RebuildsTheMenuWhenItIsClosedByItsButton) {
    list().setListIndex(0);
    button("cmdDelete").click();
    EXPECT_EQ(menuEntries(), 5);
    button("cmdClose").click();
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_EQ(menuEntries(), 4);
    EXPECT_EQ(mainControls().mnuFaves->Text(4), kZed);
}

TEST_F(ManageFaves, RebuildsTheMenuOnEsc) {
    list().setListIndex(0);
    button("cmdDelete").click();
    pressKey(list(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_EQ(menuEntries(), 4);
}

TEST_F(ManageFaves, LeavesTheMenuWhenItIsClosedByItsTitleBar) {
    list().setListIndex(0);
    button("cmdDelete").click();
    form_->close();
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_EQ(menuEntries(), 5);
}

TEST_F(ManageFaves, LeavesTheEntryOfTheLastFavouriteInTheMenu) {
    for (int favourite = 0; favourite < 2; ++favourite) {
        list().setListIndex(0);
        button("cmdDelete").click();
    }
    button("cmdClose").click();
    EXPECT_EQ(menuEntries(), 5);
}

}  // namespace
