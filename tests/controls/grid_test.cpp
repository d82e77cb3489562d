// The grid under the user's mouse and keys.
#include "controls/grid.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "controls/twips.h"
#include "support/errors.h"
#include "support/event_counter.h"
#include "support/paint_counter.h"
#include "support/printing.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

// Four columns of 60, 60, 60 and no pixels, and three rows.
class GridTest : public testing::Test, public QObject {
  protected:
    GridTest() {
        grid_.change([](GridCells& cells) {
            std::vector<QString> texts;
            for (const char* text : {"Name", "Age", "City", "Key", "Zed", "9", "Rome", "1", "abe",
                                     "10", "Oslo", "2", "Curie", "8", "Bern", "3"})
                texts.push_back(QString::fromLatin1(text));
            cells.bind(4, std::move(texts));
            for (const int column : {0, 1, 2})
                cells.setColWidth(column, 900);
            cells.setColWidth(3, 0);
        });
        grid_.resize(180 + 2 * grid_.frameWidth(), 200);
        grid_.show();
        onEvent(&grid_, &Grid::MouseDown, this, &GridTest::mouseWentDown);
        onEvent(&grid_, &Grid::MouseMove, this, &GridTest::mouseMoved);
        onEvent(&grid_, &Grid::MouseUp, this, &GridTest::mouseWentUp);
        onEvent(&grid_, &Grid::DragDrop, this, &GridTest::dropped);
    }

    void mouseWentDown(Qt::MouseButtons, double x, double y) { tell("down", x, y); }
    void mouseMoved(Qt::MouseButtons buttons, double x, double y) {
        tell("move", x, y);
        heldButtons_ = buttons;
    }
    void mouseWentUp(Qt::MouseButtons, double x, double y) { tell("up", x, y); }
    void dropped() { tell("drop", 0, 0); }

    void tell(const char* what, double x, double y) {
        told_ += QString::fromLatin1(what);
        lastPlace_ = {x, y};
        lastCell_ = {grid_.MouseRow(), grid_.MouseCol()};
    }

    QHeaderView& header() { return *grid_.horizontalHeader(); }
    QWidget& headerView() { return *header().viewport(); }
    QWidget& cellView() { return *grid_.viewport(); }

    QPoint inHeader(int column) {
        return {header().sectionViewportPosition(column) + 5, header().height() / 2};
    }

    QPoint inCell(int row, int column) {
        return grid_.visualRect(grid_.model()->index(row, column)).center();
    }

    // Takes a column up by its header, with the button held.
    void beginDrag(int column) {
        pressMouse(headerView(), inHeader(column));
        grid_.Drag(column);
    }

    // The mark of a drag; nullptr if it is not shown.
    const QWidget* mark() {
        for (const QWidget* part : grid_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (part->backgroundRole() == QPalette::Highlight && part->isVisible())
                return part;
        }
        return nullptr;
    }

    RecordingHost host_;
    Grid grid_;
    QStringList told_;
    QPointF lastPlace_;
    std::pair<int, int> lastCell_;
    Qt::MouseButtons heldButtons_;
};

QStringList list(std::initializer_list<const char*> texts) {
    QStringList result;
    for (const char* text : texts)
        result += QString::fromLatin1(text);
    return result;
}

}  // namespace

TEST_F(GridTest, HasColumnsOfTheirWidthsAndHidesThoseOfNone) {
    EXPECT_EQ(header().sectionSize(0), 60);
    EXPECT_EQ(header().sectionSize(2), 60);
    EXPECT_TRUE(header().isSectionHidden(3));
    grid_.change([](GridCells& cells) { cells.setColPosition(3, 0); });
    EXPECT_TRUE(header().isSectionHidden(0));
    EXPECT_FALSE(header().isSectionHidden(3));
}

TEST_F(GridTest, ShowsWhatAChangeDidBeforeItFailed) {
    EXPECT_EQ(errorOf([this] {
                  grid_.change([](GridCells& cells) {
                      cells.setColWidth(1, 0);
                      cells.setRow(99);
                  });
              }),
              381);
    EXPECT_TRUE(header().isSectionHidden(1));
    EXPECT_TRUE(header().isSectionHidden(3));
    EXPECT_FALSE(header().isSectionHidden(0));
}

TEST_F(GridTest, SpreadsItsColumnsOverTheRoomThereIs) {
    grid_.resize(grid_.width() + 30, grid_.height());
    EXPECT_EQ(header().sectionSize(0), 70);
    EXPECT_EQ(header().length(), cellView().width());
    grid_.resize(grid_.width() - 60, grid_.height());
    EXPECT_EQ(header().sectionSize(0), 60);
}

TEST_F(GridTest, TakesTheUserToTheCellThatIsClicked) {
    click(cellView(), inCell(2, 1));
    EXPECT_EQ(grid_.cells().Row(), 3);
    EXPECT_EQ(grid_.cells().Col(), 1);
    EXPECT_EQ(grid_.cells().Text(), QStringLiteral("8"));
    pressKey(grid_, Qt::Key_Up);
    EXPECT_EQ(grid_.cells().Row(), 2);
}

TEST_F(GridTest, ShowsTheRowThatIsSelectedAlone) {
    const auto selectedRows = [this] { return grid_.selectionModel()->selectedRows().size(); };
    click(cellView(), inCell(1, 0));
    EXPECT_EQ(selectedRows(), 1);
    grid_.change([](GridCells& cells) { cells.setCol(3); });
    EXPECT_EQ(selectedRows(), 1);
    EXPECT_EQ(grid_.selectionModel()->selectedRows().front().row(), 1);
    grid_.change([](GridCells& cells) { cells.setRowSel(3); });
    EXPECT_EQ(selectedRows(), 0);
}

TEST_F(GridTest, ShowsTheCurrentRowAsSelectedWhateverTheUserHoldsDown) {
    click(cellView(), inCell(1, 0));
    click(cellView(), inCell(1, 0), Qt::ControlModifier);
    EXPECT_EQ(grid_.selectionModel()->selectedRows().size(), 1);
    QTest::keyClick(&grid_, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(grid_.selectionModel()->selectedRows().size(), 1);
}

TEST_F(GridTest, KeepsWhatCodeHasSelectedUntilTheUserActs) {
    grid_.change([](GridCells& cells) {
        cells.setRow(2);
        cells.setCol(1);
        cells.setRowSel(3);
        cells.setColSel(2);
    });
    EXPECT_EQ(grid_.cells().Row(), 2);
    EXPECT_EQ(grid_.cells().ColSel(), 2);
    EXPECT_EQ(grid_.cells().RowSel(), 3);
}

TEST_F(GridTest, TakesASelectionOfCodeBackToTheCellThatIsClicked) {
    grid_.change([](GridCells& cells) {
        cells.setCol(3);
        cells.setRow(1);
        cells.setRowSel(3);
    });
    click(cellView(), inCell(0, 0));
    EXPECT_EQ(grid_.cells().RowSel(), 1);
    EXPECT_EQ(grid_.cells().Col(), 0);
}

TEST_F(GridTest, HasACurrentRowForScreenReadersAsLongAsThereAreRows) {
    EXPECT_EQ(grid_.currentIndex().row(), 0);
    grid_.change([](GridCells& cells) { cells.setRow(0); });
    EXPECT_TRUE(grid_.currentIndex().isValid());
    grid_.change([](GridCells& cells) { cells.bind(4, {}); });
    EXPECT_FALSE(grid_.currentIndex().isValid());
}

TEST_F(GridTest, TellsOfTheMouseOverCells) {
    const QPoint place = inCell(1, 2);
    pressMouse(cellView(), place);
    EXPECT_EQ(lastCell_, std::pair(2, 2));
    EXPECT_EQ(lastPlace_.x(), toTwips(cellView().x() + place.x()));
    EXPECT_EQ(lastPlace_.y(), toTwips(cellView().y() + place.y()));
    releaseMouse(cellView(), place);
    EXPECT_EQ(told_, list({"down", "up"}));
}

TEST_F(GridTest, AddsARowWithoutAResetAndStaysOnTheCurrentCell) {
    grid_.change([](GridCells& cells) {
        cells.setRow(2);
        cells.setCol(1);
    });
    const QSignalSpy reset(grid_.model(), &QAbstractItemModel::modelReset);
    grid_.AddItem(u"Ben\t7\tBath", 1);
    EXPECT_EQ(grid_.cells().TextMatrix(1, 0), QStringLiteral("Ben"));
    EXPECT_EQ(grid_.cells().Row(), 2);
    EXPECT_EQ(grid_.cells().Col(), 1);
    EXPECT_EQ(grid_.currentIndex().row(), 1);
    EXPECT_TRUE(grid_.selectionModel()->isRowSelected(1));
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(GridTest, TellsOfTheMouseOverTheHeaderAndLeavesTheCurrentCell) {
    const QPoint place = inHeader(2);
    pressMouse(headerView(), place);
    EXPECT_EQ(lastCell_, std::pair(0, 2));
    EXPECT_EQ(lastPlace_.x(), toTwips(header().x() + place.x()));
    EXPECT_EQ(lastPlace_.y(), toTwips(header().y() + place.y()));
    holdMouse(headerView(), inHeader(1));
    EXPECT_EQ(heldButtons_, Qt::LeftButton);
    EXPECT_EQ(lastCell_, std::pair(0, 1));
    releaseMouse(headerView(), inHeader(1));
    EXPECT_EQ(told_, list({"down", "move", "up"}));
    EXPECT_EQ(grid_.cells().Row(), 1);
    EXPECT_EQ(grid_.cells().Col(), 0);
}

TEST_F(GridTest, TellsNothingOfAMouseThatHoldsNoButton) {
    moveMouse(headerView(), inHeader(1));
    moveMouse(cellView(), inCell(1, 1));
    EXPECT_EQ(told_, QStringList());
}

TEST_F(GridTest, TellsTheNearestCellOfAMouseBeyondThem) {
    pressMouse(headerView(), inHeader(0));
    const auto cellOf = [this](QPoint place) {
        holdMouse(headerView(), place);
        return lastCell_;
    };
    EXPECT_EQ(cellOf({1000, 5}), std::pair(0, 3));
    EXPECT_EQ(cellOf({-1000, 5}), std::pair(0, 0));
    EXPECT_EQ(cellOf({5, -1000}), std::pair(0, 0));
    EXPECT_EQ(cellOf({5, 1000}), std::pair(3, 0));
    EXPECT_EQ(cellOf({5, header().height()}), std::pair(1, 0));
    EXPECT_EQ(cellOf({5, header().height() - 1}), std::pair(0, 0));
}

TEST_F(GridTest, TellsTheFixedRowsApart) {
    grid_.change([](GridCells& cells) {
        cells.setFixedRows(2);
        cells.bind(1, std::vector<QString>(4));
    });
    pressMouse(headerView(), {5, 2});
    EXPECT_EQ(grid_.MouseRow(), 0);
    pressMouse(headerView(), {5, header().height() - 2});
    EXPECT_EQ(grid_.MouseRow(), 1);
    pressMouse(cellView(), {5, 2});
    EXPECT_EQ(grid_.MouseRow(), 2);
}

TEST_F(GridTest, TellsTheColumnThatHasBeenScrolledUnderTheMouse) {
    grid_.resize(120, 200);
    grid_.horizontalScrollBar()->setValue(60);
    pressMouse(headerView(), {5, 5});
    EXPECT_EQ(grid_.MouseCol(), 1);
}

TEST_F(GridTest, FiresDblClickOnCellsAndOnTheHeader) {
    const EventCounter doubleClicks(grid_, &Grid::DblClick);
    doubleClick(cellView(), inCell(1, 1));
    EXPECT_EQ(doubleClicks.fired(), 1);
    EXPECT_EQ(grid_.cells().Row(), 2);
    doubleClick(headerView(), inHeader(2));
    EXPECT_EQ(doubleClicks.fired(), 2);
    EXPECT_EQ(grid_.cells().Row(), 2);
}

TEST_F(GridTest, FiresNoDblClickForAnotherButton) {
    const EventCounter doubleClicks(grid_, &Grid::DblClick);
    QTest::mouseDClick(&cellView(), Qt::RightButton, {}, inCell(1, 1));
    QTest::mouseDClick(&headerView(), Qt::RightButton, {}, inHeader(2));
    EXPECT_EQ(doubleClicks.fired(), 0);
}

TEST_F(GridTest, EndsADragWithADropWhereTheButtonIsLetGo) {
    beginDrag(0);
    holdMouse(headerView(), inHeader(2));
    releaseMouse(headerView(), inHeader(2));
    EXPECT_EQ(told_, list({"down", "move", "up", "drop"}));
    EXPECT_EQ(lastCell_, std::pair(0, 2));
    EXPECT_EQ(grid_.cells().TextMatrix(0, 0), QStringLiteral("Name"));
}

TEST_F(GridTest, DropsNothingAwayFromItself) {
    beginDrag(0);
    releaseMouse(headerView(), {5, 1000});
    EXPECT_EQ(told_, list({"down", "up"}));
}

TEST_F(GridTest, DropsNothingWithoutADrag) {
    dragMouse(headerView(), inHeader(0), inHeader(2));
    EXPECT_EQ(told_, list({"down", "move", "up"}));
    beginDrag(0);
    releaseMouse(headerView(), inHeader(1));
    told_.clear();
    dragMouse(headerView(), inHeader(0), inHeader(2));
    EXPECT_EQ(told_, list({"down", "move", "up"}));
}

TEST_F(GridTest, ForgetsADragOfWhichItNeverHeardTheEnd) {
    beginDrag(0);
    pressMouse(headerView(), inHeader(1));
    releaseMouse(headerView(), inHeader(1));
    EXPECT_FALSE(told_.contains(QStringLiteral("drop")));
}

TEST_F(GridTest, MarksWhereADraggedColumnWouldGo) {
    const auto markedAt = [this](int column) {
        holdMouse(headerView(), inHeader(column));
        return mark() ? mark()->geometry().center().x() - cellView().x() : -1;
    };
    beginDrag(1);
    EXPECT_EQ(mark(), nullptr);
    EXPECT_EQ(markedAt(0), 1);
    EXPECT_EQ(markedAt(2), 178);
    EXPECT_EQ(markedAt(1), -1);
    beginDrag(0);
    EXPECT_EQ(markedAt(1), 120);
    EXPECT_EQ(mark()->height(), header().height() + cellView().height());
    releaseMouse(headerView(), inHeader(1));
    EXPECT_EQ(mark(), nullptr);
}

TEST_F(GridTest, ShowsByThePointerWhereADropIsInVain) {
    const auto shape = [this] { return headerView().cursor().shape(); };
    const Qt::CursorShape atRest = shape();
    beginDrag(0);
    EXPECT_EQ(shape(), Qt::ClosedHandCursor);
    for (const QPoint vain : {QPoint(5, 60), QPoint(1000, 5), QPoint(180, 5)}) {
        holdMouse(headerView(), vain);
        EXPECT_EQ(shape(), Qt::ForbiddenCursor) << vain.x();
        EXPECT_EQ(mark(), nullptr);
    }
    holdMouse(headerView(), inHeader(1));
    EXPECT_EQ(shape(), Qt::ClosedHandCursor);
    releaseMouse(headerView(), inHeader(1));
    EXPECT_EQ(shape(), atRest);
}

TEST_F(GridTest, KeepsItsPictureWhileRedrawIsOff) {
    const auto cellPicture = [this] { return cellView().grab().toImage(); };
    const auto headerPicture = [this] { return headerView().grab().toImage(); };
    EXPECT_TRUE(grid_.Redraw());
    const QImage cellsBefore = cellPicture();
    const QImage headerBefore = headerPicture();
    for (int freeze = 0; freeze < 2; ++freeze) {
        grid_.setRedraw(false);
        EXPECT_FALSE(grid_.Redraw());
        grid_.change([](GridCells& cells) {
            cells.setTextMatrix(0, 0, QStringLiteral("Who"));
            cells.setTextMatrix(1, 0, QStringLiteral("Ada"));
        });
        EXPECT_EQ(cellPicture(), cellsBefore);
        EXPECT_EQ(headerPicture(), headerBefore);
    }
    grid_.setRedraw(true);
    EXPECT_NE(cellPicture(), cellsBefore);
    EXPECT_NE(headerPicture(), headerBefore);
}

TEST_F(GridTest, IsPaintedAnewWhenRedrawIsOnAgain) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid_));
    grid_.setRedraw(false);
    const PaintCounter cells(cellView());
    const PaintCounter header(headerView());
    grid_.setRedraw(true);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(cells.painted(), 1);
    EXPECT_EQ(header.painted(), 1);
}

TEST_F(GridTest, PaintsItsPictureOnlyWhereThatIsLost) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid_));
    const auto paintsAfter = [this](auto act) {
        grid_.setRedraw(true);
        grid_.setRedraw(false);
        const PaintCounter cells(cellView());
        const PaintCounter header(headerView());
        act();
        QCoreApplication::processEvents();
        return std::pair(cells.painted() > 0, header.painted() > 0);
    };
    const auto none = std::pair(false, false);
    const auto all = std::pair(true, true);
    EXPECT_EQ(paintsAfter([this] { grid_.change([](GridCells& cells) { cells.setRows(99); }); }),
              none);
    EXPECT_EQ(paintsAfter([this] { grid_.resize(grid_.width() + 50, grid_.height()); }), all);
    EXPECT_EQ(paintsAfter([this] {
                  grid_.hide();
                  grid_.show();
              }),
              all);
}

TEST_F(GridTest, IsPaintedAtOnceByARefresh) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid_));
    const PaintCounter cells(cellView());
    const PaintCounter header(headerView());
    grid_.Refresh();
    EXPECT_EQ(cells.painted(), 1);
    EXPECT_EQ(header.painted(), 1);
}

TEST_F(GridTest, IsPaintedByNoRefreshWhileRedrawIsOff) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid_));
    grid_.setRedraw(false);
    const PaintCounter cells(cellView());
    const PaintCounter header(headerView());
    grid_.Refresh();
    EXPECT_EQ(cells.painted(), 0);
    EXPECT_EQ(header.painted(), 0);
}

TEST_F(GridTest, PaintsTheBackgroundsOfItsCells) {
    grid_.change([](GridCells& cells) {
        cells.setRow(2);
        cells.setCol(1);
        cells.setCellBackColor(0xC0C0C0);
        cells.setRow(1);
    });
    const auto colourIn = [this](int row, int column) {
        const QRect cell = grid_.visualRect(grid_.model()->index(row, column));
        return cellView().grab().toImage().pixelColor(cell.right() - 3, cell.center().y());
    };
    EXPECT_EQ(colourIn(1, 1), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(colourIn(1, 0), grid_.palette().color(QPalette::Base));
}

TEST_F(GridTest, PaintsTheTextsOfItsCellsInTheirColours) {
    grid_.change([](GridCells& cells) {
        cells.setTextMatrix(2, 1, QString(9, u'M'));
        cells.setRow(2);
        cells.setCol(1);
        cells.setCellForeColor(0x0000FF);
        cells.setRow(1);
        cells.setTextMatrix(1, 1, QString(9, u'M'));
        cells.setCellForeColor(0x0000FF);
    });
    QPalette palette;
    palette.setColor(QPalette::Highlight, QColor(200, 230, 255));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    grid_.setPalette(palette);
    const auto isRedIn = [this](int row, int column) {
        const QImage cell =
            cellView().grab(grid_.visualRect(grid_.model()->index(row, column))).toImage();
        for (int x = 0; x < cell.width(); ++x) {
            const QColor pixel = cell.pixelColor(x, cell.height() / 2);
            if (pixel.red() > 200 && pixel.green() < 100 && pixel.blue() < 100)
                return true;
        }
        return false;
    };
    EXPECT_TRUE(isRedIn(1, 1));
    EXPECT_TRUE(isRedIn(0, 1));  // in the row that is selected
    EXPECT_FALSE(isRedIn(1, 0));
}

TEST_F(GridTest, LetsTheTabKeyLeaveIt) {
    EXPECT_FALSE(grid_.tabKeyNavigation());
}

TEST_F(GridTest, HasRowsOfOneHeightHoweverManyThereAre) {
    grid_.change([](GridCells& cells) { cells.bind(2, std::vector<QString>(200'002)); });
    const int height = grid_.rowHeight(0);
    EXPECT_GE(height, grid_.fontMetrics().height());
    EXPECT_EQ(grid_.rowHeight(99'999), height);
    pressKey(grid_, Qt::Key_End);
    EXPECT_EQ(grid_.cells().Row(), 1);
    pressKey(grid_, Qt::Key_PageDown);
    EXPECT_GT(grid_.cells().Row(), 1);
}
