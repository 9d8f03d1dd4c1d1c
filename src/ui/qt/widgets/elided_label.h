// A label for a text of any length: cut short where there is no room, and whole as its tool tip then.
#pragma once

#include <QLabel>

namespace warhost {

/// Tells the whole of a text that a widget shows cut short, as its tool tip and to screen readers; empty for none.
void tell_whole(QWidget& widget, QString const& text);

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void set_whole_text(QString const& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fit();

    QString whole_;
};

} // namespace warhost
