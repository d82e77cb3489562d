// The entries of the drop-down menu.
#include "controls/button_menu.h"

#include <QProxyStyle>
#include <QToolBar>
#include <QToolButton>
#include <utility>

#include "runtime/errors.h"

namespace {

// A menu that is longer than the screen is scrolled, and is not broken into columns beyond it.
class ScrollingMenus final : public QProxyStyle {
  public:
    explicit ScrollingMenus(QObject* owner) { setParent(owner); }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_Menu_Scrollable)
            return true;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

}  // namespace

ButtonMenu::ButtonMenu(QWidget* parent) : QMenu(parent) {
    setStyle(new ScrollingMenus(this));
    connect(this, &QMenu::aboutToShow, this, &ButtonMenu::showEntries);
}

QToolButton& ButtonMenu::dropFrom(const QToolBar& bar, QAction& button) {
    auto& dropDown = static_cast<QToolButton&>(*bar.widgetForAction(&button));
    dropDown.setMenu(this);
    dropDown.setPopupMode(QToolButton::InstantPopup);
    return dropDown;
}

const ButtonMenu::Entry& ButtonMenu::entry(int index) const {
    if (index < 1 || index > Count())
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    return entries_[static_cast<std::size_t>(index - 1)];
}

void ButtonMenu::Remove(int index) {
    entry(index);
    entries_.erase(entries_.begin() + index - 1);
    changed_ = true;
}

void ButtonMenu::Add(const QString& key, const QString& text) {
    entries_.push_back({key, text});
    changed_ = true;
}

void ButtonMenu::Clear() {
    entries_.clear();
    changed_ = true;
}

// An ampersand in a text is no mnemonic.
void ButtonMenu::showEntries() {
    if (!std::exchange(changed_, false))
        return;
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
