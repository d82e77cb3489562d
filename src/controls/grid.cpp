// The grid on Qt's table view.
#include "controls/grid.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>
#include <vector>

#include "controls/cell_colours.h"
#include "controls/column_widths.h"
#include "controls/text_colours.h"
#include "controls/twips.h"

namespace {

constexpr int kRoomAroundText = 4;  // pixels, above and below each
constexpr int kMarkWidth = 3;

// Colours the text of a cell, on the cell's own ground and on that of a selection.
void colourText(QPalette& palette, Long colour) {
    palette.setColor(QPalette::HighlightedText,
                     textColour(colour, palette, QPalette::Highlight, QPalette::HighlightedText));
    palette.setColor(QPalette::Text, textColour(colour, palette));
}

// Gives cells the colours that they were given.
class CellDelegate final : public QStyledItemDelegate {
  public:
    CellDelegate(const GridModel& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const CellLook& look = model_.cells().look(model_.gridRow(index), index.column());
        if (look.backColor != 0)
            option->backgroundBrush = cellBackground(look.backColor, option->palette);
        if (look.foreColor != 0)
            colourText(option->palette, look.foreColor);
    }

  private:
    const GridModel& model_;
};

}  // namespace

Grid::Grid(QWidget* parent) : QTableView(parent) {
    setModel(&model_);
    setItemDelegate(new CellDelegate(model_, this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollMode(ScrollPerPixel);
    setUpRows();
    setUpHeader();
    dropMark_.setAutoFillBackground(true);
    dropMark_.setBackgroundRole(QPalette::Highlight);
    dropMark_.setAttribute(Qt::WA_TransparentForMouseEvents);
    dropMark_.hide();
}

void Grid::setUpRows() {
    setWordWrap(false);
    QHeaderView& rows = *verticalHeader();
    rows.hide();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(fontMetrics().height() + 2 * kRoomAroundText);
}

// The header hears the mouse through the grid, and does nothing about it.
void Grid::setUpHeader() {
    QHeaderView& header = *horizontalHeader();
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.setMinimumSectionSize(0);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header.setHighlightSections(false);
    header.setMinimumHeight(verticalHeader()->defaultSectionSize());
    header.viewport()->installEventFilter(this);
}

// Qt could leave the grid unpainted too, but would then show the pixels of whatever was in its
// place before, once the grid has been hidden.
void Grid::setRedraw(bool redraw) {
    frozenCells_ = redraw ? QPixmap() : viewport()->grab();
    frozenHeader_ = redraw ? QPixmap() : horizontalHeader()->viewport()->grab();
    redraw_ = redraw;
    setUpdatesEnabled(redraw);
}

// The picture is there by itself until the grid is hidden or gets another size. To paint it, and
// the scroll bars, at every change of the cells costs more than the change.
bool Grid::event(QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Hide)
        setUpdatesEnabled(true);
    return QTableView::event(event);
}

void Grid::paintEvent(QPaintEvent* event) {
    if (redraw_)
        QTableView::paintEvent(event);
    else
        QPainter(viewport()).drawPixmap(0, 0, frozenCells_);
}

void Grid::AddItem(QStringView texts, int place) {
    const QScopedValueRollback changing(changing_, true);
    model_.AddItem(texts, place);
    showCurrentRow();
}

void Grid::Refresh() {
    if (!redraw_)
        return;
    viewport()->repaint();
    horizontalHeader()->viewport()->repaint();
}

void Grid::showCells() {
    showWidths();
    showCurrentRow();
}

void Grid::showWidths() {
    std::vector<int> twips;
    twips.reserve(static_cast<std::size_t>(cells().Cols()));
    for (int column = 0; column < cells().Cols(); ++column)
        twips.push_back(cells().ColWidth(column));
    const std::vector<int> widths = columnWidths(twips, viewport()->width());
    for (int column = 0; column < cells().Cols(); ++column) {
        const int width = widths[static_cast<std::size_t>(column)];
        horizontalHeader()->setSectionHidden(column, width == 0);
        if (width > 0)
            horizontalHeader()->resizeSection(column, width);
    }
}

// A change takes the current cell of the view away; there is one again, in the first column.
void Grid::showCurrentRow() {
    const int row = std::max(cells().Row() - cells().FixedRows(), 0);
    const bool isSelected = cells().Row() == cells().RowSel();
    selectionModel()->setCurrentIndex(
        model_.index(row, 0), isSelected
                                  ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                  : QItemSelectionModel::Clear);
}

void Grid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!changing_ && current.isValid())
        model_.select(current);
}

QItemSelectionModel::SelectionFlags Grid::selectionCommand(const QModelIndex&,
                                                           const QEvent*) const {
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void Grid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    showWidths();
}

Grid::Place Grid::cellAt(QPoint place) const {
    return {rowAt(place.y()), columnAt(place.x())};
}

int Grid::rowAt(int y) const {
    const int fixedRows = cells().FixedRows();
    const QRect header = horizontalHeader()->geometry();
    if (y <= header.bottom())
        return std::clamp((y - header.top()) * fixedRows / std::max(header.height(), 1), 0,
                          fixedRows - 1);
    const int row = QTableView::rowAt(y - viewport()->y());
    return row < 0 ? cells().Rows() - 1 : row + fixedRows;
}

int Grid::columnAt(int x) const {
    const int column = horizontalHeader()->logicalIndexAt(std::max(x - viewport()->x(), 0));
    return column < 0 ? cells().Cols() - 1 : column;
}

bool Grid::eventFilter(QObject* watched, QEvent* event) {
    if (watched != horizontalHeader()->viewport())
        return QTableView::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::Paint:
            if (redraw_)
                return false;
            QPainter(horizontalHeader()->viewport()).drawPixmap(0, 0, frozenHeader_);
            return true;
        case QEvent::MouseButtonPress:
            tellPress(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseMove:
            tellMove(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonRelease:
            tellRelease(static_cast<QMouseEvent&>(*event));
            return true;
        case QEvent::MouseButtonDblClick:
            tellDoubleClick(static_cast<QMouseEvent&>(*event));
            return true;
        default:
            return QTableView::eventFilter(watched, event);
    }
}

// A press on the cell that is current already is no change of it, but takes a selection of code
// back to it.
void Grid::mousePressEvent(QMouseEvent* event) {
    QTableView::mousePressEvent(event);
    if (const QModelIndex pressed = indexAt(event->pos()); pressed.isValid())
        model_.select(pressed);
    tellPress(*event);
}

void Grid::mouseMoveEvent(QMouseEvent* event) {
    QTableView::mouseMoveEvent(event);
    tellMove(*event);
}

void Grid::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    tellRelease(*event);
}

void Grid::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    tellDoubleClick(*event);
}

void Grid::followMouse(const QMouseEvent& event) {
    mouse_ = mapFromGlobal(event.globalPosition()).toPoint();
}

void Grid::tellPress(const QMouseEvent& event) {
    followMouse(event);
    endDrag();
    Q_EMIT MouseDown(event.button(), toTwips(mouse_.x()), toTwips(mouse_.y()));
}

void Grid::tellMove(const QMouseEvent& event) {
    if (event.buttons() == Qt::NoButton)
        return;
    followMouse(event);
    Q_EMIT MouseMove(event.buttons(), toTwips(mouse_.x()), toTwips(mouse_.y()));
    if (dragged_)
        showDrag();
}

void Grid::tellRelease(const QMouseEvent& event) {
    followMouse(event);
    const bool isDrop = dragged_ && rect().contains(mouse_);
    endDrag();
    Q_EMIT MouseUp(event.button(), toTwips(mouse_.x()), toTwips(mouse_.y()));
    if (isDrop)
        Q_EMIT DragDrop();
}

void Grid::tellDoubleClick(const QMouseEvent& event) {
    followMouse(event);
    if (event.button() == Qt::LeftButton)
        Q_EMIT DblClick();
}

void Grid::Drag(int column) {
    dragged_ = column;
    showDrag();
}

// The column whose place the one that is dragged would take; none away from the header and over a
// hidden one.
std::optional<int> Grid::dropColumn() const {
    const Place place = cellAt(mouse_);
    const bool isOverHeader = rect().contains(mouse_) && place.row < cells().FixedRows();
    if (!isOverHeader || horizontalHeader()->isSectionHidden(place.column))
        return std::nullopt;
    return place.column;
}

void Grid::showDrag() {
    const QHeaderView& header = *horizontalHeader();
    const auto column = dropColumn();
    header.viewport()->setCursor(column ? Qt::ClosedHandCursor : Qt::ForbiddenCursor);
    dropMark_.setVisible(column && column != dragged_);
    if (!column)
        return;
    const int edge = header.sectionViewportPosition(*column) +
                     (*column > *dragged_ ? header.sectionSize(*column) : 0);
    const int left = std::clamp(edge - kMarkWidth / 2, 0, viewport()->width() - kMarkWidth);
    dropMark_.setGeometry(viewport()->x() + left, header.y(), kMarkWidth,
                          header.height() + viewport()->height());
    dropMark_.raise();
}

void Grid::endDrag() {
    dragged_.reset();
    dropMark_.hide();
    horizontalHeader()->viewport()->unsetCursor();
}
