// The drop-down list on Qt's combo box.
#include "controls/combo_box.h"

#include <QKeyEvent>
#include <QListView>
#include <QWheelEvent>

namespace {

constexpr int kNarrowestInCharacters = 8;

}  // namespace

// The width asks for no entry's text, as there may be many.
ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) {
    auto* list = new QListView(this);
    list->setUniformItemSizes(true);
    setView(list);
    setModel(&entryModel());
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kNarrowestInCharacters);
    connect(this, &QComboBox::activated, this, [this](int index) {
        follow(index);
        fireClick();
    });
}

void ComboBox::showPopup() {
    if (!locked_)
        QComboBox::showPopup();
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    if (locked_)
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    if (locked_)
        event->ignore();
    else
        QComboBox::wheelEvent(event);
}
