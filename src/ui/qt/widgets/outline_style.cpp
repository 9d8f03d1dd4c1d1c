#include "ui/qt/widgets/outline_style.h"

#include "ui/qt/widgets/contrast.h"

#include <QPainter>
#include <QStyleOption>

namespace warhost {

namespace {

enum class Shape { box, circle };

void outline(QStyleOption const& option, QPainter& painter, Shape shape)
{
    QColor const window = option.palette.color(QPalette::Window);
    QColor const text = option.palette.color(QPalette::WindowText);
    if (window.lightness() >= text.lightness()) return;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(mixture(window, text, 50));
    QRectF const frame = QRectF{option.rect}.adjusted(0.5, 0.5, -0.5, -0.5);
    if (shape == Shape::circle) painter.drawEllipse(frame);
    else painter.drawRoundedRect(frame, 2, 2);
    painter.restore();
}

} // namespace

void OutlineStyle::drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                                 QWidget const* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_PanelLineEdit:
        // The line edit of a combo box has no frame of its own.
        if (auto const* const frame = qstyleoption_cast<QStyleOptionFrame const*>(option);
            frame != nullptr && frame->lineWidth > 0) {
            outline(*option, *painter, Shape::box);
        }
        break;
    case PE_IndicatorCheckBox:
    case PE_PanelButtonCommand: outline(*option, *painter, Shape::box); break;
    case PE_IndicatorRadioButton: outline(*option, *painter, Shape::circle); break;
    default: break;
    }
}

void OutlineStyle::drawComplexControl(ComplexControl control, QStyleOptionComplex const* option, QPainter* painter,
                                      QWidget const* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) outline(*option, *painter, Shape::box);
}

} // namespace warhost
