// A message box, as plain data.
#pragma once

#include <QObject>
#include <QString>

enum class MessageIcon { None, Critical, Exclamation, Information };
enum class MessageButtons { Ok, YesNo };
enum class Answer { Ok, Yes, No };

struct Message {
    QString text;
    QString title = {};
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    QObject* owner = nullptr;  // the window that waits for the answer
};
