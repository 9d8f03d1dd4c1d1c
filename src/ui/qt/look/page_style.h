// The style of all windows: flat boxes with light outlines, one strong button, a ring around the focused widget.
#pragma once

#include <QProxyStyle>

class QLineEdit;
class QPushButton;

namespace warhost {

/// Paints in colours(), in lengths that grow with the window's font. Every dialog gets the page palette.
class PageStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// base: the style that paints everything else.
    explicit PageStyle(QString const& base = "fusion") : QProxyStyle(base) {}

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                       QWidget const* widget) const override;
    void drawControl(ControlElement element, QStyleOption const* option, QPainter* painter,
                     QWidget const* widget) const override;
    void drawComplexControl(ComplexControl control, QStyleOptionComplex const* option, QPainter* painter,
                            QWidget const* widget) const override;
    QRect subElementRect(SubElement element, QStyleOption const* option, QWidget const* widget) const override;
    QRect subControlRect(ComplexControl control, QStyleOptionComplex const* option, SubControl part,
                         QWidget const* widget) const override;
    int pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const override;
    int styleHint(StyleHint hint, QStyleOption const* option, QWidget const* widget,
                  QStyleHintReturn* data) const override;
    QSize sizeFromContents(ContentsType type, QStyleOption const* option, QSize const& contents,
                           QWidget const* widget) const override;
    QIcon standardIcon(StandardPixmap which, QStyleOption const* option, QWidget const* widget) const override;
};

/// A box without an outline, for the cells of a table.
void make_cell(QLineEdit& box);

/// The button to press next. In dialogs the default button is strong without this.
void set_strong(QPushButton& button, bool strong);

/// Another widget draws the focus rings of the check boxes and options in this window.
void leave_rings_to_others(QWidget& window);

/// Gives a widget page_palette(), now and after each change of the user's palette. The widget must already be in its
/// window.
void follow_page_palette(QWidget& widget);

} // namespace warhost
