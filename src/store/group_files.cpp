// The group files in the program's directory.
#include "store/group_files.h"

#include "runtime/app.h"
#include "runtime/text.h"

namespace {

const QLatin1String kExtension(".ofg");

}  // namespace

QString groupPattern() {
    return u'*' + kExtension;
}

QString groupFileName(const QString& groupName) {
    return Trim(groupName) + kExtension;
}

GroupWriter::GroupWriter(const QString& fileName) : file_(App::Path(), fileName) {}

void GroupWriter::Close() {
    file_.write(writtenRecords(members_));
}

void readGroup(const QString& fileName, const RecordTaker& take) {
    readRecords(readSmallFile(App::Path(), fileName), take);
}

void deleteGroupFile(const QString& fileName) {
    deleteSmallFile(App::Path(), fileName);
}
