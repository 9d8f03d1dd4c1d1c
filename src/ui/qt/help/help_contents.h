// The list of the manual's topics.
#pragma once

#include <QString>

#include <vector>

namespace warhost {

struct HelpEntry {
    int topic = 0; // 0: none
    int depth = 0; // 0 for a page, 1 for a section of the page above it, and so on
    QString title;
    QString page;   // file name in the manual's folder
    QString anchor; // empty: the top of the page
};

/// The entries of contents.txt in the folder, in order; lines that lack one of the four parts are skipped.
/// Empty if there is no such file.
std::vector<HelpEntry> read_help_contents(QString const& folder);

/// The path of that file in the notation of the user's system.
QString help_contents_path(QString const& folder);

} // namespace warhost
