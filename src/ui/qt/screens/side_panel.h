// The casualties of one side: its unit rows, the percentage it loses, and the button that applies the losses.
#pragma once

#include "ui/combat_controls.h"
#include "ui/qt/screens/battle_signs.h"
#include "ui/qt/widgets/caption_frame.h"

#include <QString>

#include <array>

class QLabel;
class QPushButton;

namespace warhost {

class EntryBox;
class WidgetMaker;

class SidePanel : public CaptionFrame {
    Q_OBJECT

public:
    /// Index: 0 for Side A, 1 for Side B. top: of its head, in pixels of the base size.
    SidePanel(CombatControls& controls, WidgetMaker& make, int Index, double top, QWidget* parent);

    void show_signs(BattleSigns const& signs);

private:
    QString share(BattleSigns const& signs) const;
    void make_table(WidgetMaker& make, double top);
    void show_row(int row);

    CombatControls& controls_;
    int Index_;
    bool applied_ = false;
    QLabel* share_;
    QPushButton* apply_;
    std::array<EntryBox*, unit_rows> counts_{};
    std::array<EntryBox*, unit_rows> losses_{};
};

} // namespace warhost
