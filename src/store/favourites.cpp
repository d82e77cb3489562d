// The favourite files in the program's directory.
#include "store/favourites.h"

#include "runtime/app.h"
#include "store/small_file.h"

namespace {

const QLatin1String kExtension(".ofp");

}  // namespace

QString favouritePattern() {
    return u'*' + kExtension;
}

QString favouriteIn(const QString& fileName) {
    return fileName.chopped(kExtension.size());
}

void writeFavourite(const PersonRecord& person) {
    writeSmallFile(App::Path(), person.displayText + kExtension, writtenRecords({person}));
}

PersonRecord readFavourite(const QString& name) {
    return readFirstRecord(readSmallFile(App::Path(), name + kExtension));
}

void deleteFavouriteFile(const QString& fileName) {
    deleteSmallFile(App::Path(), fileName);
}
