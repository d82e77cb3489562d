// Reads the tables of a Jet file, the databases of old.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <vector>

#include "store/jet/jet_rows.h"

// Whether there is a Jet file at the path, of whatever version. False for what is none, or cannot
// be read at all.
bool isJetFile(const QString& path);

// A table, which keeps its file open.
class JetTable {
  public:
    JetTable(std::shared_ptr<JetPages> pages, QString name, TableDefinition definition);

    // In the order in which the columns were made.
    const std::vector<JetColumn>& columns() const { return definition_.columns; }

    // The last number that a row has got by itself, deleted rows included: 0 where the table
    // numbers none, or the file does not tell.
    Long lastNumber() const { return definition_.lastNumber; }

    // All rows, each with the values of these columns. Their names match without regard to case;
    // one that the table does not have raises 440, one whose values are no numbers, texts or
    // dates 13.
    JetRows rows(const QStringList& columnNames) const;

  private:
    const JetColumn& column(const QString& name) const;

    std::shared_ptr<JetPages> pages_;
    QString name_;
    TableDefinition definition_;
};

// A file of Jet 3 or 4, open to be read. Any bytes can be in it: what contradicts itself raises
// 321, and a reading takes little time and memory beyond the values themselves. Its errors are
// worded as file_error.h says.
class JetFile {
  public:
    // Raises 53 for a file that is not there, 75 for what is no file or may not be read, 321 for
    // one that is no Jet file, or is encrypted, has a password or is of another version.
    explicit JetFile(const QString& path);

    // The same of bytes; the name is for errors.
    JetFile(const QByteArray& bytes, const QString& name);

    // The names of the user's tables.
    QStringList tables() const;

    // The name matches without regard to case; 440 if there is no such table.
    JetTable table(const QString& name) const;

  private:
    struct CatalogEntry {
        QString name;
        std::uint32_t definitionPage;
    };

    void readCatalog();

    std::shared_ptr<JetPages> pages_;
    std::vector<CatalogEntry> catalog_;
};
