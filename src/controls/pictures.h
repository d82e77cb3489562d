// The pictures that stand for something by key: the star signs, "aquarius" to "virgo", and the
// kinds of events, "event-critical" to "event-pi".
#pragma once

#include <QPixmap>

// The picture for a key, 24 pixels wide, for the rows of a list. The key must have one.
QPixmap smallPicture(const QString& key);

// The same of a star sign, 48 pixels wide, for a card.
QPixmap largePicture(const QString& key);
