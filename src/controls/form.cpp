// The life of a form, and its preview of keys.
#include "controls/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <algorithm>

#include "runtime/event.h"
#include "runtime/host.h"

namespace {

std::vector<Form*> loadedForms;

// A button that has the focus is pressed by Enter, as by the space bar. One that is pressed, also
// by its letter, takes the focus before Click.
void setUpButtons(const QWidget& form) {
    for (QPushButton* button : form.findChildren<QPushButton*>()) {
        button->setAutoDefault(true);
        if (button->focusPolicy() != Qt::NoFocus)
            QObject::connect(button, &QPushButton::pressed, button, qOverload<>(&QWidget::setFocus),
                             Qt::UniqueConnection);
    }
}

}  // namespace

Form::Form(QWidget* owner) : QWidget(owner, owner ? Qt::Dialog : Qt::Window) {}

Form::~Form() {
    std::erase(loadedForms, this);
}

void Form::Load() {
    if (loaded_)
        return;
    loaded_ = true;
    closing_ = false;
    loadedForms.push_back(this);
    setUpButtons(*this);
    qApp->installEventFilter(this);
    Form_Load();
}

void Form::Show() {
    Load();
    show();
}

void Form::ShowModal() {
    setWindowModality(Qt::ApplicationModal);
    Show();
    QEventLoop untilUnloaded;
    connect(this, &Form::unloaded, &untilUnloaded, &QEventLoop::quit);
    if (loaded_)
        untilUnloaded.exec();
}

void Form::Refresh() {
    repaint();
    host().paintWindows();
}

void Form::Unload() {
    if (!loaded_)
        return;
    loaded_ = false;
    Form_Unload();
    qApp->removeEventFilter(this);
    std::erase(loadedForms, this);
    close();
    Q_EMIT unloaded();
}

const std::vector<Form*>& Form::forms() {
    return loadedForms;
}

// A key that no control wants is offered to its parents one after the other; only the first
// receiver is the one that the user meant.
bool Form::seesFirst(QObject* receiver) const {
    const QWidget* meant = focusWidget() ? focusWidget() : this;
    return receiver == meant;
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !seesFirst(watched))
        return QWidget::eventFilter(watched, event);
    auto& key = static_cast<QKeyEvent&>(*event);
    key.ignore();
    runEvent([&] { Form_KeyDown(key); });
    if (!key.isAccepted())
        pressDefaultButton(key);
    const bool wasUsed = key.isAccepted();
    key.accept();
    return wasUsed;
}

void Form::setDefaultButton(QPushButton& button) {
    button.setDefault(true);
    defaultButton_ = &button;
}

void Form::pressDefaultButton(QKeyEvent& key) {
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!isEnter || !defaultButton_ || qobject_cast<QPushButton*>(focusWidget()))
        return;
    key.accept();
    defaultButton_->click();
}

void Form::work(const std::function<void()>& steps) {
    Q_ASSERT(!atWork_);
    {
        const QScopedValueRollback atWork(atWork_, true);
        steps();
    }
    if (closing_)
        Unload();
}

void Form::closeEvent(QCloseEvent* event) {
    event->setAccepted(!atWork_);
    runEvent([this] {
        if (atWork_)
            closeAfterWork();
        else
            Unload();
    });
}

void Form::closeAfterWork() {
    closing_ = true;
    Form_Cancel();
}

bool takeEsc(QKeyEvent& key) {
    if (key.key() != Qt::Key_Escape)
        return false;
    key.accept();
    return true;
}
