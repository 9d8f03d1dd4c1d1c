// What several dialogs are made of.
#pragma once

#include <QLabel>

namespace warhost {

/// A hairline between what stands on either side of it.
class Rule : public QWidget {
    Q_OBJECT

public:
    explicit Rule(Qt::Orientation orientation, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A plain text that can be selected and copied. spoken: its name for a screen reader.
QLabel* selectable_text(QString const& text, char const* spoken);

} // namespace warhost
