// The user's style, with outlines that can be seen in dark palettes.
#pragma once

#include <QProxyStyle>

namespace warhost {

/// A style that derives its outlines from the window's colour by darkening leaves boxes invisible on a dark one: there
/// every box, check mark and option gets an outline between the window's colour and the text's.
class OutlineStyle : public QProxyStyle {
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                       QWidget const* widget) const override;
    void drawComplexControl(ComplexControl control, QStyleOptionComplex const* option, QPainter* painter,
                            QWidget const* widget) const override;
};

} // namespace warhost
