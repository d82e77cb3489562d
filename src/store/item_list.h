// What the store knows of a list on the screen.
#pragma once

#include <QString>
#include <vector>

#include "cycles/integers.h"

struct ListEntry {
    QString text;
    Long itemData = 0;
    bool leads = false;     // stands before all sorted entries, whatever its text
    bool selected = false;  // its check box, where the list has such boxes
};

// A list to fill. The controls that show entries implement it.
class ItemList {
  public:
    virtual ~ItemList() = default;

    // Replaces all entries and clears the selection, which fires no event. A sorted list puts the
    // entries in order of their text; others keep the given order.
    virtual void fill(std::vector<ListEntry> entries) = 0;
};
