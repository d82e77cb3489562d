// The pictures in the program: in every size, and legible on light and dark.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <set>

#include "cycles/calendar.h"
#include "cycles/star_sign.h"

namespace {

const QRgb kLight = qRgb(255, 255, 255);
const QRgb kDark = qRgb(43, 43, 43);

QImage picture(const QString& name) {
    return QImage(QStringLiteral(":/art/%1.png").arg(name));
}

// The end of the name of a picture that stands in another size than it is drawn in.
const QRegularExpression kOtherSize(QStringLiteral("-[0-9]+\\.png$"));

// The names of the pictures in the size that they are drawn in.
QStringList names() {
    QStringList names;
    const QStringList files = QDir(QStringLiteral(":/art")).entryList();
    for (const QString& file : files)
        if (!file.contains(u'@') && !file.contains(kOtherSize))
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

// The names of the star signs, in small letters.
std::set<QString> starSigns() {
    std::set<QString> signs;
    for (int day = 0; day < 366; ++day) {
        const Date date = modCycles::DateSerial(2000, 1, 1) + day;
        signs.insert(QString::fromLatin1(modCycles::GetStarSign(date)).toLower());
    }
    return signs;
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

TEST(StarSigns, HaveAPictureEachUnderTheirNameInSmallLetters) {
    EXPECT_EQ(starSigns().size(), 12U);
    for (const QString& sign : starSigns())
        EXPECT_TRUE(iconNames().contains(sign)) << qPrintable(sign);
}

TEST(StarSigns, HavePicturesOfWhichNoTwoAreAlike) {
    std::set<QByteArray> pictures;
    for (const QString& sign : starSigns()) {
        const QImage image = picture(sign);
        pictures.emplace(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    }
    EXPECT_EQ(pictures.size(), starSigns().size());
}

TEST(StarSigns, StandInTwiceTheirSizeToo) {
    for (const QString& sign : starSigns()) {
        const QString name = sign + QStringLiteral("-48");
        EXPECT_EQ(picture(name).size(), QSize(48, 48)) << qPrintable(sign);
        EXPECT_EQ(picture(name + QStringLiteral("@2x")).size(), QSize(96, 96)) << qPrintable(sign);
        EXPECT_EQ(picture(name + QStringLiteral("@3x")).size(), QSize(144, 144))
            << qPrintable(sign);
    }
}

TEST(Genders, HaveAPictureEach) {
    for (const char* gender : {"male", "female"})
        EXPECT_TRUE(iconNames().contains(QLatin1String(gender))) << gender;
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
