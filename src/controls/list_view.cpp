// The list view on Qt's tree view, which shows rows alone here.
#include "controls/list_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "controls/twips.h"
#include "runtime/errors.h"

namespace {

// A picture on a plate, so that it stays legible on whatever a style paints behind it.
QPixmap onPlate(const QPixmap& picture, const QColor& plate) {
    constexpr double kCornerRadius = 4;
    QPixmap result(picture.size());
    result.setDevicePixelRatio(picture.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate);
    painter.drawRoundedRect(QRectF(QPointF(), picture.deviceIndependentSize()), kCornerRadius,
                            kCornerRadius);
    painter.drawPixmap(0, 0, picture);
    return result;
}

// Keeps the colours of a selected row's picture, which the selection's would swallow.
class RowDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
        if (!(option->state & QStyle::State_Selected) || picture.isNull())
            return;
        option->icon = QIcon();
        option->icon.addPixmap(onPlate(picture, option->palette.color(QPalette::Base)),
                               QIcon::Selected);
    }
};

}  // namespace

ListView::ListView(QWidget* parent) : QTreeView(parent) {
    setModel(&model_);
    setItemDelegate(new RowDelegate(this));
    setUniformRowHeights(true);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        Q_EMIT ColumnClick(section + 1);
        showSorting();
    });
    connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT ItemClick(index.row()); });
}

// Qt's view would take a double click for Enter as well, and the space bar for the box of the first
// column alone.
void ListView::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && currentIndex().isValid())
        choose(currentIndex());
    else if (event->key() == Qt::Key_Space && model_.hasCheckBoxes() && currentIndex().isValid())
        toggle(currentIndex().siblingAtColumn(0));
    else
        QTreeView::keyPressEvent(event);
}

// As a click does, it selects the row.
void ListView::choose(const QModelIndex& row) {
    setCurrentIndex(row);
    Q_EMIT ItemClick(row.row());
}

void ListView::toggle(const QModelIndex& box) {
    const bool isChecked = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model_.setData(box, isChecked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void ListView::setColumns(std::vector<ListColumn> columns) {
    model_.setColumns(std::move(columns));
    for (int section = 0; section < header()->count(); ++section) {
        const auto& width = model_.columns()[static_cast<std::size_t>(section)].width;
        header()->setSectionResizeMode(section,
                                       width ? QHeaderView::Interactive : QHeaderView::Stretch);
        header()->setSectionHidden(section, width == 0);
        if (width)
            header()->resizeSection(section, toPixels(*width));
    }
    beginAtFirstRow();
}

void ListView::fill(std::vector<ListRow> rows) {
    model_.fill(std::move(rows));
    beginAtFirstRow();
}

void ListView::fill(int count, RowMaker makeRow) {
    model_.fill(count, std::move(makeRow));
    beginAtFirstRow();
}

// The model's index of a row.
int ListView::placeOf(int index) const {
    if (index < 1 || index > ListCount())
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    return index - 1;
}

const ListRow& ListView::ListItem(int index) const {
    return model_.row(placeOf(index));
}

void ListView::setListItem(int index, ListRow row) {
    model_.change(placeOf(index), std::move(row));
}

void ListView::Remove(int index) {
    model_.remove(placeOf(index));
}

// A screen reader finds a row that is not selected.
void ListView::beginAtFirstRow() {
    selectionModel()->setCurrentIndex(model_.index(0, 0), QItemSelectionModel::NoUpdate);
}

void ListView::setSortKey(int column) {
    if (column < 0)
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    ListSorting sorting = model_.sorting();
    sorting.key = column;
    setSorting(sorting);
}

void ListView::setSortOrder(ListSortOrder order) {
    ListSorting sorting = model_.sorting();
    sorting.order = order;
    setSorting(sorting);
}

void ListView::setSorted(bool sorted) {
    ListSorting sorting = model_.sorting();
    sorting.isOn = sorted;
    setSorting(sorting);
}

void ListView::setSorting(const ListSorting& sorting) {
    model_.setSorting(sorting);
    showSorting();
}

// Qt turns the arrow in the header at every click, whether the rows are sorted or not.
void ListView::showSorting() {
    const bool ascending = SortOrder() == ListSortOrder::Ascending;
    header()->setSortIndicator(SortKey(), ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    header()->setSortIndicatorShown(Sorted());
}
