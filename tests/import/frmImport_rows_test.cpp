// The import wizard where its rows are listed, changed and assigned.
#include "import/import_driver.h"

using modCycles::DateSerial;

namespace {

class ImportedRows : public ImportTest {
  protected:
    void clickRow(int row) {
        ListView& list = rows();
        click(*list.viewport(), list.visualRect(list.model()->index(row - 1, 1)).center());
    }

    void enter(const char* box, const char* text) {
        in<TextBox>(box).setText(QString::fromUtf8(text));
    }

    QString textOf(const char* box) { return in<TextBox>(box).text(); }

    QString row(int index) { return textsOf(index).join(u'|'); }
};

TEST_F(ImportedRows, ComeFromThoseWhoAreSelected) {
    openRows({0, 2});
    EXPECT_EQ(rows().ListCount(), 2);
    EXPECT_EQ(row(1), u"Doe|John|20 Oct 1972||?|0");
    EXPECT_EQ(row(2), u"Smith||22 Oct 1972||?|0");
    EXPECT_FALSE(rows().ListItem(1).checked);
}

TEST_F(ImportedRows, HideTheirNumbers) {
    openRows();
    for (const int column : {0, 1, 2, 4})
        EXPECT_FALSE(rows().isColumnHidden(column)) << column;
    for (const int column : {3, 5})
        EXPECT_TRUE(rows().isColumnHidden(column)) << column;
}

TEST_F(ImportedRows, HaveRoomForTheirBirthdates) {
    openRows();
    EXPECT_GT(rows().columnWidth(2), rows().fontMetrics().horizontalAdvance(textsOf(1)[2]));
}

TEST_F(ImportedRows, AreShownInTheInputsWhenTheyAreClicked) {
    openRows();
    EXPECT_EQ(wizard().ImportRow, 0);
    clickRow(2);
    EXPECT_EQ(wizard().ImportRow, 2);
    EXPECT_EQ(textOf("txtN"), u"Roe");
    EXPECT_EQ(textOf("txtF"), u"Jane");
    EXPECT_EQ(in<DatePicker>("dtpImport").Value(), DateSerial(1972, 10, 21));
    EXPECT_EQ(in<ComboBox>("cbImport").ListIndex(), 0);
}

TEST_F(ImportedRows, AreUpdatedFromTheInputs) {
    openRows();
    clickRow(1);
    pressKey(rows(), Qt::Key_Space);
    enter("txtN", " van Doe ");
    enter("txtF", " Jo ");
    in<DatePicker>("dtpImport").setValue(DateSerial(1980, 3, 1));
    in<ComboBox>("cbImport").setText(QStringLiteral("Friends"));
    press("cmdUpdate");
    EXPECT_EQ(row(1), QStringLiteral("van Doe|Jo|1 Mar 1980|%1|Friends|1").arg(friends_));
    EXPECT_TRUE(rows().ListItem(1).checked);
    EXPECT_EQ(row(2), u"Roe|Jane|21 Oct 1972||?|0");
    clickRow(2);
    clickRow(1);
    EXPECT_EQ(in<ComboBox>("cbImport").Text(), u"Friends");
}

TEST_F(ImportedRows, AreAllAssignedAndShowTheFirstCategoryNonetheless) {
    openRows();
    in<ComboBox>("cbImport").setText(QStringLiteral("Friends"));
    press("cmdAssign");
    for (int i = 1; i <= 3; ++i)
        EXPECT_EQ(textsOf(i).mid(3).join(u'|'), QStringLiteral("%1|Friends|0").arg(friends_));
    clickRow(2);
    EXPECT_EQ(in<ComboBox>("cbImport").Text(), u"Family");
    press("cmdUpdate");
    EXPECT_EQ(textsOf(2).mid(3).join(u'|'), QStringLiteral("%1|Family|0").arg(family_));
}

TEST_F(ImportedRows, PassOnceTheyAreAssigned) {
    openRows();
    press("cmdAssign");
    press("cmdNext");
    EXPECT_EQ(wizard().ImportStep, 5);
}

TEST_F(ImportedRows, DoNotPassWhileOneIsUnassigned) {
    openRows();
    clickRow(1);
    enter("txtN", "Changed");
    press("cmdUpdate");
    host_.expectMessage(QStringLiteral("Not everyone has been assigned to a catergory yet."));
    press("cmdNext");
    EXPECT_EQ(host_.messages().back().owner, &wizard());
    EXPECT_EQ(wizard().ImportStep, 4);
    EXPECT_TRUE(isShown("lvImport"));
    EXPECT_EQ(captionOf("cmdNext"), u"&Next >");
    EXPECT_EQ(guidance(), importing::step(4).guidance);
    EXPECT_EQ(wizard().focusWidget(), &rows());
    EXPECT_EQ(lastNames().join(u'|'), u"Changed|Roe|Smith");
}

TEST_F(ImportedRows, DoNotPassWhereverTheOneIsThatIsUnassigned) {
    openRows();
    for (int unassigned = 1; unassigned <= 3; ++unassigned) {
        for (int row = 1; row <= 3; ++row) {
            if (row == unassigned)
                continue;
            clickRow(row);
            press("cmdUpdate");
        }
        host_.expectMessage(importing::notEveryoneAssigned());
        press("cmdNext");
        EXPECT_EQ(wizard().ImportStep, 4) << unassigned;
        press("cmdBack");
        press("cmdNext");
    }
}

TEST_F(ImportedRows, AreListedAnewByTheWayBack) {
    openRows();
    clickRow(1);
    enter("txtN", "Changed");
    press("cmdUpdate");
    press("cmdBack");
    press("cmdNext");
    EXPECT_EQ(lastNames().join(u'|'), u"Doe|Roe|Smith");
}

TEST_F(ImportedRows, EndTheProgramWhenNoneHasBeenClickedBeforeTheUpdate) {
    openRows();
    host_.expectMessage(QStringLiteral("Run-time error '35600':\n\nIndex out of bounds"));
    press("cmdUpdate");
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_EQ(lastNames().join(u'|'), u"Doe|Roe|Smith");
}

TEST_F(ImportedRows, AreUpdatedInTheStepOfWhoWasClickedThoughTheListIsAnother) {
    openRows();
    clickRow(2);
    enter("txtN", "Jane's");
    press("cmdBack");
    names().setSelected(0, false);
    press("cmdNext");
    EXPECT_EQ(wizard().ImportRow, 2);
    press("cmdUpdate");
    EXPECT_EQ(lastNames().join(u'|'), u"Roe|Jane's");
}

TEST_F(ImportedRows, EndTheProgramWhereTheListHasNoLongerTheOneThatWasClicked) {
    openRows();
    clickRow(3);
    press("cmdBack");
    names().setSelected(0, false);
    press("cmdNext");
    host_.expectMessage(QStringLiteral("Run-time error '35600':\n\nIndex out of bounds"));
    press("cmdUpdate");
    EXPECT_EQ(host_.exitCode(), 1);
    EXPECT_EQ(lastNames().join(u'|'), u"Roe|Smith");
}

}  // namespace
