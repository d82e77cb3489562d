// The size of font_size.h.
#include "controls/font_size.h"

#include <QFont>
#include <QFontInfo>

double pointsOf(const QFont& font) {
    const double points = font.pointSizeF();
    return points > 0 ? points : QFontInfo(font).pointSizeF();
}
