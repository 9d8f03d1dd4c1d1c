// An editable box with a list of proposals, which is read from its field when needed and not stored.
#pragma once

#include "ui/fields.h"

#include <QComboBox>

namespace warhost {

class EntryBox;

/// Its arrow is dim while the list is empty.
class ValueBox : public QComboBox {
    Q_OBJECT

public:
    /// The field must outlive the box's use.
    ValueBox(ComboBox& field, QWidget* parent);

    EntryBox& entry() const { return *entry_; }

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void put_line_edit();
    void step(int places);

    ComboBox& field_;
    EntryBox* entry_ = nullptr;
};

} // namespace warhost
