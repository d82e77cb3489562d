// The keys of a record editor that is browsed.
#pragma once

#include <optional>

enum class BrowseCommand { Close, First, Previous, Next, Last };

// What a key asks for, as Qt numbers it; nothing for most of them.
std::optional<BrowseCommand> browseCommandOf(int key, bool withCtrl);
