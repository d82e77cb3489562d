// The entries of the drop-down menu.
#include "controls/button_menu.h"

#include "runtime/errors.h"

ButtonMenu::ButtonMenu(QWidget* parent) : QMenu(parent) {
    connect(this, &QMenu::aboutToShow, this, &ButtonMenu::showEntries);
}

const ButtonMenu::Entry& ButtonMenu::entry(int index) const {
    if (index < 1 || index > Count())
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    return entries_[static_cast<std::size_t>(index - 1)];
}

void ButtonMenu::Remove(int index) {
    entry(index);
    entries_.erase(entries_.begin() + index - 1);
}

void ButtonMenu::Add(const QString& key, const QString& text) {
    entries_.push_back({key, text});
}

// An ampersand in a text is no mnemonic.
void ButtonMenu::showEntries() {
    clear();
    for (int index = 1; index <= Count(); ++index) {
        QString text = Text(index);
        if (text == QStringLiteral("-"))
            addSeparator();
        else
            addAction(text.replace(u'&', QStringLiteral("&&")), this,
                      [this, index] { Q_EMIT ButtonMenuClick(index); });
    }
}
