#include "ui/qt/dialogs/file_chooser.h"

#include "base/failure.h"
#include "ui/qt/toolkit_settings.h"
#include "ui/qt/widgets/text.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QPushButton>
#include <QStringList>

#include <filesystem>
#include <system_error>

namespace warhost {

namespace {

/// "Armies (*.Army)|*.Army|All Files|*.*" as the filters "Armies (*.Army)" and "All Files (*)".
QStringList filters_of(std::string const& pairs)
{
    QStringList const parts = to_qt(pairs).split('|');
    QStringList filters;
    for (qsizetype k = 0; k + 1 < parts.size(); k += 2) {
        QString const description = parts[k].section('(', 0, 0).trimmed();
        QString pattern = parts[k + 1];
        pattern.replace("*.*", "*").replace(';', ' ');
        filters << description + " (" + pattern + ")";
    }
    return filters;
}

bool too_long(QString const& path)
{
    constexpr int longest_name = 255; // no system allows more, whatever unit it counts
    if (QFileInfo{path}.fileName().size() > longest_name) return true;
    std::string const utf8 = path.toStdString();
    std::error_code error;
    auto const status = std::filesystem::symlink_status(std::u8string{utf8.begin(), utf8.end()}, error);
    return status.type() == std::filesystem::file_type::none && error == std::errc::filename_too_long;
}

/// Chooses icons by the names of files. The toolkit's own provider reads the beginning of every file in the folder,
/// which is slow on a slow disk, and never ends if a file does not respond.
class NameOnlyIcons : public QFileIconProvider {
public:
    using QFileIconProvider::icon;

    QIcon icon(QFileInfo const& file) const override { return icon(file.isDir() ? Folder : File); }
    QString type(QFileInfo const& file) const override
    {
        if (file.isDir()) return QFileDialog::tr("Folder");
        return QMimeDatabase{}.mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension).comment();
    }
};

/// Must not declare Q_OBJECT: the toolkit shows the desktop's dialog only for its own class.
class ChooserDialog : public QFileDialog {
public:
    ChooserDialog(FileChooser const& chooser, FileDialog const& request, QString const& folder, QWidget* parent)
        : QFileDialog(parent, to_qt(request.title), folder),
          chooser_(chooser)
    {
        setWindowModality(Qt::WindowModal);
        bool const saves = request.kind == FileDialogKind::save;
        setAcceptMode(saves ? AcceptSave : AcceptOpen);
        setFileMode(AnyFile);
        setOption(DontConfirmOverwrite);
        setNameFilters(filters_of(request.filter));
        // An army without a name is proposed as ".Army", which is a hidden file on some systems.
        if (!saves) setFilter(filter() | QDir::Hidden);
        auto const* const buttons = findChild<QDialogButtonBox*>("buttonBox");
        if (buttons == nullptr) return;
        accept_button_ = buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
        accept_button_->installEventFilter(this);
        connect(name_box(), &QLineEdit::textChanged, this, [this] { enable_button(); });
    }

    /// The chosen path; nothing if the dialog was cancelled.
    std::optional<FileChooser::Choice> choose()
    {
        if (exec() != Accepted) return std::nullopt;
        if (is_toolkits()) return FileChooser::Choice{settled_, true};
        if (selectedFiles().isEmpty()) return std::nullopt;
        return FileChooser::Choice{selectedFiles().first(), false};
    }

    void accept() override
    {
        QStringList const files = is_toolkits() ? selectedFiles() : QStringList{};
        // Choosing a folder opens it.
        if (files.isEmpty() || QFileInfo{files.first()}.isDir()) return QFileDialog::accept();
        if (auto const path = chooser_.settled(files.first())) {
            settled_ = *path;
            done(Accepted);
        }
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == accept_button_ && event->type() == QEvent::EnabledChange) enable_button();
        return QFileDialog::eventFilter(watched, event);
    }

private:
    QLineEdit* name_box() const { return findChild<QLineEdit*>("fileNameEdit"); }
    bool is_toolkits() const { return name_box() != nullptr; }
    /// The toolkit disables the button while the name is too long, without giving the reason.
    void enable_button()
    {
        if (!name_box()->text().isEmpty()) accept_button_->setEnabled(true);
    }

    FileChooser const& chooser_;
    QPushButton* accept_button_ = nullptr;
    QString settled_;
};

} // namespace

std::optional<QString> FileChooser::choose(Show const& show) const
{
    QString start = to_qt(request_.file_name);
    while (auto const choice = show(start)) {
        if (choice->settled) return choice->path;
        if (auto path = settled(choice->path)) return path;
        start = choice->path;
    }
    return std::nullopt;
}

std::optional<FileChooser::Choice> FileChooser::show_dialog(QString const& folder, QString const& start,
                                                            QWidget* window) const
{
    QFileInfo const info{QDir{folder}, start};
    bool const has_folder = !start.isEmpty() && info.dir().exists();
    NameOnlyIcons icons;
    UnchangedToolkitSettings const settings;
    ChooserDialog dialog{*this, request_, has_folder ? info.absolutePath() : folder, window};
    dialog.setIconProvider(&icons);
    if (!start.isEmpty()) dialog.selectFile(info.fileName());
    return dialog.choose();
}

QString FileChooser::completed(QString const& chosen) const
{
    QString const extension = to_qt(request_.default_extension);
    if (request_.kind == FileDialogKind::save) {
        return QFileInfo{chosen}.fileName().contains('.') ? chosen : chosen + extension;
    }
    return !QFileInfo::exists(chosen) && QFileInfo::exists(chosen + extension) ? chosen + extension : chosen;
}

std::optional<QString> FileChooser::settled(QString const& chosen) const
{
    QString const path = completed(chosen);
    QFileInfo const info{path};
    auto const refused = [&](std::string_view why, QString const& what) {
        std::string const text = std::string{why} + ": " + QDir::toNativeSeparators(what).toStdString();
        ask_({text, request_.title, Buttons::ok, Icon::exclamation, Answer::ok});
        return std::nullopt;
    };
    if (too_long(path)) return refused("The file name is too long", path);
    if (request_.folder_must_exist && !info.dir().exists()) {
        return refused(fault_text(Fault::folder_not_found), info.path());
    }
    if (info.isDir()) return refused(fault_text(Fault::is_a_folder), path);
    if (request_.file_must_exist && !info.exists()) return refused(fault_text(Fault::file_not_found), path);
    if (!request_.overwrite_prompt || !info.exists()) return path;
    QString const question = QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(info.fileName());
    Answer const answer =
        ask_({question.toStdString(), request_.title, Buttons::yes_no, Icon::exclamation, Answer::no});
    return answer == Answer::yes ? std::optional{path} : std::nullopt;
}

} // namespace warhost
