// What the tests of the explorer share: it opened over the main window, its cells, and its header
// under the mouse.
#pragma once

#include <QHeaderView>
#include <QStringList>

#include "controls/grid.h"
#include "records/frmExplore.h"
#include "runtime/event.h"
#include "shell/frmMain.h"
#include "support/main_window.h"

class ExplorerTest : public MainWindowTest {
  protected:
    void open() {
        load();
        form_ = std::make_unique<frmExplore>(&window());
        runEvent([this] { form_->Show(); });
    }

    template <class Control>
    Control& of(const char* name) {
        return child<Control>(*form_, QString::fromLatin1(name));
    }

    Grid& grid() { return of<Grid>("MSHFlexGrid1"); }
    const GridCells& cells() { return grid().cells(); }

    // The texts of a row, divided by bars.
    QString textsOf(int row) {
        QStringList texts;
        for (int column = 0; column < cells().Cols(); ++column)
            texts += cells().TextMatrix(row, column);
        return texts.join(u'|');
    }

    QString header() { return textsOf(0); }

    QStringList rows() {
        QStringList rows;
        for (int row = 1; row < cells().Rows(); ++row)
            rows += textsOf(row);
        return rows;
    }

    // The texts of a column below its header.
    QStringList column(int column) {
        QStringList texts;
        for (int row = 1; row < cells().Rows(); ++row)
            texts += cells().TextMatrix(row, column);
        return texts;
    }

    // Which columns stand on grey: "x" for those.
    QString greyColumns() {
        QString columns;
        for (int column = 0; column < cells().Cols(); ++column)
            columns += cells().look(1, column).backColor == 0xC0C0C0 ? u'x' : u'-';
        return columns;
    }

    QPoint placeOfCell(int row, int column) {
        return grid().visualRect(grid().model()->index(row, column)).center();
    }

    QWidget& headerView() { return *grid().horizontalHeader()->viewport(); }

    QPoint placeInHeader(int column) {
        const QHeaderView& header = *grid().horizontalHeader();
        return {header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                header.height() / 2};
    }

    // Presses a header and takes its column up, with the button held.
    void takeUp(int column) {
        pressMouse(headerView(), placeInHeader(column));
        holdMouse(headerView(), placeInHeader(column) + QPoint(4, 0));
    }

    void dragColumn(int column, int place) {
        takeUp(column);
        holdMouse(headerView(), placeInHeader(place));
        releaseMouse(headerView(), placeInHeader(place));
    }

    std::unique_ptr<frmExplore> form_;
};
