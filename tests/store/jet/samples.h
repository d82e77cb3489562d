// The sample files that may lie beside the project, and what their description says of them.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStringList>
#include <vector>

#include "store/jet/jet_reading.h"

inline QString samplePath(const char* name) {
    return QDir(QStringLiteral(ONDARA_SAMPLES)).filePath(QLatin1String(name));
}

#define SKIP_WITHOUT_SAMPLES()                   \
    if (!QFile::exists(samplePath("README.md"))) \
    GTEST_SKIP() << "There are no samples beside the project."

// A table of the description: the fields with their values, a date as the number of its days.
struct DescribedTable {
    QStringList fields;
    Rows rows;
};

// The first characters of a text that goes on and on.
inline QString endlessText(char kind, qsizetype characters) {
    QString text;
    for (int line = 1; text.size() < characters; ++line) {
        if (kind == 'L')
            text +=
                QStringLiteral("Line %1 of a long note.\r\n").arg(line, 4, 10, QLatin1Char('0'));
        else if (kind == 'G')
            text += QString::fromUtf8("αβγδε ζηθικ λμνξο πρστυ φχψω. ");
        else
            text += u'x';
    }
    return text.left(characters);
}

inline Value describedValue(QString cell, bool isDate) {
    static const QRegularExpression kEndless(QStringLiteral("^([LGX])\\((\\d+)\\)$"));
    cell.remove(u'`');
    if (cell == u"NULL")
        return {};
    if (cell == u"True" || cell == u"False")
        return Value(cell == u"True");
    if (const auto match = kEndless.match(cell); match.hasMatch())
        return endlessText(match.captured(1).front().toLatin1(), match.captured(2).toInt());
    if (cell.startsWith(u'"'))
        return QJsonDocument::fromJson((u'[' + cell + u']').toUtf8()).array().first().toString();
    bool isNumber = false;
    const double number = cell.toDouble(&isNumber);
    if (!isNumber)
        return cell;
    return isDate ? Value(number) : Value(static_cast<Long>(number));
}

// The tables of the section with that heading. A date stands in two columns, and the second counts.
inline std::vector<DescribedTable> describedTables(const char* heading) {
    QFile file(samplePath("README.md"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString section = QString::fromUtf8(file.readAll())
                                .section(QStringLiteral("\n## ") + QLatin1String(heading), 1)
                                .section(QStringLiteral("\n## "), 0, 0);
    std::vector<DescribedTable> tables;
    QStringList heads;
    for (const QString& line : section.split(u'\n')) {
        if (!line.startsWith(u"| ")) {
            if (!line.startsWith(u"|---"))
                heads.clear();
            continue;
        }
        const QStringList cells = line.mid(2).chopped(2).split(QStringLiteral(" | "));
        if (heads.isEmpty()) {
            heads = cells;
            tables.emplace_back();
            for (const QString& head : heads) {
                if (head != u"Serial")
                    tables.back().fields += head;
            }
            continue;
        }
        std::vector<Value> row;
        for (qsizetype i = 0; i < cells.size(); ++i) {
            const bool isDate = heads.value(i + 1) == u"Serial";
            i += isDate ? 1 : 0;
            row.push_back(describedValue(cells[i], isDate));
        }
        tables.back().rows.push_back(row);
    }
    return tables;
}
