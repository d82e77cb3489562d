// The store's order of texts beside that of the lists.
#include <gtest/gtest.h>

#include <algorithm>

#include "runtime/text_fold.h"
#include "runtime/text_order.h"
#include "store/databases.h"
#include "store/recordset.h"
#include "store/statements.h"
#include "support/people.h"
#include "support/program_directory.h"
#include "support/recording_host.h"

namespace {

// Every character that UTF-8 writes in one or two bytes, and some that take more, alone and before
// another letter.
QStringList everyLetter() {
    QStringList texts;
    for (char16_t codePoint = 1; codePoint < 0x800; ++codePoint)
        texts << QString(QChar(codePoint)) << QString(QChar(codePoint)) + u'n';
    for (const char32_t codePoint : {U'ẞ', U'Ế', U'€', U'中', U'😀', U'\uFB01'})
        texts << QString::fromUcs4(&codePoint, 1) << QString::fromUcs4(&codePoint, 1) + u'n';
    return texts;
}

std::u32string codePoints(const QString& text) {
    return text.toStdU32String();
}

// The order as it is described, told without any haste.
std::weak_ordering describedOrder(const QString& a, const QString& b) {
    if (const auto order = codePoints(folded(a)) <=> codePoints(folded(b)); order != 0)
        return order;
    return codePoints(accented(a)) <=> codePoints(accented(b));
}

}  // namespace

TEST(Collation, OrdersEveryLetterAsDescribed) {
    QStringList sorted = everyLetter();
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const QString& a, const QString& b) { return describedOrder(a, b) < 0; });
    for (qsizetype i = 1; i < sorted.size(); ++i) {
        const QByteArray a = sorted[i - 1].toUtf8();
        const QByteArray b = sorted[i].toUtf8();
        EXPECT_TRUE(compareUtf8(a, b) == describedOrder(sorted[i - 1], sorted[i]))
            << a.constData() << " and " << b.constData();
    }
}

TEST(Collation, OrdersManyPeopleAsTheListsDo) {
    RecordingHost host;
    ProgramDirectory directory(host);
    addManyPeople(directory.people(), 3000, 3);
    Connection connection = openPersonDatabase();
    QStringList names;
    for (Recordset people(connection, statements::allPeople()); !people.EndOfFile();
         people.MoveNext())
        names += people.Fields(u"Name").toText();
    EXPECT_EQ(names.size(), 3000);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end(), [](const QString& a, const QString& b) {
        return compareTexts(a, b) < 0;
    }));
}
