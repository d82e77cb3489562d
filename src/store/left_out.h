// The people of an old database who cannot be in a new one: those without a birth date.
#pragma once

#include <QString>
#include <QStringList>

#include "store/value.h"

// A person of an old database.
struct OldPerson {
    Long nameId = 0;
    Value name = {};
    Value firstName = {};
    Value birthdate = {};
    bool isFemale = false;
    Value catId = {};
    Value notes = {};
};

// Collects them.
class LeftOut {
  public:
    // The category is the name of the person's, if there is one.
    void add(const OldPerson& person, const QString& category);

    bool isEmpty() const { return names_.isEmpty(); }

    // All of them with all of their fields, to be kept in a file. A field that is Null has no line.
    QString text() const;

    // What their user is told, given the names of that file and of the old database.
    QString message(const QString& fileName, const QString& oldName) const;

  private:
    QStringList names_;
    QString fields_;
};
