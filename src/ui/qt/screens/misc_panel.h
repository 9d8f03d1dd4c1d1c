// The panel of misc modifiers and feats.
#pragma once

#include "ui/army_controls.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/widgets/caption_frame.h"

#include <functional>
#include <vector>

class QCheckBox;

namespace warhost {

class ValueBox;

/// The fields determine the positions of the rows, which do not depend on the size of the panel. A row gets its widgets
/// when the panel is first tall enough to show it.
class MiscPanel : public CaptionFrame {
    Q_OBJECT

public:
    /// add_row makes the next row of the list; it returns false if there is none.
    MiscPanel(ArmyControls& controls, Scale const& scale, std::function<bool()> add_row, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Row {
        int index;
        QCheckBox* box;
        ValueBox* value;
    };

    void make_rows_in_sight();
    void make_row(int index);
    void show_ticked(Row const& row) const;
    void fit_caption(Row const& row) const;

    ArmyControls& controls_;
    Scale scale_;
    std::function<bool()> add_row_;
    std::vector<Row> rows_;
};

} // namespace warhost
