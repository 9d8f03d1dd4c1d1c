#include "ui/qt/help/help_contents.h"

#include <QDir>
#include <QFile>
#include <QStringList>

namespace warhost {

QString help_contents_path(QString const& folder)
{
    return QDir::toNativeSeparators(QDir{folder}.absoluteFilePath("contents.txt"));
}

std::vector<HelpEntry> read_help_contents(QString const& folder)
{
    std::vector<HelpEntry> entries;
    QFile file{help_contents_path(folder)};
    if (!file.open(QIODevice::ReadOnly)) return entries;

    auto const lines = QString::fromUtf8(file.readAll()).split('\n');
    for (QString const& line : lines) {
        QStringList const parts = line.trimmed().split('\t');
        if (parts.size() < 4) continue;
        HelpEntry entry;
        entry.topic = parts[0].toInt();
        entry.depth = parts[1].toInt();
        entry.title = parts[2];
        entry.page = parts[3].section('#', 0, 0);
        entry.anchor = parts[3].section('#', 1);
        entries.push_back(entry);
    }
    return entries;
}

} // namespace warhost
