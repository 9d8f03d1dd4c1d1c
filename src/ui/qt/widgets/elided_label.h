// A label for a text of any length: shortened if there is no room; the tool tip then shows all of it.
#pragma once

#include <QLabel>

namespace warhost {

/// Sets the full text of a widget that shows it shortened, as its tool tip and for screen readers; empty for none.
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
