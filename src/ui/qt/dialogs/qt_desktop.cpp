#include "ui/qt/dialogs/qt_desktop.h"

#include "ui/qt/dialogs/answer_box.h"
#include "ui/qt/dialogs/file_chooser.h"
#include "ui/qt/dialogs/progress_dialog.h"
#include "ui/qt/dialogs/report_box.h"
#include "ui/qt/look/type.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/text.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QStandardPaths>
#include <QUrl>

#include <chrono>
#include <cstdlib>
#include <future>
#include <system_error>

namespace warhost {

Answer QtDesktop::message_box(Message const& box)
{
    QWidget* const dialog = QApplication::activeModalWidget();
    return AnswerBox{box, dialog != nullptr ? dialog : window_}.ask();
}

void QtDesktop::show_report(Message const& report, Tally const& tally, Odds const& odds)
{
    if (!is_closed_) ReportBox{report, tally, odds, number_format(), window_}.exec();
}

void QtDesktop::show_progress(std::int32_t fought, std::int32_t battles, Tally const& so_far)
{
    if (!progress_) progress_.emplace(window_, number_format());
    progress_->show(fought, battles, so_far);
    if (fought == battles) progress_.reset();
}

void QtDesktop::wait_for(std::function<void()> const& work)
{
    using namespace std::chrono_literals;
    std::future<void> done;
    try {
        done = std::async(std::launch::async, work);
    } catch (std::system_error const&) { // no more threads
        return work();
    }
    if (done.wait_for(500ms) != std::future_status::ready) {
        ProgressDialog waiting{window_, program_title, "Waiting"};
        waiting.setObjectName("waitingDialog");
        while (done.wait_for(50ms) != std::future_status::ready) {
            waiting.show_share(-1, "Waiting for the disk or the network");
        }
    }
    done.get();
}

std::string QtDesktop::input_box(InputBox const& box)
{
    QInputDialog input{window_};
    input.setWindowModality(Qt::WindowModal);
    input.setWindowTitle(to_qt(box.title));
    input.setLabelText(to_qt(box.prompt));
    input.setTextValue(to_qt(box.default_text));
    input.findChild<QLineEdit*>()->setMaxLength(longest_text);
    set_type(*input.findChild<QLabel*>(), input.font(), type::message);
    return input.exec() == QDialog::Accepted ? input.textValue().toStdString() : std::string{};
}

/// The folder used last; else the samples for loading, and Documents for saving.
QString QtDesktop::folder_for(FileDialogKind kind)
{
    bool const saves = kind == FileDialogKind::save;
    QString const samples = QDir::fromNativeSeparators(to_qt(program_directory())) + "/armies";
    QString chosen;
    wait_for([&] {
        for (QString const& folder : {saves ? QString{} : samples, last_folder_}) {
            QFileInfo const info{folder};
            if (!folder.isEmpty() && info.isDir() && (!saves || (folder != samples && info.isWritable())))
                chosen = folder;
        }
    });
    return chosen.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) : chosen;
}

std::optional<std::string> QtDesktop::file_dialog(FileDialog const& dialog)
{
    FileChooser const chooser{dialog, [this](Message const& box) { return message_box(box); }};
    auto const path = chooser.choose(
        [&](QString const& start) { return chooser.show_dialog(folder_for(dialog.kind), start, window_); });
    if (!path) return std::nullopt;
    last_folder_ = QFileInfo{*path}.absolutePath();
    return QDir::toNativeSeparators(*path).toStdString();
}

bool QtDesktop::minimized() { return window_ != nullptr && window_->isMinimized(); }

ClientArea QtDesktop::client_area()
{
    return {client_.width() * scale_.twips_per_pixel(), client_.height() * scale_.twips_per_pixel()};
}

void QtDesktop::close_window()
{
    if (window_ != nullptr) window_->close();
}

void QtDesktop::end_program() { std::_Exit(EXIT_SUCCESS); }

NumberFormat QtDesktop::number_format()
{
    QLocale const locale = QLocale::system();
    return {locale.decimalPoint().toStdString(), locale.groupSeparator().toStdString()};
}

std::string QtDesktop::program_directory()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString();
}

void QtDesktop::show_help(int topic)
{
    if (help) help(topic);
}

bool QtDesktop::open_address(std::string const& address) { return QDesktopServices::openUrl(QUrl{to_qt(address)}); }

void QtDesktop::show_about()
{
    if (about) about();
}

} // namespace warhost
