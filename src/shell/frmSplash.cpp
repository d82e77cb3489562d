// The picture, and the key that ends it.
#include "shell/frmSplash.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

frmSplash::frmSplash() {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowFlags(Qt::SplashScreen);
    setAccessibleName(QStringLiteral("Ondara is starting"));
    auto* picture = new QLabel(this);
    picture->setPixmap(QPixmap(QStringLiteral(":/art/splash.png")));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(picture);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmSplash::Form_KeyDown(QKeyEvent& key) {
    key.accept();
    Unload();
}
