// pictures DATA FOLDER: takes the pictures of the manual and the README from the real window.

#include "battle/random.h"
#include "ui/main.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/dialogs/report_box.h"
#include "ui/qt/look/colours.h"
#include "ui/qt/look/page_style.h"
#include "ui/qt/screens/window.h"

#include <QApplication>
#include <QPalette>

#include <iostream>
#include <optional>
#include <string>

namespace {

using namespace warhost;

/// Gives the answers that the pictures need: armies from data/armies, 100,000 battles.
class Photographer final : public QtDesktop {
public:
    explicit Photographer(QString folder) : folder_(std::move(folder)) {}

    std::string army;

    std::optional<std::string> file_dialog(FileDialog const& /*dialog*/) override { return army; }
    std::string input_box(InputBox const& /*box*/) override { return "100000"; }
    void show_report(Message const& report, Tally const& tally, Odds const& odds) override
    {
        ReportBox box{report, tally, odds, number_format(), nullptr};
        take(box, "simulation_report");
    }
    NumberFormat number_format() override { return {}; }
    Answer message_box(Message const& box) override
    {
        std::cerr << box.text << '\n';
        return box.default_answer;
    }

    void take(QWidget& widget, QString const& name)
    {
        widget.show();
        QCoreApplication::processEvents();
        if (QWidget* const focused = widget.focusWidget()) focused->clearFocus(); // no cursor, no ring
        QString const path = folder_ + "/" + name + ".png";
        if (!widget.grab().save(path)) std::cerr << "Cannot write " << path.toStdString() << '\n';
    }

private:
    QString folder_;
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::cerr << "Usage: pictures DATA FOLDER\n";
        return EXIT_FAILURE;
    }
    QApplication const application{argc, argv};
    QApplication::setStyle(new PageStyle);
    QFont font{"DejaVu Sans"};
    font.setPixelSize(11);
    QApplication::setFont(font);

    Photographer desktop{argv[2]};
    Generator random{4};
    Main form{desktop, random};
    Window window{form, desktop};
    auto const load = [&](int side, char const* name) {
        form.TabStrip.choose(side);
        desktop.army = std::string{argv[1]} + "/armies/" + name;
        form.cmdLoadArmy.press();
    };
    load(tab_side_b, "split_tusk.Army");
    load(tab_side_a, "korrins_anvil.Army");
    desktop.take(window, "army_screen");

    form.TabStrip.choose(tab_combat);
    form.cmdRollAll.press();
    desktop.take(window, "combat_screen");
    form.cmdSimulate.press();

    QApplication::setPalette(dark_palette());
    form.TabStrip.choose(tab_side_a);
    desktop.take(window, "dark_theme");
    return EXIT_SUCCESS;
}
