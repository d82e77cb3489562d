// The explorer: what it shows, Refresh, and the card.
#include "records/frmExplore.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>

#include "controls/list_box.h"
#include "controls/picture_button.h"
#include "controls/twips.h"
#include "records/explorer_driver.h"
#include "records/frmZoom.h"
#include "shell/frmWait.h"
#include "shell/handover.h"
#include "support/errors.h"
#include "support/next_form.h"

namespace {

class Explorer : public ExplorerTest {
  protected:
    ListBox& lstCat() { return of<ListBox>("lstCat"); }

    // "text=number" of each entry of the lookup.
    QStringList lookup() {
        QStringList entries;
        for (int i = 0; i < lstCat().ListCount(); ++i)
            entries += lstCat().List(i) + u'=' + QString::number(lstCat().ItemData(i));
        return entries;
    }

    void refresh() { click(of<PictureButton>("cmdRefresh")); }

    // The card that an act of the user opens: whose it is, and who owns it.
    struct Card {
        QString name;
        Long nameId = 0;
        const QWidget* owner = nullptr;
        bool isModal = false;
    };

    Card cardFrom(const std::function<void()>& act) {
        Card card;
        onNextForm<frmZoom>([&card](frmZoom& shown) {
            card = {child<QLabel>(shown, QStringLiteral("lblName")).text(),
                    modCycles::SelectedNameID, shown.parentWidget(), shown.isModal()};
        });
        act();
        return card;
    }

    Card cardFromCell(int row, int column) {
        return cardFrom([&] { doubleClick(*grid().viewport(), placeOfCell(row, column)); });
    }
};

TEST_F(Explorer, ShowsEverybodyInWords) {
    open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Explore database"));
    EXPECT_EQ(header(), QStringLiteral("Name|Firstname|Birthdate|Gender|Category|NameID"));
    EXPECT_EQ(rows(), QStringList({QStringLiteral("Adler|Ben|May 5, 1990|Male|Friends|2"),
                                   QStringLiteral("Smith|Anna|Oct 20, 1972|Male|Family|1"),
                                   QStringLiteral("Zed||Jan 31, 1985|Male|Friends|3")}));
}

TEST_F(Explorer, CallsItsControlsByTheirTexts) {
    open();
    EXPECT_EQ(of<QLabel>("Label1").text(),
              QStringLiteral("Doubleclick a record to view details. Drag columns to sort."));
    EXPECT_EQ(of<PictureButton>("cmdRefresh").text(), QStringLiteral("Refresh"));
    EXPECT_EQ(of<PictureButton>("cmdClose").text(), QStringLiteral("Close"));
}

TEST_F(Explorer, HidesTheKeysAndTheLookup) {
    open();
    EXPECT_TRUE(grid().horizontalHeader()->isSectionHidden(5));
    EXPECT_FALSE(lstCat().isVisible());
    EXPECT_TRUE(cells().look(0, 0).isBold);
    EXPECT_EQ(greyColumns(), QStringLiteral("x-x-x-"));
}

TEST_F(Explorer, IsSortedByNameAndFirstName) {
    addPerson({.name = QStringLiteral("smith"), .firstName = QStringLiteral("Abe")});
    addPerson({.name = QStringLiteral("Zed"), .firstName = QStringLiteral("Zo\u00eb")});
    open();
    EXPECT_EQ(column(0),
              QStringList({QStringLiteral("Adler"), QStringLiteral("smith"),
                           QStringLiteral("Smith"), QStringLiteral("Zed"), QStringLiteral("Zed")}));
    EXPECT_EQ(column(1),
              QStringList({QStringLiteral("Ben"), QStringLiteral("Abe"), QStringLiteral("Anna"),
                           QString(), QStringLiteral("Zo\u00eb")}));
    EXPECT_EQ(cells().Col(), 0);
    EXPECT_EQ(cells().ColSel(), 1);
}

TEST_F(Explorer, LooksCategoriesUpInTheHiddenList) {
    open();
    EXPECT_EQ(lookup(), QStringList({QStringLiteral("Family=1"), QStringLiteral("Friends=2")}));
    EXPECT_EQ(lstCat().ListIndex(), 1);
}

TEST_F(Explorer, HasTheLookupInTheOrderOfTheStore) {
    addCategory(QStringLiteral("Aunts"));
    open();
    EXPECT_EQ(lookup(), QStringList({QStringLiteral("Family=1"), QStringLiteral("Friends=2"),
                                     QStringLiteral("Aunts=3")}));
}

TEST_F(Explorer, KeepsTheNumberOfACategoryThatIsGone) {
    directory_.dropConstraints();
    addCategory(QStringLiteral("Family"));
    addPerson({.name = QStringLiteral("Adler"), .catId = 1});
    addPerson({.name = QStringLiteral("Zed"), .catId = 99});
    open();
    EXPECT_EQ(column(4), QStringList({QStringLiteral("Family"), QStringLiteral("99")}));
}

TEST_F(Explorer, HoldsEachCategoryTwiceAfterARefreshAndShowsTheSameNames) {
    open();
    const QStringList before = rows();
    refresh();
    EXPECT_EQ(lookup(), QStringList({QStringLiteral("Family=1"), QStringLiteral("Friends=2"),
                                     QStringLiteral("Family=1"), QStringLiteral("Friends=2")}));
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(greyColumns(), QStringLiteral("x-x-x-"));
}

TEST_F(Explorer, FindsTheFirstOfTwoNamesOfACategoryAfterARefresh) {
    open();
    runSql(directory_.people(), QStringLiteral("UPDATE Category SET Category = 'Kin'"));
    refresh();
    EXPECT_EQ(lookup().last(), QStringLiteral("Kin=2"));
    EXPECT_EQ(column(4).first(), QStringLiteral("Friends"));
}

TEST_F(Explorer, ReadsThePeopleAnewAtARefreshAndNotBefore) {
    open();
    addPerson({.name = QStringLiteral("Berg")});
    EXPECT_EQ(column(0).size(), 3);
    refresh();
    EXPECT_EQ(column(0).value(1), QStringLiteral("Berg"));
}

TEST_F(Explorer, PutsTheColumnsBackAtARefresh) {
    open();
    dragColumn(2, 0);
    ASSERT_EQ(header().section(u'|', 0, 0), QStringLiteral("Birthdate"));
    refresh();
    EXPECT_EQ(header(), QStringLiteral("Name|Firstname|Birthdate|Gender|Category|NameID"));
    EXPECT_EQ(cells().ColWidth(0), 1725);
    EXPECT_EQ(column(0).first(), QStringLiteral("Adler"));
}

TEST_F(Explorer, PaintsNothingUntilTheCellsAreInTheirPlaces) {
    open();
    int changes = 0;
    const QObject context;
    QObject::connect(grid().model(), &QAbstractItemModel::modelReset, &context, [&] {
        EXPECT_FALSE(grid().Redraw());
        ++changes;
    });
    refresh();
    dragColumn(2, 0);
    form_->DoSort();
    EXPECT_GT(changes, 0);
    EXPECT_TRUE(grid().Redraw());
}

TEST_F(Explorer, OpensTheCardOfTheRowWhateverColumnIsDoubleClicked) {
    open();
    for (int column = 0; column < 5; ++column) {
        const Card card = cardFromCell(1, column);
        EXPECT_EQ(card.name, QStringLiteral("Anna Smith (27)"));
        EXPECT_EQ(card.nameId, 1);
        EXPECT_EQ(card.owner, form_.get());
        EXPECT_TRUE(card.isModal);
        EXPECT_EQ(modCycles::SelectedNameID, 0);
        EXPECT_EQ(cells().Col(), 5);
    }
}

TEST_F(Explorer, OpensTheCardOfTheCurrentRowFromTheHeader) {
    open();
    click(*grid().viewport(), placeOfCell(2, 0));
    const Card card = cardFrom([this] { doubleClick(headerView(), placeInHeader(0)); });
    EXPECT_EQ(card.name, QStringLiteral("Zed (15)"));
}

TEST_F(Explorer, OpensTheCardOfWhoeverIsShownWhenColumnsHaveBeenMoved) {
    open();
    dragColumn(2, 0);
    EXPECT_EQ(column(0).first(), QStringLiteral("Jan 31, 1985"));
    EXPECT_EQ(cardFromCell(0, 0).name, QStringLiteral("Zed (15)"));
}

TEST_F(Explorer, EndsTheProgramWhenThereIsNobody) {
    load();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    host_.expectMessage(noCurrentRecordBox());
    form_ = std::make_unique<frmExplore>(&window());
    runEvent([this] { form_->Load(); });
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(Explorer, EndsTheProgramWhereTheDatabaseIsGone) {
    load();
    QFile::remove(directory_.people());
    host_.expectMessage(
        QStringLiteral("Run-time error '53':\n\nFile not found: there is no file of this name, ") +
        QDir::toNativeSeparators(directory_.people()));
    form_ = std::make_unique<frmExplore>(&window());
    runEvent([this] { form_->Load(); });
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(Explorer, EndsTheProgramWhenNobodyIsLeftAtARefresh) {
    open();
    runSql(directory_.people(), QStringLiteral("DELETE FROM Data"));
    host_.expectMessage(noCurrentRecordBox());
    refresh();
    EXPECT_EQ(host_.exitCode(), 1);
    host_.forgetExit();
}

TEST_F(Explorer, TakesTheWaitWindowAwayAsTheLastActOfItsLoad) {
    load();
    showWaitWindow();
    form_ = std::make_unique<frmExplore>(&window());
    bool wasFilled = false;
    const QObject context;
    QObject::connect(Form::forms().back(), &Form::unloaded, &context,
                     [&] { wasFilled = grid().Redraw() && column(0).size() == 3; });
    form_->Load();
    EXPECT_TRUE(wasFilled);
    EXPECT_EQ(Form::forms().size(), 2U);
}

TEST_F(Explorer, HasThePlacesOfItsControlsFromTheBottomRight) {
    open();
    for (const QSize size : {QSize(640, 480), QSize(900, 600)}) {
        form_->resize(size);
        const QRect close = of<PictureButton>("cmdClose").geometry();
        const QRect refresh = of<PictureButton>("cmdRefresh").geometry();
        const QRect hint = of<QLabel>("Label1").geometry();
        const auto leftOf = [&](const QRect& place, int fromRight) {
            return size.width() - toPixels(fromRight) - place.width();
        };
        EXPECT_EQ(close.left(), leftOf(close, 60));
        EXPECT_EQ(refresh.left(), leftOf(refresh, 60 + 1300));
        EXPECT_EQ(hint.left(), leftOf(hint, 60 + 2600));
        for (const QRect& place : {close, refresh, hint})
            EXPECT_EQ(place.top(), size.height() - toPixels(60) - place.height());
        EXPECT_EQ(grid().geometry(), QRect(toPixels(60), toPixels(60), size.width() - toPixels(120),
                                           hint.top() - toPixels(120)));
    }
}

TEST_F(Explorer, IsNeverSoWideThatAPositionWouldOverflow) {
    open();
    EXPECT_LE(form_->maximumWidth() * 15, 32767);
}

TEST_F(Explorer, GoesAtItsButtonAndCanBeLoadedAgain) {
    open();
    click(of<PictureButton>("cmdClose"));
    EXPECT_FALSE(form_->isLoaded());
    EXPECT_FALSE(form_->isVisible());
    form_->Show();
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(column(0).size(), 3);
}

}  // namespace
