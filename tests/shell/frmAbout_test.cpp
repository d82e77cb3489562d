// The about window.
#include "shell/frmAbout.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "controls/picture_button.h"
#include "support/recording_host.h"
#include "support/widget_driver.h"

namespace {

class About : public testing::Test {
  protected:
    About() { form_.Show(); }

    QString text(const char* label) {
        return child<QLabel>(form_, QString::fromLatin1(label)).text();
    }

    PictureButton& button(const char* name) {
        return child<PictureButton>(form_, QString::fromLatin1(name));
    }

    RecordingHost host_;
    frmAbout form_;
};

TEST_F(About, TellsNameAndVersion) {
    EXPECT_EQ(form_.windowTitle(), QStringLiteral("About Ondara 2.0"));
    EXPECT_EQ(text("lblTitle"), QStringLiteral("Ondara"));
    EXPECT_EQ(text("lblVersion"), QStringLiteral("Version 2.1.0"));
}

TEST_F(About, TellsWhatTheProgramIsFor) {
    EXPECT_EQ(text("lblDescription"),
              QStringLiteral("This program will calculate your biorhythm: the emotional, physical, "
                             "and intellectual cycle. You can also calculate the compatibility "
                             "between two biorhythms and group biorhythms."));
}

TEST_F(About, WarnsAndTellsWhoseTheProgramIs) {
    const QString warning = QStringLiteral(
        "Warning: This program is freeware and is not to be used for commercial purposes.");
    EXPECT_TRUE(text("lblDisclaimer").startsWith(warning + QStringLiteral(" ")));
    EXPECT_TRUE(text("lblDisclaimer").endsWith(QStringLiteral("the authors of Ondara.")));
}

TEST_F(About, ShowsTheIcon) {
    EXPECT_EQ(child<QLabel>(form_, QStringLiteral("picIcon")).pixmap().size(), QSize(64, 64));
}

TEST_F(About, HasTwoButtons) {
    EXPECT_EQ(button("cmdOK").text(), QStringLiteral("OK"));
    EXPECT_EQ(button("cmdSysInfo").text(), QStringLiteral("System Info"));
}

TEST_F(About, ShowsAllOfItsTexts) {
    for (const char* name : {"lblDescription", "lblDisclaimer"}) {
        const auto& label = child<QLabel>(form_, QString::fromLatin1(name));
        EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name;
    }
}

TEST_F(About, ClosesByItsButton) {
    click(button("cmdOK"));
    EXPECT_FALSE(form_.isLoaded());
}

TEST_F(About, ClosesOnEscAndOnNoOtherKey) {
    pressKey(button("cmdOK"), Qt::Key_A);
    EXPECT_TRUE(form_.isLoaded());
    pressKey(button("cmdOK"), Qt::Key_Escape);
    EXPECT_FALSE(form_.isLoaded());
}

TEST_F(About, StartsTheSystemInformationAndStays) {
    host_.expectMessage(QStringLiteral("System Information Is Unavailable At This Time"));
    click(button("cmdSysInfo"));
    EXPECT_TRUE(form_.isLoaded());
}

}  // namespace
