// The steps of the import wizard and its words.
#include "import/import_steps.h"

#include <gtest/gtest.h>

#include <array>

#include "support/printing.h"

using namespace importing;

TEST(ImportSteps, CountFromOneToSix) {
    for (Integer inside = 1; inside <= 6; ++inside)
        EXPECT_TRUE(isStep(inside)) << inside;
    for (const Integer outside : std::array<Integer, 3>{-1, 0, 7})
        EXPECT_FALSE(isStep(outside)) << outside;
}

TEST(ImportSteps, GoOnOneByOneUntilTheLast) {
    for (Integer step = 1; step < 6; ++step)
        EXPECT_EQ(stepAfter(step), step + 1);
    EXPECT_EQ(stepAfter(6), std::nullopt);
}

TEST(ImportSteps, GoBackOneByOneAndPastTheListing) {
    EXPECT_EQ(stepBefore(1), std::nullopt);
    EXPECT_EQ(stepBefore(2), 1);
    EXPECT_EQ(stepBefore(3), 2);
    EXPECT_EQ(stepBefore(4), 2);
    EXPECT_EQ(stepBefore(5), 4);
    EXPECT_EQ(stepBefore(6), 5);
}

TEST(ImportSteps, GuideTheUser) {
    EXPECT_EQ(step(1).guidance,
              u"This wizard will guide you through the steps needed to import people from the "
              u"Ondara 1.0 database into your Ondara 2.0 database. Please select the location of "
              u"the names.mdb file (usually in C:\\Program Files\\Ondara).");
    EXPECT_EQ(step(2).guidance,
              u"Select the people you wish to import by clicking the checkbox next to their name.");
    EXPECT_EQ(step(3).guidance, std::nullopt);
    EXPECT_EQ(step(4).guidance,
              u"The following datafields have been selected for you by the wizard. Alter any "
              u"information by clicking on a name in the first column. Click \"Update\" to "
              u"transfer the changes. Checking a checkbox indicates a female.\nN.B. Clicking "
              u"\"Back\" and \"Next\" will reset all fields.");
    EXPECT_EQ(step(5).guidance, u"");
    EXPECT_EQ(step(6).guidance, std::nullopt);
}

TEST(ImportSteps, CloseWithTheirWords) {
    for (Integer open = 1; open <= 6; ++open)
        EXPECT_EQ(step(open).closing.has_value(), open == 5) << open;
    EXPECT_EQ(step(5).closing,
              u"Congratulations! You've completed the necessary steps to import the data into "
              u"Ondara 2.0. Press \"Finish\" to complete the import.");
    EXPECT_EQ(closingWords(false), u"Ready! Click \"Close\" to return to the programme.");
    EXPECT_EQ(closingWords(true),
              u"An error occurred. Click \"Back\" to correct any erroneous data. The box below "
              u"shows which people have been imported successfully.");
}

TEST(ImportSteps, ChangeTheCaptionOfNextWhereItFinishesAndWhereItNoLongerDoes) {
    const std::array<QString, 6> captions{
        QString(), QString(), QString(), QStringLiteral("&Next >"), QStringLiteral("&Finish"),
        QString()};
    for (Integer shown = 1; shown <= 6; ++shown)
        EXPECT_EQ(step(shown).nextCaption, captions[static_cast<std::size_t>(shown - 1)]) << shown;
}

TEST(ImportSteps, RefuseWithTheirWords) {
    EXPECT_EQ(noSuchFile(), u"File not found. Please specify the path of Names.mdb.");
    EXPECT_EQ(notEveryoneAssigned(), u"Not everyone has been assigned to a catergory yet.");
    EXPECT_EQ(nobodyToImport(), u"Please select people first.");
}
