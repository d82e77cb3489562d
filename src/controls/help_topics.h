// The contents of the help, as its author writes them.
#pragma once

#include <QString>
#include <vector>

// An entry of the contents. Those that follow on a deeper level are below it.
struct HelpTopic {
    QString title;
    QString page;  // its file from the folder of the help on; "" for a mere heading
    int level;     // from 0; at most one deeper than that of the entry before

    friend bool operator==(const HelpTopic&, const HelpTopic&) = default;
};

// How deep entries go; what is written deeper stands on the deepest level.
inline constexpr int kDeepestHelpLevel = 7;

// The entries of a contents file in the format that help compilers read: nested lists (UL) of
// objects (OBJECT) whose parameters (PARAM) "Name" and "Local" give title and page. Any text is
// taken; what is no such entry gives none.
std::vector<HelpTopic> helpTopics(const QString& contents);
