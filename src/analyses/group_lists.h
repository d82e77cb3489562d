// The lists of the group comparison: who can be picked for a group, and which groups are saved.
#pragma once

#include <QString>
#include <vector>

#include "store/item_list.h"

// The people who are not in a group, whatever they are called there.
std::vector<ListEntry> outsideGroup(std::vector<ListEntry> people,
                                    const std::vector<ListEntry>& group);

// Whether a group of this name, blanks at its ends aside, has one of these files, whose names may
// differ in case.
bool isGroupListed(const QString& groupName, const std::vector<ListEntry>& files);
