// The list box on Qt's list view.
#include "controls/list_box.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <utility>

namespace {

bool stepsToNextEntry(const QKeyEvent& event) {
    return event.key() == Qt::Key_Down || event.key() == Qt::Key_Up || event.key() == Qt::Key_Home;
}

}  // namespace

ListBox::ListBox(QWidget* parent) : QListView(parent) {
    setModel(&entryModel());
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ListBox::showListIndex(int index) {
    if (index >= 0) {
        setCurrentIndex(entryModel().index(index));
        return;
    }
    clearSelection();
    if (!currentIndex().isValid())
        selectionModel()->setCurrentIndex(entryModel().index(0), QItemSelectionModel::NoUpdate);
}

void ListBox::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (isChanging() || selected.isEmpty())
        return;
    follow(selected.indexes().constFirst().row());
    if (!userActs_)
        fireClick();
}

// No key that is held down takes the selection away.
QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex&,
                                                              const QEvent*) const {
    return QItemSelectionModel::ClearAndSelect;
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    userActs_ = event->button() == Qt::LeftButton && indexAt(event->pos()).isValid();
    QListView::mousePressEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    if (std::exchange(userActs_, false) && ListIndex() >= 0)
        fireClick();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT DblClick();
}

// Click comes when Qt's views have done with the key, as its routine may fill the list anew.
void ListBox::keyPressEvent(QKeyEvent* event) {
    const int before = ListIndex();
    {
        const QScopedValueRollback acting(userActs_, true);
        if (before < 0 && currentIndex().isValid() && stepsToNextEntry(*event))
            setCurrentIndex(currentIndex());
        else
            QListView::keyPressEvent(event);
    }
    if (ListIndex() != before)
        fireClick();
}
