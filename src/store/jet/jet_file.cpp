// The opening of Jet files, and their catalogs.
#include "store/jet/jet_file.h"

#include <QBuffer>
#include <QFile>
#include <algorithm>
#include <utility>

#include "store/file_condition.h"
#include "store/file_error.h"
#include "store/jet/jet_errors.h"
#include "store/jet/jet_header.h"

namespace {

// The error of a name that is not in the file.
RuntimeError notThere(const QString& cause, const QString& path) {
    return fileError(ErrorNumber::Automation, cause, path);
}

std::unique_ptr<QFile> openFile(const QString& path) {
    if (const auto objection = objectionTo(conditionOf(path, Access::Read), Access::Read, path))
        throw *objection;
    auto file = std::make_unique<QFile>(path);
    if (!file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw fileError(*file);
    return file;
}

std::unique_ptr<QBuffer> openBytes(const QByteArray& bytes) {
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

// A value of the catalog; each has one.
template <class Content>
const Content& known(const Value& value) {
    const auto* content = std::get_if<Content>(&value.content());
    if (!content)
        throw JetDamage(QStringLiteral("its catalog makes no sense"));
    return *content;
}

// Whether an entry of the catalog is a table of the user's own, in this file.
bool isUserTable(const Value& type, const Value& flags) {
    constexpr std::int64_t kTable = 1;
    constexpr std::int64_t kOfSystem = 0x80000002;
    return known<std::int64_t>(type) == kTable && (known<std::int64_t>(flags) & kOfSystem) == 0;
}

}  // namespace

bool isJetFile(const QString& path) {
    if (objectionTo(conditionOf(path, Access::Read), Access::Read, path))
        return false;
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
           isJet(file.read(kJetSignature));
}

JetTable::JetTable(std::shared_ptr<JetPages> pages, QString name, TableDefinition definition)
    : pages_(std::move(pages)), name_(std::move(name)), definition_(std::move(definition)) {}

JetRows JetTable::rows(const QStringList& columnNames) const {
    std::vector<JetColumn> chosen;
    for (const QString& name : columnNames)
        chosen.push_back(column(name));
    return raisingJetErrors(pages_->path(),
                            [&] { return JetRows(pages_, definition_, std::move(chosen)); });
}

const JetColumn& JetTable::column(const QString& name) const {
    const auto found = std::find_if(columns().begin(), columns().end(), [&](const auto& column) {
        return column.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == columns().end())
        throw notThere(QStringLiteral("there is no field %1 in table %2").arg(name, name_),
                       pages_->path());
    if (!isReadable(found->type))
        throw fileError(
            ErrorNumber::TypeMismatch,
            QStringLiteral("field %1 of table %2 is no number, text or date").arg(name, name_),
            pages_->path());
    return *found;
}

JetFile::JetFile(const QString& path)
    : pages_(raisingJetErrors(
          path, [&path] { return std::make_shared<JetPages>(openFile(path), path); })) {
    raisingJetErrors(path, [this] { readCatalog(); });
}

JetFile::JetFile(const QByteArray& bytes, const QString& name)
    : pages_(raisingJetErrors(name,
                              [&] { return std::make_shared<JetPages>(openBytes(bytes), name); })) {
    raisingJetErrors(name, [this] { readCatalog(); });
}

QStringList JetFile::tables() const {
    QStringList names;
    for (const CatalogEntry& entry : catalog_)
        names += entry.name;
    return names;
}

JetTable JetFile::table(const QString& name) const {
    const auto found = std::find_if(catalog_.begin(), catalog_.end(), [&name](const auto& entry) {
        return entry.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == catalog_.end())
        throw notThere(QStringLiteral("there is no table %1").arg(name), pages_->path());
    return raisingJetErrors(pages_->path(), [&] {
        return JetTable(pages_, found->name, readTableDefinition(*pages_, found->definitionPage));
    });
}

// The catalog is a table itself.
void JetFile::readCatalog() {
    constexpr std::uint32_t kCatalogPage = 2;
    constexpr std::uint32_t kPageOfId = 0xFFFFFF;
    constexpr std::size_t kMostTables = 32'768;
    const JetTable catalog(pages_, QStringLiteral("MSysObjects"),
                           readTableDefinition(*pages_, kCatalogPage));
    JetRows rows = catalog.rows({QStringLiteral("Id"), QStringLiteral("Name"),
                                 QStringLiteral("Type"), QStringLiteral("Flags")});
    while (rows.next()) {
        const std::vector<Value>& values = rows.values();
        if (!isUserTable(values[2], values[3]))
            continue;
        catalog_.push_back(
            {known<QString>(values[1]),
             static_cast<std::uint32_t>(known<std::int64_t>(values[0])) & kPageOfId});
        if (catalog_.size() > kMostTables)
            throw JetDamage(QStringLiteral("its catalog has no end"));
    }
}
