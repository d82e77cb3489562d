// The reading of the folder.
#include "controls/file_list_box.h"

#include <utility>

#include "store/small_file.h"

void FileListBox::Refresh() {
    std::vector<ListEntry> names;
    for (const QString& name : smallFiles(path_, pattern_.mid(1)))
        names.push_back({.text = name});
    fill(std::move(names));
}
