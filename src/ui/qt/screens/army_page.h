// The army screen: one line along the top; below it the unit rows and the categories on the left, the misc panel on
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
    using Reading = std::function<QString(QString const&)>;

    /// level_reading: the number that a text counts as for the troop level, in digits. content: the part of the screen
    /// that is laid out, in pixels. For the other two see MiscPanel.
    ArmyPage(ArmyControls& controls, Reading const& level_reading, Scale const& scale, QSize content,
             std::function<bool()> const& add_misc_row, QWidget* parent);

    MiscPanel& misc_panel() const { return *misc_panel_; }

private:
    QLayout* top_line(Scale const& scale);
    QLayout* left_column(Reading const& level_reading);
    QLayout* middle_column();
    QWidget* units();
    QLayout* ratio_line();
    /// top: of the section, in pixels of the base size.
    QWidget* category(int index, Frame& frame, int top, int width, TextLabel* note = nullptr);
    QWidget* experience(Reading const& level_reading);
    ValueBox* result_box(ComboBox& field, QString const& spoken, int width, int height);
    void propose_units();

    ArmyControls& controls_;
    WidgetMaker make_;
    MiscPanel* misc_panel_;
};

} // namespace warhost
