// The steps of the wizard: their order, their words and their controls.
#include "records/wizard_steps.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/printing.h"

using namespace wizard;

namespace {

std::vector<Integer> walk(Integer from, Integer (*step)(Integer), int count) {
    std::vector<Integer> places;
    for (Integer place = from; count > 0; --count)
        places.push_back(place = step(place));
    return places;
}

TEST(WizardSteps, CountFromOneToEight) {
    EXPECT_FALSE(isStep(0));
    EXPECT_TRUE(isStep(1));
    EXPECT_TRUE(isStep(8));
    EXPECT_FALSE(isStep(9));
    EXPECT_FALSE(isStep(-1));
}

TEST(WizardSteps, LeadOnOneByOneAndStartAgain) {
    EXPECT_EQ(walk(1, stepAfter, 8), (std::vector<Integer>{2, 3, 4, 5, 6, 7, 8, 1}));
}

TEST(WizardSteps, LeadBackPastTheWritingToTheFirst) {
    EXPECT_EQ(walk(8, stepBefore, 7), (std::vector<Integer>{6, 5, 4, 3, 2, 1, 1}));
    EXPECT_EQ(stepBefore(7), 6);
}

TEST(WizardSteps, GuideTheUser) {
    EXPECT_EQ(step(1).guidance,
              QStringLiteral("Type a name in the textbox, e.g. \"John Doe\", and press Enter. If "
                             "the derived first and last name is not correct, press Edit and alter "
                             "the names."));
    EXPECT_EQ(step(2).guidance, QStringLiteral("Type or select the date of birth."));
    EXPECT_EQ(step(3).guidance, QStringLiteral("Select the gender. Check for female."));
    EXPECT_EQ(step(4).guidance, QStringLiteral("Select an existing category or add a new one."));
    EXPECT_EQ(step(5).guidance, QStringLiteral("Type any notes about this person."));
    EXPECT_EQ(step(6).guidance, QStringLiteral("Check the data in the box. If all the information "
                                               "is correct, press Finish."));
    EXPECT_EQ(step(8).guidance, QStringLiteral("Done! Press Next to add another person, or Close "
                                               "to return to the programme."));
}

TEST(WizardSteps, CallNextFinishAtTheSummaryAlone) {
    const QString next = QStringLiteral("&Next >");
    EXPECT_EQ(step(5).nextCaption, next);
    EXPECT_EQ(step(6).nextCaption, QStringLiteral("&Finish"));
    EXPECT_EQ(step(8).nextCaption, next);
    for (Integer unchanged = 1; unchanged <= 4; ++unchanged)
        EXPECT_EQ(step(unchanged).nextCaption, QString()) << unchanged;
}

TEST(WizardSteps, GiveTheFocusToTheControlThatIsAskedFor) {
    const QStringList controls{{},
                               QStringLiteral("dtpBDate"),
                               QStringLiteral("chkG"),
                               QStringLiteral("lstCats"),
                               QStringLiteral("txtNotes"),
                               QStringLiteral("txtFinal"),
                               {},
                               QStringLiteral("cmdNext")};
    for (Integer place = 1; place <= 8; ++place)
        EXPECT_EQ(step(place).focus, controls[place - 1]) << place;
}

TEST(WizardSteps, ChangeNothingWhileThePersonIsWritten) {
    EXPECT_EQ(step(7).guidance, QString());
    EXPECT_EQ(step(7).page, QString());
    EXPECT_EQ(step(7).nextCaption, QString());
}

}  // namespace
