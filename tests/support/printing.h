// Qt's texts in the messages of failed tests, readable.
#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out) {
    PrintTo(texts.join(QStringLiteral("\", \"")), out);
}
