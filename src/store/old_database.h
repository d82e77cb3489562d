// An old database, as far as Ondara's own tables are in it.
#pragma once

#include <QString>
#include <vector>

#include "runtime/errors.h"
#include "store/jet/jet_file.h"

// A field that a table must have, and what its values are: whole numbers of 32 bits, texts, dates,
// or -1 and 0. All but the last may be Null.
struct OldField {
    enum Kind { Number, Text, Date, Truth };

    QString name;
    Kind kind;
};

class OldDatabase {
  public:
    // Raises what JetFile raises.
    explicit OldDatabase(const QString& path);

    // All rows of a table. Raises 440 for a table or a field that is missing, 13 for a field of
    // another kind.
    JetRows rows(const QString& table, const std::vector<OldField>& fields) const;

    // The last number that a row of the table has got by itself, so far as the file tells.
    Long lastNumber(const QString& table) const;

    // The error of that number, with the cause.
    RuntimeError objection(ErrorNumber number, const QString& cause) const;

  private:
    QString path_;
    JetFile file_;
};
