// The desktop's message boxes and event queue.
#include "controls/desktop_host.h"

#include <QApplication>
#include <QMessageBox>

namespace {

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None:
            return QMessageBox::NoIcon;
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
    }
    Q_UNREACHABLE();
}

QMessageBox::StandardButtons buttonsOf(MessageButtons buttons) {
    return buttons == MessageButtons::YesNo ? QMessageBox::Yes | QMessageBox::No
                                            : QMessageBox::StandardButtons(QMessageBox::Ok);
}

Answer answerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Ok;
    }
}

// The window that the box waits over: the owner's, or else the one that the user is in.
QWidget* windowOf(QObject* owner) {
    const auto* widget = qobject_cast<QWidget*>(owner);
    return widget ? widget->window() : QApplication::activeWindow();
}

}  // namespace

Answer DesktopHost::showMessage(const Message& message) {
    QMessageBox box(windowOf(message.owner));
    box.setIcon(iconOf(message.icon));
    box.setWindowTitle(message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setStandardButtons(buttonsOf(message.buttons));
    return answerOf(box.exec());
}

void DesktopHost::yield() {
    QApplication::processEvents();
}

void DesktopHost::paintWindows() {
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
