// The main function of tests that need widgets: no display, one scale, one font size, one style.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_FONT_DPI", "96");
#ifdef Q_OS_WIN
    // Without a display Qt knows no fonts there but those of a directory that it is told.
    qputenv("QT_QPA_FONTDIR", qgetenv("WINDIR") + "/Fonts");
#endif
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QFont font;
    font.setPixelSize(12);
    QApplication::setFont(font);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
