// A list on the screen of which the user may select any number of entries, by their check boxes.
#pragma once

#include <QKeyEvent>

#include "controls/list_box.h"

// A click on a check box, and the space bar on the entry of the focus, select the entry or take its
// selection away, and highlight it. ListIndex tells of the highlighted entry alone, as in any other
// list box.
class CheckListBox final : public ListBox {
    Q_OBJECT

  public:
    explicit CheckListBox(QWidget* parent = nullptr) : ListBox(parent) {
        entryModel().setCheckBoxes(true);
    }

    // Both raise 381 if there is no such entry.
    bool Selected(int index) const { return entries().isSelected(index); }
    void setSelected(int index, bool selected) { entryModel().setSelected(index, selected); }

    void setAllSelected(bool selected) { entryModel().setAllSelected(selected); }

  protected:
    // Highlighted by then, the entry is the one that the next arrow key leads on from.
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Space)
            setCurrentIndex(currentIndex());
        ListBox::keyPressEvent(event);
    }
};
