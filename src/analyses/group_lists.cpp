// The rules of group_lists.h.
#include "analyses/group_lists.h"

#include <algorithm>
#include <unordered_set>

#include "store/file_names.h"
#include "store/group_files.h"

std::vector<ListEntry> outsideGroup(std::vector<ListEntry> people,
                                    const std::vector<ListEntry>& group) {
    std::unordered_set<Long> members;
    for (const ListEntry& member : group)
        members.insert(member.itemData);
    std::erase_if(people,
                  [&](const ListEntry& person) { return members.contains(person.itemData); });
    return people;
}

bool isGroupListed(const QString& groupName, const std::vector<ListEntry>& files) {
    const QString wanted = groupFileName(groupName);
    return std::any_of(files.begin(), files.end(),
                       [&](const ListEntry& file) { return isSameFileName(file.text, wanted); });
}
