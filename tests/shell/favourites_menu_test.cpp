// The menu of favourites and the files that it is made from.
#include "shell/favourites_menu.h"

#include <QDir>
#include <QFile>

#include "controls/button_menu.h"
#include "controls/combo_box.h"
#include "controls/file_list_box.h"
#include "controls/list_box.h"
#include "shell/frmMain.h"
#include "shell/main_controls.h"
#include "store/favourites.h"
#include "support/errors.h"
#include "support/files.h"
#include "support/main_window.h"

using namespace modCycles;

namespace {

class FavouritesMenu : public MainWindowTest {
  protected:
    ButtonMenu& menu() { return *mainControls().mnuFaves; }

    QStringList texts() {
        QStringList all;
        for (int index = 1; index <= menu().Count(); ++index)
            all += menu().Text(index);
        return all;
    }

    void make(const QString& name, const QByteArray& bytes = {}) {
        makeFile(directory_.path(name), bytes);
    }

    QStringList favouriteFiles() {
        return QDir(directory_.path({})).entryList({QStringLiteral("*.ofp")}, QDir::Files);
    }

    bool select(const QString& name) {
        return selectFavourite(name, control<ComboBox>("cbCategory"), control<ListBox>("lstMain"));
    }

    const QString kAnna = QStringLiteral("Smith, Anna");
    const QStringList kFixed{QStringLiteral("Add to Favourites"),
                             QStringLiteral("Manage Favourites"), QStringLiteral("-")};
};

TEST_F(FavouritesMenu, BeginsWithTheEntriesThatStay) {
    load();
    EXPECT_EQ(texts(), kFixed);
    EXPECT_EQ(menu().Key(1), QStringLiteral("AddFaves"));
    EXPECT_EQ(menu().Key(2), QStringLiteral("ManageFaves"));
    EXPECT_EQ(menu().Key(3), QStringLiteral("sep"));
}

TEST_F(FavouritesMenu, IsFilledWhenTheMainWindowIsLoaded) {
    make(QStringLiteral("Zed.ofp"));
    make(QStringLiteral("a.b.ofp"));
    make(QStringLiteral("smith, anna.OFP"));
    load();
    EXPECT_EQ(texts(), kFixed + QStringList({QStringLiteral("a.b"), QStringLiteral("smith, anna"),
                                             QStringLiteral("Zed")}));
    for (int index = 4; index <= menu().Count(); ++index)
        EXPECT_EQ(menu().Key(index), QString());
}

TEST_F(FavouritesMenu, IsRebuiltFromTheFilesOfTheMoment) {
    make(QStringLiteral("Adler, Ben.ofp"));
    make(QStringLiteral("Zed.ofp"));
    load();
    QFile::remove(directory_.path(QStringLiteral("Zed.ofp")));
    make(QStringLiteral("Abe.ofp"));
    FillFavouritesMenu();
    EXPECT_EQ(texts(), kFixed + QStringList({QStringLiteral("Abe"), QStringLiteral("Adler, Ben")}));
    EXPECT_TRUE(control<FileListBox>("flFavePerson").isHidden());
}

TEST_F(FavouritesMenu, KeepsItsLastEntryWhenThatFavouriteIsDeleted) {
    make(QStringLiteral("Zed.ofp"));
    load();
    deleteFavouriteFile(QStringLiteral("Zed.ofp"));
    FillFavouritesMenu();
    EXPECT_EQ(texts(), kFixed + QStringList(QStringLiteral("Zed")));
}

TEST_F(FavouritesMenu, TakesWholeAnyMenuWithoutFixedEntries) {
    load();
    make(QStringLiteral("Zed.ofp"));
    ButtonMenu other;
    other.Add({}, QStringLiteral("old"));
    fillFavourites(other, 0, control<FileListBox>("flFavePerson"));
    ASSERT_EQ(other.Count(), 1);
    EXPECT_EQ(other.Text(1), QStringLiteral("Zed"));
}

TEST_F(FavouritesMenu, OffersThoseAloneThatItsFilterTakes) {
    load();
    for (const char* name : {"Abe.ofp", "Bea.ofp", "Cal.ofp"})
        make(QString::fromLatin1(name));
    ButtonMenu other;
    const auto isNotBea = [](const QString& name) { return name != QStringLiteral("Bea"); };
    fillFavourites(other, 0, control<FileListBox>("flFavePerson"), isNotBea);
    ASSERT_EQ(other.Count(), 2);
    EXPECT_EQ(other.Text(1), QStringLiteral("Abe"));
    EXPECT_EQ(other.Text(2), QStringLiteral("Cal"));
}

TEST_F(FavouritesMenu, IsEmptyWhereItsFilterTakesNone) {
    load();
    make(QStringLiteral("Zed.ofp"));
    ButtonMenu other;
    other.Add({}, QStringLiteral("old"));
    fillFavourites(other, 0, control<FileListBox>("flFavePerson"),
                   [](const QString&) { return false; });
    EXPECT_EQ(other.Count(), 0);
}

TEST_F(FavouritesMenu, GainsThePersonWhoIsAdded) {
    loadAndChoose(kAnna);
    addFavourite();
    EXPECT_EQ(texts(), kFixed + QStringList(kAnna));
    const ListBox& people = control<ListBox>("lstMain");
    EXPECT_EQ(readFavourite(kAnna), (PersonRecord{people.ItemData(people.ListIndex()), kAnna}));
}

TEST_F(FavouritesMenu, HasNobodyTwice) {
    make(QStringLiteral("smith, anna.ofp"), "1,\"somebody\"\r\n");
    loadAndChoose(kAnna);
    addFavourite();
    addFavourite();
    EXPECT_EQ(favouriteFiles().size(), 1);
    EXPECT_EQ(menu().Count(), 4);
    EXPECT_EQ(readFavourite(kAnna).displayText, kAnna);
}

TEST_F(FavouritesMenu, GainsNobodyWithoutASelection) {
    load();
    addFavourite();
    EXPECT_EQ(favouriteFiles(), QStringList());
    EXPECT_EQ(texts(), kFixed);
}

TEST_F(FavouritesMenu, StaysAsItIsWhenThePersonCannotBeAdded) {
    addPerson({.name = QStringLiteral("AC/DC"), .catId = family_});
    loadAndChoose(QStringLiteral("AC/DC"));
    EXPECT_EQ(errorOf([] { addFavourite(); }), 52);
    EXPECT_EQ(favouriteFiles(), QStringList());
    EXPECT_EQ(texts(), kFixed);
}

TEST_F(FavouritesMenu, FindsAPersonOfAnotherCategory) {
    writeFavourite({1, kAnna});
    load();
    control<ComboBox>("cbCategory").setText(QStringLiteral("Friends"));
    EXPECT_TRUE(select(kAnna));
    EXPECT_EQ(control<ListBox>("lstMain").Text(), kAnna);
    EXPECT_EQ(control<ComboBox>("cbCategory").ListIndex(), 0);
    EXPECT_EQ(control<ListBox>("lstMain").ListCount(), 3);
}

TEST_F(FavouritesMenu, FindsByTheTextAndNotByTheNumber) {
    load();
    writeFavourite({control<ListBox>("lstMain").ItemData(0), kAnna});
    EXPECT_TRUE(select(kAnna));
    EXPECT_EQ(control<ListBox>("lstMain").Text(), kAnna);
}

TEST_F(FavouritesMenu, FindsTheTextLetterForLetter) {
    make(QStringLiteral("Smith, Anna.ofp"), "1,\"smith, anna\"\r\n");
    load();
    EXPECT_FALSE(select(kAnna));
}

TEST_F(FavouritesMenu, FindsTheFirstOfTwoWithOneText) {
    addPerson(
        {.name = QStringLiteral("Smith"), .firstName = QStringLiteral("Anna"), .catId = friends_});
    load();
    ListBox& people = control<ListBox>("lstMain");
    people.setListIndex(2);
    ASSERT_EQ(people.List(1), kAnna);
    ASSERT_EQ(people.Text(), kAnna);
    addFavourite();
    EXPECT_TRUE(select(kAnna));
    EXPECT_EQ(people.ListIndex(), 1);
}

TEST_F(FavouritesMenu, LeavesEverybodyListedAndNobodySelectedForSomeoneWhoIsGone) {
    writeFavourite({9, QStringLiteral("Gone, Gil")});
    loadAndChoose(kAnna);
    control<ComboBox>("cbCategory").setText(QStringLiteral("Family"));
    EXPECT_FALSE(select(QStringLiteral("Gone, Gil")));
    EXPECT_EQ(control<ComboBox>("cbCategory").Text(), QStringLiteral("*"));
    EXPECT_EQ(control<ListBox>("lstMain").ListIndex(), -1);
    EXPECT_EQ(control<ListBox>("lstMain").ListCount(), 3);
}

TEST_F(FavouritesMenu, ChangesNothingWhenAFileCannotBeRead) {
    make(QStringLiteral("empty.ofp"));
    make(QStringLiteral("cut.ofp"), "1,\"Smith, An");
    make(QStringLiteral("random.ofp"), QByteArray::fromHex("00ff80c3282c22e2820a0d1b"));
    make(QStringLiteral("long.ofp"), QByteArray(5'000'000, 'x'));
    loadAndChoose(kAnna);
    control<ComboBox>("cbCategory").setText(QStringLiteral("Family"));
    control<ListBox>("lstMain").setText(kAnna);
    for (const char* name : {"empty", "cut", "random", "long"})
        EXPECT_NE(errorOf([&] { select(QString::fromLatin1(name)); }), 0) << name;
    EXPECT_EQ(control<ListBox>("lstMain").Text(), kAnna);
    EXPECT_EQ(control<ComboBox>("cbCategory").Text(), QStringLiteral("Family"));
}

}  // namespace
