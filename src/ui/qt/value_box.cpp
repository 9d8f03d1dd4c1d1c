#include "ui/qt/value_box.h"

#include "ui/qt/text.h"

#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStringList>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace warhost {

namespace {

constexpr int page_of_places = 10;

} // namespace

/// As setEditable does, but without making the popup, and a completer that would alter what is typed: many boxes, most
/// of them never opened, must not slow the start.
void ValueBox::put_line_edit()
{
    static QPointer<QCompleter> spare; // setLineEdit makes a completer where there is none
    if (spare.isNull()) spare = new QCompleter{QCoreApplication::instance()};
    auto* const edit = new QLineEdit{this};
    edit->setCompleter(spare);
    setLineEdit(edit);
    edit->setCompleter(nullptr);
}

ValueBox::ValueBox(ComboBox& field) : field_(field)
{
    put_line_edit();
    setInsertPolicy(NoInsert);
    // Leaving the box or pressing Enter chooses nothing, even when the typed text is in the list.
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this](QString const& typed) { field_.set_text(typed.toStdString()); });
    connect(this, &QComboBox::activated, this, [this](int item) { field_.choose(static_cast<std::size_t>(item)); });
}

int ValueBox::listed_place() const
{
    auto const& list = field_.list();
    auto const found = std::find(list.begin(), list.end(), field_.text());
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

void ValueBox::showPopup()
{
    QStringList proposals;
    for (auto const& item : field_.list()) proposals.push_back(to_qt(item));
    clear();
    addItems(proposals);
    setCurrentIndex(listed_place());
    setEditText(to_qt(field_.text())); // filling the list has put its first item there
    QComboBox::showPopup();
}

void ValueBox::step(int places)
{
    int const last = static_cast<int>(field_.list().size()) - 1;
    if (last < 0) return;
    int const place = listed_place();
    int const target = place < 0 ? (places > 0 ? 0 : last) : std::clamp(place + places, 0, last);
    if (target != place) field_.choose(static_cast<std::size_t>(target));
}

void ValueBox::keyPressEvent(QKeyEvent* event)
{
    if (event->modifiers().testFlag(Qt::AltModifier)) {
        QComboBox::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Up: step(-1); return;
    case Qt::Key_Down: step(1); return;
    case Qt::Key_PageUp: step(-page_of_places); return;
    case Qt::Key_PageDown: step(page_of_places); return;
    default: QComboBox::keyPressEvent(event);
    }
}

void ValueBox::wheelEvent(QWheelEvent* event)
{
    // A wheel that passes over the box on its way elsewhere changes nothing.
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    int const turn = event->angleDelta().y();
    if (turn != 0) step(turn > 0 ? -1 : 1);
    event->accept();
}

} // namespace warhost
