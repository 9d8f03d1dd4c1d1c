// A box for a name or a number: shows how a long name begins, fits a long number, and marks a text that counts as
// something else than it says.
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

    /// What the text is written in. A number that is too wide for the box is written regular and smaller.
    void set_type(Type type);

    /// What a screen reader says of a number beside its name.
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

private:
    QRect room() const;
    bool is_cut() const;
    void fit();
    void fit_number();
    void mark_reading();
    void describe();

    Holds holds_;
    Type type_ = type::plain;
    std::function<QString(QString const&)> reading_;
    QString description_;
    QString counts_as_; // empty when the text is what it counts as
};

} // namespace warhost
