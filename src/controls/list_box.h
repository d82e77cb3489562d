// A list on the screen of which the user may select one entry.
#pragma once

#include <QListView>

#include "controls/list_control.h"

// A click on an entry and a key that selects another fire Click once; a click on the selected entry
// fires it again. A double click anywhere on the list fires DblClick, whatever is selected, also
// nothing. The entry of the focus is the selected one, or the first: there is one for screen
// readers as long as the list has entries, but without a selection it is not shown as selected and
// the next arrow key selects it.
class ListBox : public QListView, public ListControl {
    Q_OBJECT

  public:
    explicit ListBox(QWidget* parent = nullptr);

  Q_SIGNALS:
    void Click();
    void DblClick();

  protected:
    void showListIndex(int index) override;
    void fireClick() override { Q_EMIT Click(); }

    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    // The user is selecting, by a key or by a button that went down on an entry; Click comes at the
    // end of it.
    bool userActs_ = false;
};
