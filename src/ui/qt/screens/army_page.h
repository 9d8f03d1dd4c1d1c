// The army screen: one line along the top, the unit rows and the categories below it at the left, the misc panel at
// the right.
#pragma once

#include "ui/army_controls.h"
#include "ui/qt/screens/screen_area.h"
#include "ui/qt/widgets/widget_maker.h"

#include <functional>

class QLayout;

namespace warhost {

class MiscPanel;

class ArmyPage : public ScreenArea {
    Q_OBJECT

public:
    /// content: the part of the screen that is laid out, in pixels. For the other two see MiscPanel.
    ArmyPage(ArmyControls& controls, Scale const& scale, QSize content, std::function<bool()> const& add_misc_row,
             std::function<void(int)> const& show_help, QWidget* parent);

    MiscPanel& misc_panel() const { return *misc_panel_; }

private:
    QLayout* top_line();
    QLayout* left_column();
    QLayout* middle_column();
    QWidget* units();
    QLayout* ratio_line();
    QWidget* category(int index, Frame& frame, int width, TextLabel* note = nullptr);
    QWidget* experience();

    ArmyControls& controls_;
    WidgetMaker make_;
    int option_height_ = 0; // the same in all frames
    MiscPanel* misc_panel_;
};

} // namespace warhost
