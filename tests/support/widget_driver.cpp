// The user's acts, by Qt's own test events.
#include "support/widget_driver.h"

#include <QMouseEvent>
#include <QTest>

std::string namesBelow(const QWidget& root) {
    std::string names;
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        if (!widget->objectName().isEmpty())
            names += ' ' + widget->objectName().toStdString();
    }
    return names;
}

void click(QWidget& widget, QPoint place, Qt::KeyboardModifiers modifiers) {
    QTest::mouseClick(&widget, Qt::LeftButton, modifiers, place);
}

void click(QWidget& widget) {
    click(widget, widget.rect().center());
}

// The first click of a double click is a click of its own.
void doubleClick(QWidget& widget, QPoint place) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, place);
}

void pressMouse(QWidget& widget, QPoint place) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, place);
}

void holdMouse(QWidget& widget, QPoint place, Qt::MouseButtons buttons) {
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

void releaseMouse(QWidget& widget, QPoint place) {
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, place);
}

void dragMouse(QWidget& widget, QPoint from, QPoint to) {
    pressMouse(widget, from);
    holdMouse(widget, to);
    releaseMouse(widget, to);
}

void moveMouse(QWidget& widget, QPoint place) {
    QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
}

void pressKey(QWidget& widget, Qt::Key key) {
    QTest::keyClick(&widget, key);
}

void type(QWidget& widget, const QString& text) {
    QTest::keyClicks(&widget, text);
}
