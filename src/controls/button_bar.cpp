// The items of the bar and their looks.
#include "controls/button_bar.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "controls/colour_mix.h"
#include "runtime/errors.h"

namespace {

constexpr int kGroup = 1;

constexpr int kIconSize = 24;
constexpr int kSpaceAtEnds = 12;
constexpr int kSpaceAboveAndBelow = 6;
constexpr int kSpaceBeforeText = 8;
constexpr int kMarkHeight = 3;  // below the chosen item
constexpr double kLine = 0.15;
constexpr double kFillWhenChosen = 0.06;
constexpr double kFillUnderMouse = 0.1;

QColor shade(const QPalette& palette, double share) {
    return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), share);
}

}  // namespace

// One item.
class ButtonBar::Button final : public QAbstractButton {
  public:
    Button(const Item& item, ButtonBar& bar) : QAbstractButton(&bar), bar_(bar) {
        setText(item.caption);
        setIcon(item.icon);
        setCheckable(true);
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override {
        const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
        return {2 * kSpaceAtEnds + kIconSize + kSpaceBeforeText + text.width(),
                2 * kSpaceAboveAndBelow + std::max(kIconSize, text.height())};
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        QPainter painter(this);
        paintGround(painter, option);
        const QRect inside = rect().adjusted(kSpaceAtEnds, 0, -kSpaceAtEnds, 0);
        icon().paint(&painter, QRect(inside.left(), 0, kIconSize, height()), Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled);
        style()->drawItemText(&painter, inside.adjusted(kIconSize + kSpaceBeforeText, 0, 0, 0),
                              Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, palette(),
                              isEnabled(), text(), QPalette::WindowText);
        if (hasFocus() && option.state & QStyle::State_KeyboardFocusChange)
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }

    void keyPressEvent(QKeyEvent* event) override {
        const bool isBack = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up;
        const bool isOn = event->key() == Qt::Key_Right || event->key() == Qt::Key_Down;
        if (isBack || isOn)
            bar_.step(isOn ? 1 : -1);
        else
            QAbstractButton::keyPressEvent(event);
    }

  private:
    void paintGround(QPainter& painter, const QStyleOption& option) const {
        if (isEnabled() && option.state & QStyle::State_MouseOver)
            painter.fillRect(rect(), shade(palette(), kFillUnderMouse));
        else if (isChecked())
            painter.fillRect(rect(), shade(palette(), kFillWhenChosen));
        if (isChecked())
            painter.fillRect(0, height() - kMarkHeight, width(), kMarkHeight,
                             palette().color(QPalette::Highlight));
    }

    ButtonBar& bar_;
};

ButtonBar::ButtonBar(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addStretch();
}

void ButtonBar::setGroup(const QString& caption, const std::vector<Item>& items) {
    setAccessibleName(caption);
    qDeleteAll(buttons_);
    buttons_.clear();
    for (const Item& item : items)
        buttons_.push_back(addButton(item));
    if (!items.empty())
        setChosenItem(1);
}

// The items stand behind the bar in the order of Tab.
ButtonBar::Button* ButtonBar::addButton(const Item& item) {
    const int number = static_cast<int>(buttons_.size()) + 1;
    auto* added = new Button(item, *this);
    added->setObjectName(objectName() + u'_' + QString::number(number));
    static_cast<QHBoxLayout*>(layout())->insertWidget(number - 1, added);
    setTabOrder(buttons_.empty() ? static_cast<QWidget*>(this) : buttons_.back(), added);
    connect(added, &QAbstractButton::clicked, this, [this, number] { click(number); });
    return added;
}

// Tab goes to the chosen item alone, as the arrow keys go to the others.
void ButtonBar::setChosenItem(int item) {
    Button& chosen = button(item);
    chosen_ = item;
    for (Button* each : buttons_) {
        const bool isChosen = each == &chosen;
        each->setChecked(isChosen);
        each->setFocusPolicy(isChosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
    setFocusProxy(&chosen);
}

bool ButtonBar::isItemEnabled(int item) const {
    return button(item).isEnabled();
}

void ButtonBar::setItemEnabled(int item, bool enabled) {
    button(item).setEnabled(enabled);
}

void ButtonBar::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(0, height() - 1, width(), 1, shade(palette(), kLine));
}

ButtonBar::Button& ButtonBar::button(int item) const {
    if (item < 1 || item > static_cast<int>(buttons_.size()))
        throw RuntimeError(ErrorNumber::InvalidPropertyArrayIndex);
    return *buttons_[static_cast<std::size_t>(item - 1)];
}

void ButtonBar::click(int item) {
    setChosenItem(item);
    Q_EMIT Click(kGroup, item);
}

void ButtonBar::step(int by) {
    const int last = static_cast<int>(buttons_.size());
    int next = chosen_ + by;
    while (next >= 1 && next <= last && !isItemEnabled(next))
        next += by;
    if (next < 1 || next > last)
        return;
    button(next).setFocus();
    click(next);
}
