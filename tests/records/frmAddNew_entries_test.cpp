// What the wizard is told: the name and its split, the gender, and categories.
#include <QCheckBox>
#include <QLineEdit>

#include "controls/list_box.h"
#include "records/wizard_driver.h"

namespace {

const QString kThreeWords = QStringLiteral("Anna Maria Lee");

class WizardEntries : public WizardTest {
  protected:
    QStringList categories() {
        QStringList all;
        for (int i = 0; i < in<ListBox>("lstCats").ListCount(); ++i)
            all += in<ListBox>("lstCats").List(i);
        return all;
    }

    // Edits the split by hand: the middle name becomes part of the first one.
    void keepTwoFirstNames() {
        enterName(kThreeWords);
        press("cmdEdit");
        in<TextBox>("txtF").setText(QStringLiteral("Anna Maria"));
        in<TextBox>("txtN").setText(QStringLiteral("Lee"));
        press("cmdEdit");
    }

    void expectNames(const QString& first, const QString& last) {
        EXPECT_EQ(textOf("txtF"), first);
        EXPECT_EQ(textOf("txtN"), last);
    }

    void expectNamesLocked(bool locked) {
        EXPECT_EQ(in<TextBox>("txtType").isReadOnly(), !locked);
        EXPECT_EQ(in<TextBox>("txtType").backgroundRole(), QPalette::Base);
        for (const char* box : {"txtF", "txtN"}) {
            EXPECT_EQ(in<TextBox>(box).isReadOnly(), locked);
            EXPECT_EQ(in<TextBox>(box).backgroundRole(),
                      locked ? QPalette::Button : QPalette::Base);
        }
    }
};

TEST_F(WizardEntries, SplitsTheNameByEitherEnterAndPressesNothing) {
    open();
    auto& box = in<TextBox>("txtType");
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        box.clear();
        pressKey(box, enter);
        expectNames({}, {});
        type(box, kJohnDoe);
        pressKey(box, enter);
        expectNames(QStringLiteral("John"), QStringLiteral("Doe"));
        EXPECT_EQ(wizard().WizardStep, 1);
    }
}

TEST_F(WizardEntries, SplitsTheNameWheneverItsBoxIsLeft) {
    open();
    in<TextBox>("txtType").setText(kJohnDoe);
    leave("txtType");
    expectNames(QStringLiteral("John"), QStringLiteral("Doe"));
    EXPECT_TRUE(isEnabled("cmdNext"));
    in<TextBox>("txtF").setText(QStringLiteral("other"));
    leave("txtType");
    expectNames(QStringLiteral("John"), QStringLiteral("Doe"));
}

TEST_F(WizardEntries, EnablesNextByANameAndNeverDisablesItAgain) {
    open();
    enterName(QStringLiteral("   "));
    EXPECT_FALSE(isEnabled("cmdNext"));
    enterName(QStringLiteral("Smith"));
    EXPECT_TRUE(isEnabled("cmdNext"));
    enterName({});
    EXPECT_TRUE(isEnabled("cmdNext"));
    expectNames({}, {});
}

TEST_F(WizardEntries, WritesTheEmptyNameThatNextLetsThrough) {
    open();
    enterName(QStringLiteral("Smith"));
    enterName({});
    in<ListBox>("lstCats").setText(kFamily);
    goTo(wizard::kDone);
    EXPECT_EQ(stored("SELECT Name FROM Data ORDER BY NameID DESC"), Value(QStringLiteral("")));
}

TEST_F(WizardEntries, LetsTheSplitBeEdited) {
    open();
    expectNamesLocked(true);
    enterName(kThreeWords);
    press("cmdEdit");
    EXPECT_EQ(captionOf("cmdEdit"), QStringLiteral("&Update"));
    expectNamesLocked(false);
    in<TextBox>("txtF").setText(QStringLiteral(" Ann"));
    in<TextBox>("txtN").setText(QStringLiteral("Leigh "));
    press("cmdEdit");
    EXPECT_EQ(captionOf("cmdEdit"), QStringLiteral("&Edit"));
    expectNamesLocked(true);
    EXPECT_EQ(textOf("txtType"), QStringLiteral("Ann Leigh"));
    expectNames(QStringLiteral(" Ann"), QStringLiteral("Leigh "));
}

TEST_F(WizardEntries, KeepsAnEditedSplitThroughTheOtherSteps) {
    open();
    keepTwoFirstNames();
    in<ListBox>("lstCats").setText(kFamily);
    press("cmdNext");
    press("cmdBack");
    goTo(wizard::kDone);
    EXPECT_EQ(stored("SELECT FName FROM Data ORDER BY NameID DESC"),
              Value(QStringLiteral("Anna Maria")));
    EXPECT_EQ(stored("SELECT Name FROM Data ORDER BY NameID DESC"), Value(QStringLiteral("Lee")));
}

TEST_F(WizardEntries, LosesAnEditedSplitWhenTheTypedNameIsLeftAgain) {
    open();
    keepTwoFirstNames();
    expectNames(QStringLiteral("Anna Maria"), QStringLiteral("Lee"));
    leave("txtType");
    expectNames(QStringLiteral("Anna"), QStringLiteral("Maria Lee"));
}

TEST_F(WizardEntries, SaysTheGenderThatIsChecked) {
    open();
    press("chkG");
    EXPECT_EQ(captionOf("chkG"), QStringLiteral("Female"));
    press("chkG");
    EXPECT_EQ(captionOf("chkG"), QStringLiteral("Male"));
}

TEST_F(WizardEntries, ListsTheCategoriesInOrderOfTheirText) {
    addCategory(QStringLiteral("Aunts"));
    open();
    EXPECT_EQ(categories(),
              QStringList({QStringLiteral("Aunts"), kFamily, QStringLiteral("Friends")}));
    EXPECT_EQ(in<ListBox>("lstCats").ListIndex(), -1);
    EXPECT_EQ(in<ListBox>("lstCats").ItemData(1), family_);
}

TEST_F(WizardEntries, AddsACategoryAndSelectsIt) {
    open();
    enterCategory(QStringLiteral("  Aunts "));
    EXPECT_EQ(categories(),
              QStringList({QStringLiteral("Aunts"), kFamily, QStringLiteral("Friends")}));
    EXPECT_EQ(in<ListBox>("lstCats").Text(), QStringLiteral("Aunts"));
    EXPECT_EQ(in<QLineEdit>("txtNewCat").text(), QString());
    EXPECT_TRUE(wizard().WizardDirty);
    EXPECT_EQ(stored("SELECT CatID FROM Category WHERE Category = 'Aunts'"),
              Value(in<ListBox>("lstCats").ItemData(0)));
}

TEST_F(WizardEntries, AddsNoCategoryWithoutAText) {
    open();
    enterCategory({});
    EXPECT_EQ(categories().size(), 2);
    EXPECT_FALSE(wizard().WizardDirty);
}

TEST_F(WizardEntries, AddsACategoryOfBlanksUnderTheEmptyName) {
    open();
    enterCategory(QStringLiteral("  "));
    EXPECT_EQ(categories(), QStringList({QString(), kFamily, QStringLiteral("Friends")}));
    EXPECT_EQ(in<ListBox>("lstCats").ListIndex(), 0);
}

TEST_F(WizardEntries, AddsACategoryTwiceAndSelectsTheFirstOfTheTwo) {
    open();
    enterCategory(kFamily);
    EXPECT_EQ(categories(), QStringList({kFamily, kFamily, QStringLiteral("Friends")}));
    EXPECT_EQ(in<ListBox>("lstCats").ListIndex(), 0);
    EXPECT_EQ(in<ListBox>("lstCats").ItemData(0), family_);
}

}  // namespace
