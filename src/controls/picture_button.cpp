// The looks of the button with a picture.
#include "controls/picture_button.h"

#include <QPainter>
#include <QStyleOptionButton>

#include "controls/colour_mix.h"

namespace {

constexpr double kCornerRadius = 4;
constexpr double kOutlineAtRest = 0.22;
constexpr double kOutlineUnderMouse = 0.4;
constexpr double kFillUnderMouse = 0.07;
constexpr double kFillWhenDown = 0.16;

QColor fillOf(const QStyleOptionButton& option) {
    const QColor face = option.palette.color(QPalette::Window);
    const QColor ink = option.palette.color(QPalette::WindowText);
    if (option.state & QStyle::State_Sunken)
        return mixed(face, ink, kFillWhenDown);
    return option.state & QStyle::State_MouseOver ? mixed(face, ink, kFillUnderMouse) : face;
}

QColor outlineOf(const QStyleOptionButton& option) {
    if (option.state & QStyle::State_HasFocus)
        return option.palette.color(QPalette::Highlight);
    const bool underMouse = option.state & QStyle::State_MouseOver;
    return mixed(option.palette.color(QPalette::Window), option.palette.color(QPalette::WindowText),
                 underMouse ? kOutlineUnderMouse : kOutlineAtRest);
}

}  // namespace

// A button that is no default button takes Enter only as an auto default one.
PictureButton::PictureButton(QWidget* parent) : QPushButton(parent) {
    setAttribute(Qt::WA_Hover);
    setAutoDefault(true);
    connect(this, &QAbstractButton::clicked, this, &PictureButton::Click);
}

void PictureButton::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    if (!isEnabled())
        option.state &= ~QStyle::State_MouseOver;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outlineOf(option));
    painter.setBrush(fillOf(option));
    const QRectF inside = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(inside, kCornerRadius, kCornerRadius);
    style()->drawControl(QStyle::CE_PushButtonLabel, &option, &painter, this);
}
