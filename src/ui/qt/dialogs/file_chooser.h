// What a choice in a file dialog stands for, and what is refused before the dialog is over.
#pragma once

#include "ui/desktop.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>

class QWidget;

namespace warhost {

/// Adds the default extension and judges the result itself, in every kind of dialog: the toolkit's own, which stays
/// open when a choice is refused, and the desktop's, which has closed by then and is shown again.
class FileChooser {
public:
    using Ask = std::function<Answer(Message const&)>;

    /// A choice of the user's. Settled: judged already, while the dialog was open.
    struct Choice {
        QString path;
        bool settled = false;
    };
    /// Shows a dialog that begins with a path or a file name, which may be empty; nothing when it is cancelled.
    using Show = std::function<std::optional<Choice>(QString const& start)>;

    FileChooser(FileDialog const& request, Ask ask) : request_(request), ask_(std::move(ask)) {}

    /// Shows dialogs until a choice is settled. Nothing when one is cancelled.
    std::optional<QString> choose(Show const& show) const;

    /// Shows the desktop's dialog, or the toolkit's where there is none.
    std::optional<Choice> show_dialog(QString const& folder, QString const& start, QWidget* window) const;

    /// The path to open or to write. For opening this is the chosen one, and the one with the default extension only
    /// when the chosen one does not exist; for saving the extension is added to a name without a point. Nothing when
    /// the choice is refused: then the user knows why, or has answered No to replacing the file.
    std::optional<QString> settled(QString const& chosen) const;

private:
    QString completed(QString const& chosen) const;

    FileDialog const& request_;
    Ask ask_;
};

} // namespace warhost
