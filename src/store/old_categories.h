// The categories of an old database, those included that its people refer to and that are not
// there.
#pragma once

#include <QString>
#include <map>
#include <optional>

#include "store/old_database.h"

class OldCategories {
  public:
    // Reads the categories, and what people with a birth date say of theirs. A number without a
    // category becomes that of a category "Unknown (99)"; where people have none, or 0, there is
    // one more category, "Unknown", with a number that has never been one.
    explicit OldCategories(const OldDatabase& database);

    const std::map<Long, QString>& names() const { return names_; }

    // The number of the category that a person with this CatID is in.
    Long numberOf(const Value& catId) const;

    // The name of the category with this CatID; "" if there is none.
    QString nameOf(const Value& catId) const;

    // The largest number that a category has ever had, so far as the file tells; at least 0.
    Long largest() const { return largest_; }

  private:
    void readNames(const OldDatabase& database);
    void addMissing(const OldDatabase& database);
    void addUnknown(const OldDatabase& database);

    std::map<Long, QString> names_;
    std::optional<Long> unknown_;
    Long largest_ = 0;
};
