// A box for a name or a number: shows the beginning of a long name, fits a long number, and marks a text that counts
// as a different number.
#pragma once

#include "ui/qt/look/type.h"

#include <QLineEdit>

#include <functional>

namespace warhost {

class EntryBox : public QLineEdit {
    Q_OBJECT

public:
    enum class Holds { name, number };

    explicit EntryBox(Holds holds, QWidget* parent = nullptr);

    /// The size and weight of the text. A number that is too wide for the box is shown smaller and in regular weight.
    void set_type(Type type);

    /// What a screen reader announces about a number in addition to its name.
    void set_description(QString const& description);

    /// reading: the number that a text counts as, in digits. A text that is not that number is marked.
    void set_reading(std::function<QString(QString const&)> reading);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QRect room() const;
    bool is_cut() const;
    void fit();
    void fit_number();
    void mark_reading();
    void describe();

    Holds holds_;
    bool clicked_into_ = false;
    Type type_ = type::plain;
    std::function<QString(QString const&)> reading_;
    QString description_;
    QString counts_as_; // empty if the text counts as itself
};

} // namespace warhost
