// The files behind the keys. Qt keeps what it has read of them.
#include "controls/pictures.h"

namespace {

QPixmap pictureNamed(const QString& name) {
    QPixmap picture(QStringLiteral(":/art/%1.png").arg(name));
    Q_ASSERT(!picture.isNull());
    return picture;
}

}  // namespace

QPixmap smallPicture(const QString& key) {
    return pictureNamed(key);
}

QPixmap largePicture(const QString& key) {
    return pictureNamed(key + QStringLiteral("-48"));
}
