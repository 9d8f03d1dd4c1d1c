#include "ui/qt/widgets/option_choice.h"

#include <QButtonGroup>
#include <QKeyEvent>

#include <algorithm>

namespace warhost {

OptionChoice::OptionChoice(QWidget* parent) : QRadioButton(parent)
{
    // The button stays auto-exclusive, which makes it a radio button for screen readers; the group overrides this.
    auto* group = parent->findChild<QButtonGroup*>(QString{}, Qt::FindDirectChildrenOnly);
    if (group == nullptr) {
        group = new QButtonGroup{parent};
        group->setExclusive(false);
    }
    group->addButton(this);
}

std::vector<OptionChoice*> OptionChoice::group() const
{
    std::vector<OptionChoice*> members;
    for (QObject* const child : parent()->children()) {
        if (auto* const member = dynamic_cast<OptionChoice*>(child)) members.push_back(member);
    }
    return members;
}

void OptionChoice::show_selected(bool selected)
{
    setChecked(selected);
    if (!selected && std::ranges::any_of(group(), &OptionChoice::isChecked)) return;
    for (OptionChoice* const member : group()) {
        member->setFocusPolicy(!selected || member == this ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void OptionChoice::nextCheckState() { setChecked(true); }

void OptionChoice::keyPressEvent(QKeyEvent* event)
{
    int step = 0;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left: step = -1; break;
    case Qt::Key_Down:
    case Qt::Key_Right: step = 1; break;
    default: QRadioButton::keyPressEvent(event); return;
    }
    auto const members = group();
    auto const count = static_cast<int>(members.size());
    auto const place = static_cast<int>(std::find(members.begin(), members.end(), this) - members.begin());
    OptionChoice* const neighbour = members[static_cast<std::size_t>((place + step + count) % count)];
    neighbour->click();
    neighbour->setFocus(Qt::OtherFocusReason);
}

} // namespace warhost
