// The one style of all windows: flat boxes with quiet outlines, one strong button, a ring around what has the focus.
#pragma once

#include <QProxyStyle>

class QLineEdit;
class QPushButton;

namespace warhost {

/// Paints in colours(), in lengths that grow with the window's font. Every dialog gets the page palette.
class PageStyle : public QProxyStyle {
    Q_OBJECT

public:
    /// base: the style that paints what this one leaves alone.
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

/// The button to press next. In dialogs the default button is strong by itself.
void set_strong(QPushButton& button, bool strong);

/// Check boxes and options of this window get their rings from somebody else.
void leave_rings_to_others(QWidget& window);

/// Gives a widget page_palette(), also after the user's palette has changed. The widget must be in its window already.
void follow_page_palette(QWidget& widget);

} // namespace warhost
