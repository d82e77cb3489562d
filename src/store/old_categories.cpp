// The reading of old_categories.h.
#include "store/old_categories.h"

#include <algorithm>
#include <limits>

#include "store/row_numbers.h"

namespace {

bool isNone(const Value& catId) {
    return catId.isNull() || catId.toLong() == 0;
}

}  // namespace

OldCategories::OldCategories(const OldDatabase& database) {
    readNames(database);
    addMissing(database);
}

void OldCategories::readNames(const OldDatabase& database) {
    const QString table = QStringLiteral("Category");
    const QString number = QStringLiteral("CatID");
    RowNumbers numbers(database, table, number);
    JetRows rows = database.rows(
        table, {{number, OldField::Number}, {QStringLiteral("Category"), OldField::Text}});
    while (rows.next())
        names_[numbers.take(rows.values()[0])] = textOrNothing(rows.values()[1]);
    largest_ = numbers.largest();
}

void OldCategories::addMissing(const OldDatabase& database) {
    JetRows rows =
        database.rows(QStringLiteral("Data"), {{QStringLiteral("CatID"), OldField::Number},
                                               {QStringLiteral("Birthdate"), OldField::Date}});
    bool needsUnknown = false;
    while (rows.next()) {
        const Value& catId = rows.values()[0];
        const bool isLeftOut = rows.values()[1].isNull();
        if (isNone(catId)) {
            needsUnknown = needsUnknown || !isLeftOut;
            continue;
        }
        largest_ = std::max(largest_, catId.toLong());
        if (!isLeftOut)
            names_.try_emplace(catId.toLong(), QStringLiteral("Unknown (%1)").arg(catId.toLong()));
    }
    if (needsUnknown)
        addUnknown(database);
}

void OldCategories::addUnknown(const OldDatabase& database) {
    if (largest_ == std::numeric_limits<Long>::max())
        throw database.objection(
            ErrorNumber::Overflow,
            QStringLiteral("no CatID is left for the people without a category"));
    unknown_ = ++largest_;
    names_[largest_] = QStringLiteral("Unknown");
}

QString OldCategories::nameOf(const Value& catId) const {
    const auto found = isNone(catId) ? names_.end() : names_.find(catId.toLong());
    return found == names_.end() ? QString() : found->second;
}

Long OldCategories::numberOf(const Value& catId) const {
    return isNone(catId) ? unknown_.value() : catId.toLong();
}
