// The group files in the program's directory.
#include "store/group_files.h"

#include "runtime/app.h"
#include "runtime/text.h"
#include "store/small_file.h"

namespace {

const QLatin1String kExtension(".ofg");

}  // namespace

QString groupPattern() {
    return u'*' + kExtension;
}

QString groupFileName(const QString& groupName) {
    return Trim(groupName) + kExtension;
}

void writeGroup(const QString& fileName, const std::vector<PersonRecord>& members) {
    writeSmallFile(App::Path(), fileName, writtenRecords(members));
}

std::vector<PersonRecord> readGroup(const QString& fileName) {
    return readRecords(readSmallFile(App::Path(), fileName));
}

void deleteGroupFile(const QString& fileName) {
    deleteSmallFile(App::Path(), fileName);
}
