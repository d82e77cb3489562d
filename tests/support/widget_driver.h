// What tests do with widgets: find them by name, click them, press keys.
#pragma once

#include <QList>
#include <QWidget>
#include <stdexcept>
#include <string>

// The names of all widgets below the root, for the message of a search in vain.
std::string namesBelow(const QWidget& root);

// The widget of this type and object name below the root. Ends the test if there is none.
template <class Widget>
Widget& child(const QWidget& root, const QString& name) {
    if (auto* found = root.findChild<Widget*>(name))
        return *found;
    throw std::invalid_argument("No such widget: " + name.toStdString() +
                                ". There are:" + namesBelow(root));
}

// Each of these sends the events of one act of the user. The widget must be shown.
void click(QWidget& widget, QPoint place, Qt::KeyboardModifiers modifiers = {});
void click(QWidget& widget);
void doubleClick(QWidget& widget, QPoint place);
void pressMouse(QWidget& widget, QPoint place);
void holdMouse(QWidget& widget, QPoint place,  // moves it, with buttons held
               Qt::MouseButtons buttons = Qt::LeftButton);
void releaseMouse(QWidget& widget, QPoint place);
void dragMouse(QWidget& widget, QPoint from, QPoint to);
void moveMouse(QWidget& widget, QPoint place);
void pressKey(QWidget& widget, Qt::Key key);
void type(QWidget& widget, const QString& text);
