// The picture and the text, and the click that ends them.
#include "shell/frmWait.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>

#include "runtime/event.h"
#include "shell/default_instance.h"

frmWait::frmWait() {
    setObjectName(QStringLiteral("frmWait"));
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    auto* picture = new QLabel(this);
    picture->setPixmap(QPixmap(QStringLiteral(":/art/wait.png")));
    auto* text = new QLabel(QStringLiteral("Please wait ....."), this);
    text->setObjectName(QStringLiteral("lblWait"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(16);
    layout->addWidget(picture);
    layout->addWidget(text);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmWait::mousePressEvent(QMouseEvent* event) {
    event->accept();
    runEvent([this] { Unload(); });
}

void showWaitWindow() {
    auto& wait = defaultInstance<frmWait>();
    wait.Show();
    wait.Refresh();
}

void unloadWaitWindow() {
    auto& wait = defaultInstance<frmWait>();
    wait.Load();
    wait.Unload();
}
