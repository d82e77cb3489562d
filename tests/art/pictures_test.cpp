// The pictures in the program: in every size, and legible on light and dark.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <algorithm>
#include <cmath>

namespace {

const QRgb kLight = qRgb(255, 255, 255);
const QRgb kDark = qRgb(43, 43, 43);

QImage picture(const QString& name) {
    return QImage(QStringLiteral(":/art/%1.png").arg(name));
}

// The names of the pictures that are drawn for one size.
QStringList names() {
    QStringList names;
    const QStringList files = QDir(QStringLiteral(":/art")).entryList();
    for (const QString& file : files)
        if (!file.contains(u'@') && !file.startsWith(QStringLiteral("ondara-")))
            names << file.chopped(4);
    return names;
}

// Those of them that are icons, of the toolbar and of buttons.
QStringList iconNames() {
    QStringList icons = names();
    for (const char* other : {"ondara", "splash", "wait"})
        icons.removeOne(QLatin1String(other));
    return icons;
}

double linear(int channel) {
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(QRgb colour) {
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

// The contrast of two colours, from 1 for none to 21 for black and white.
double contrast(QRgb one, QRgb other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

TEST(Pictures, ComeWithTheLibrary) {
    EXPECT_TRUE(names().contains(QStringLiteral("splash")));
    EXPECT_TRUE(iconNames().contains(QStringLiteral("explore")));
}

TEST(Pictures, StandInThreeScales) {
    for (const QString& name : names()) {
        const QSize size = picture(name).size();
        EXPECT_FALSE(size.isEmpty()) << qPrintable(name);
        EXPECT_EQ(picture(name + QStringLiteral("@2x")).size(), size * 2) << qPrintable(name);
        EXPECT_EQ(picture(name + QStringLiteral("@3x")).size(), size * 3) << qPrintable(name);
    }
}

TEST(Icons, AreDrawnOnAGridOf24Pixels) {
    for (const QString& name : iconNames())
        EXPECT_EQ(picture(name).size(), QSize(24, 24)) << qPrintable(name);
}

TEST(Icons, AreLegibleOnLightAndOnDark) {
    for (const QString& name : iconNames()) {
        const QImage image = picture(name + QStringLiteral("@3x"));
        int drawn = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                if (qAlpha(pixel) < 255)
                    continue;
                ++drawn;
                EXPECT_GE(contrast(pixel, kLight), 3.0) << qPrintable(name);
                EXPECT_GE(contrast(pixel, kDark), 3.0) << qPrintable(name);
            }
        EXPECT_GT(drawn, 0) << qPrintable(name);
    }
}

TEST(ApplicationIcon, StandsInTheSizesThatDesktopsAskFor) {
    for (const int pixels : {16, 22, 24, 32, 48, 64, 128, 256})
        EXPECT_EQ(picture(QStringLiteral("ondara-%1").arg(pixels)).size(), QSize(pixels, pixels));
}

TEST(ApplicationIcon, HasAShapeOfItsOwn) {
    const QImage icon = picture(QStringLiteral("ondara-64"));
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(icon.pixel(32, 32)), 255);
}

TEST(SplashPicture, FillsItsWindow) {
    const QImage splash = picture(QStringLiteral("splash"));
    EXPECT_EQ(splash.size(), QSize(420, 260));
    EXPECT_EQ(qAlpha(splash.pixel(0, 0)), 255);
    EXPECT_EQ(qAlpha(splash.pixel(419, 259)), 255);
}
