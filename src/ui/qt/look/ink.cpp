#include "ui/qt/look/ink.h"

#include "ui/qt/look/colours.h"

#include <QVariant>
#include <QWidget>

namespace warhost {

namespace {

constexpr char const* ink_property = "ink";

QColor colour_of(Ink ink)
{
    Colours const& of = colours();
    switch (ink) {
    case Ink::dim: return of.dim;
    case Ink::first_side: return of.side[0];
    case Ink::second_side: return of.side[1];
    case Ink::hint: return of.hint;
    case Ink::text: break;
    }
    return of.text;
}

void write_in(QWidget& widget, Ink ink)
{
    QPalette own;
    for (auto const group : {QPalette::Active, QPalette::Inactive}) {
        for (auto const role : {QPalette::WindowText, QPalette::Text}) own.setColor(group, role, colour_of(ink));
    }
    widget.setPalette(own);
}

} // namespace

void set_ink(QWidget& widget, Ink ink)
{
    QVariant const before = widget.property(ink_property);
    if (before.isValid() ? before.toInt() == static_cast<int>(ink) : ink == Ink::text) return;
    widget.setProperty(ink_property, static_cast<int>(ink));
    write_in(widget, ink);
}

void renew_inks(QWidget const& above)
{
    for (QWidget* const widget : above.findChildren<QWidget*>()) {
        QVariant const ink = widget->property(ink_property);
        if (ink.isValid()) write_in(*widget, static_cast<Ink>(ink.toInt()));
    }
}

} // namespace warhost
