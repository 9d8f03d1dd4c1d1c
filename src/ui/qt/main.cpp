#include "ui/main.h"

#include "battle/random.h"
#include "ui/qt/dialogs/about_box.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/end_signals.h"
#include "ui/qt/help/help_key.h"
#include "ui/qt/help/help_viewer.h"
#include "ui/qt/look/colour_scheme.h"
#include "ui/qt/look/page_style.h"
#include "ui/qt/screens/window.h"

#include <QApplication>
#include <QIcon>

#include <chrono>
#include <memory>

namespace {

QIcon window_icon()
{
    QIcon icon;
    for (int const size : {16, 32, 48, 256}) icon.addFile(QString{":/icons/warhost-%1.png"}.arg(size));
    return icon;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication const application{argc, argv};
    QCoreApplication::setApplicationName("warhost");
    QGuiApplication::setDesktopFileName("warhost");
    QApplication::setStyle(new warhost::PageStyle);
    warhost::follow_colour_scheme();
    QGuiApplication::setWindowIcon(window_icon());
    // No display name: it would be appended to the title of every dialog.

    using namespace std::chrono;
    warhost::Generator random{static_cast<std::uint64_t>(system_clock::now().time_since_epoch() / nanoseconds{1})};
    warhost::QtDesktop desktop;
    QString const data_folder = QCoreApplication::applicationDirPath();
    std::unique_ptr<warhost::HelpViewer> manual;
    auto const show_manual = [&](auto const& place) {
        if (!manual) manual = std::make_unique<warhost::HelpViewer>(data_folder + "/help", desktop.window());
        manual->open(place);
    };
    desktop.help = show_manual;
    warhost::HelpKey const help_key{show_manual, show_manual};
    desktop.about = [&] { warhost::AboutBox::show_box(data_folder); };

    warhost::Main form{desktop, random};
    warhost::Window window{form, desktop};
    window.show();
    warhost::EndSignals const end_signals{[&] { window.close(); }};
    return QApplication::exec();
}
