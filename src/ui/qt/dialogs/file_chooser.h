// The path that a choice in a file dialog means, and which choices are rejected before the dialog ends.
#pragma once

#include "ui/desktop.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

class QWidget;

namespace warhost {

/// Adds the default extension and checks the result itself, in both kinds of dialog: the toolkit's own stays open when
/// a choice is rejected; the desktop's has closed by then and is shown again.
class FileChooser {
public:
    using Ask = std::function<Answer(Message const&)>;

    /// The user's choice. settled: already checked while the dialog was open.
    struct Choice {
        QString path;
        bool settled = false;
    };
    /// Shows a dialog that begins with a path or a file name, which may be empty. Returns nothing if it is cancelled.
    using Show = std::function<std::optional<Choice>(QString const& start)>;

    FileChooser(FileDialog const& request, Ask ask) : request_(request), ask_(std::move(ask)) {}

    /// Shows dialogs until a choice is settled. Returns nothing if one is cancelled.
    std::optional<QString> choose(Show const& show) const;

    /// Shows the desktop's dialog, or the toolkit's if the desktop has none.
    std::optional<Choice> show_dialog(QString const& folder, QString const& start, QWidget* window) const;

    /// The path to open or to write. For opening, this is the chosen path; the default extension is added only if the
    /// chosen path does not exist. For saving, it is added to a name without a point. Returns nothing if the choice is
    /// rejected; the user has then seen the reason, or has answered No to replacing the file.
    std::optional<QString> settled(QString const& chosen) const;

private:
    QString completed(QString const& chosen) const;

    FileDialog const& request_;
    Ask ask_;
};

} // namespace warhost
