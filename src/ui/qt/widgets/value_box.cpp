#include "ui/qt/widgets/value_box.h"

#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/entry_box.h"
#include "ui/qt/widgets/text.h"

#include <QAccessibleWidget>
#include <QCompleter>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QStringList>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>

namespace warhost {

namespace {

constexpr int page_of_places = 10;

/// The interface for screen readers: the toolkit's own reports the text of an editable box as its name.
class SpokenBox : public QAccessibleWidget {
public:
    explicit SpokenBox(QComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? box_.currentText() : QAccessibleWidget::text(kind);
    }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int) const override { return QAccessible::queryAccessibleInterface(box_.lineEdit()); }
    int indexOfChild(QAccessibleInterface const* child) const override
    {
        return child->object() == box_.lineEdit() ? 0 : -1;
    }
    QAccessible::State state() const override
    {
        auto state = QAccessibleWidget::state();
        state.expandable = state.hasPopup = state.editable = true;
        return state;
    }
    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(QString const& name) override
    {
        if (name == showMenuAction()) box_.showPopup();
        else QAccessibleWidget::doAction(name);
    }

private:
    QComboBox& box_;
};

QAccessibleInterface* spoken_box(QString const&, QObject* object)
{
    auto* const box = dynamic_cast<ValueBox*>(object);
    return box != nullptr ? new SpokenBox{*box} : nullptr;
}

} // namespace

/// Like setEditable, but without creating the popup, and without a completer, which would alter the typed text. Most of
/// the many boxes are never opened; they must not slow down the start.
void ValueBox::put_line_edit()
{
    static QPointer<QCompleter> spare; // setLineEdit would create a completer if there were none
    if (spare.isNull()) spare = new QCompleter{QCoreApplication::instance()};
    entry_ = new EntryBox{EntryBox::Holds::number, this};
    entry_->setCompleter(spare);
    setLineEdit(entry_);
    entry_->setCompleter(nullptr);
}

ValueBox::ValueBox(ComboBox& field, QWidget* parent) : QComboBox(parent), field_(field)
{
    static bool const installed = (QAccessible::installFactory(spoken_box), true);
    static_cast<void>(installed);
    put_line_edit();
    setInsertPolicy(NoInsert);
    // Leaving the box or pressing Enter selects nothing, even if the typed text is in the list.
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    setFocusPolicy(Qt::StrongFocus); // by default the wheel would focus the box and then change it
    connect(this, &QComboBox::activated, this, [this](int place) {
        if (takes_input(*this)) field_.choose(place);
    });
}

void ValueBox::showPopup()
{
    QStringList proposals;
    proposals.reserve(field_.list_size());
    for (int place = 0; place < field_.list_size(); ++place) proposals.push_back(to_qt(field_.item(place)));
    QSignalBlocker const filling{lineEdit()};
    clear();
    addItems(proposals);
    setCurrentIndex(field_.listed_index());
    setEditText(to_qt(field_.text())); // filling the list has set the text to its first item
    QComboBox::showPopup();
}

void ValueBox::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.subControls.setFlag(QStyle::SC_ComboBoxArrow, field_.list_size() > 0);
    QStylePainter{this}.drawComplexControl(QStyle::CC_ComboBox, option);
}

void ValueBox::step(int places)
{
    int const last = field_.list_size() - 1;
    if (last < 0) return;
    int const place = field_.listed_index();
    int const target = place < 0 ? (places > 0 ? 0 : last) : std::clamp(place + places, 0, last);
    if (target != place) field_.choose(target);
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
    // Ignored: scrolling over the box must not change it.
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    int const turn = event->angleDelta().y();
    if (turn != 0) step(turn > 0 ? -1 : 1);
    event->accept();
}

} // namespace warhost
