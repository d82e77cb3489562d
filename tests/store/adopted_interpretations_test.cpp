// The interpretation texts of an old database in a new one.
#include "store/adopted_interpretations.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "store/schemas.h"
#include "support/errors.h"
#include "support/old_tables.h"
#include "support/people.h"
#include "support/printing.h"

namespace {

class AdoptedInterpretations : public testing::Test {
  protected:
    void adopt(const BuiltTable& texts) {
        const QString old = folder_.filePath(QStringLiteral("old"));
        makeFile(old, builtJet(3, {texts}).bytes);
        NewDatabase made(new_, interpretationSchema());
        addAdoptedInterpretations(OldDatabase(old), made);
        made.commit();
    }

    Value inNew(const char* query) { return valueOf(new_, QString::fromLatin1(query)); }

    QTemporaryDir folder_;
    QString new_ = folder_.filePath(QStringLiteral("new"));
};

BuiltRow oldText(const Value& emotional, const Value& text) {
    return {{emotional, 0, 1, text}};
}

}  // namespace

TEST_F(AdoptedInterpretations, AreThoseOfTheirCombinations) {
    adopt(oldInterpretations(
        {{{-1, 0, 1, QStringLiteral("Low.")}}, {{1, -1, 0, QString::fromUtf8("Höchst.")}}}));
    EXPECT_EQ(inNew("SELECT interp FROM HLC WHERE Emot = -1 AND Phys = 0 AND Intel = 1"),
              Value(QStringLiteral("Low.")));
    EXPECT_EQ(inNew("SELECT interp FROM HLC WHERE Emot = 1 AND Phys = -1 AND Intel = 0"),
              Value(QString::fromUtf8("Höchst.")));
    EXPECT_EQ(inNew("SELECT count(*) FROM HLC"), Value(2));
}

TEST_F(AdoptedInterpretations, AreTheFirstOfSeveral) {
    adopt(oldInterpretations(
        {oldText(1, QStringLiteral("First.")), oldText(1, QStringLiteral("Second."))}));
    EXPECT_EQ(inNew("SELECT interp FROM HLC"), Value(QStringLiteral("First.")));
    EXPECT_EQ(inNew("SELECT count(*) FROM HLC"), Value(1));
}

TEST_F(AdoptedInterpretations, AreNoneForWhatIsNoCombination) {
    adopt(oldInterpretations({oldText(2, QStringLiteral("Two.")),
                              oldText(Value(), QStringLiteral("Null.")),
                              oldText(0, QStringLiteral("Zero."))}));
    EXPECT_EQ(inNew("SELECT interp FROM HLC"), Value(QStringLiteral("Zero.")));
    EXPECT_EQ(inNew("SELECT count(*) FROM HLC"), Value(1));
}

TEST_F(AdoptedInterpretations, AreEmptyWhereTheyWereNull) {
    adopt(oldInterpretations({oldText(0, Value())}));
    EXPECT_EQ(inNew("SELECT interp FROM HLC"), Value(QStringLiteral("")));
}

TEST_F(AdoptedInterpretations, AreRefusedWithoutTheirTable) {
    EXPECT_EQ(errorOf([this] { adopt(oldPeople({})); }), 440);
}
