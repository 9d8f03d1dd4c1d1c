// The list of the manual's topics.
#pragma once

#include <QString>

#include <vector>

namespace warhost {

struct HelpEntry {
    int topic = 0; // 0: has none
    int depth = 0; // 0 for a page, 1 for a section of the page above it, and so on
    QString title;
    QString page;   // file name in the manual's folder
    QString anchor; // empty: the top of the page
};

/// The entries of contents.txt in the folder, in order; lines that lack one of their four parts are left out.
/// Empty when there is no such file.
std::vector<HelpEntry> read_help_contents(QString const& folder);

/// The list's own path, as the user's system writes it.
QString help_contents_path(QString const& folder);

} // namespace warhost
