#include "ui/qt/look/page_style.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/contrast.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/look/line_icons.h"
#include "ui/qt/look/scale.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDialog>
#include <QEvent>
#include <QFrame>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyleOption>
#include <QTextCharFormat>
#include <QToolButton>

namespace warhost {

namespace {

constexpr char const* cell_property = "cell";
constexpr char const* strong_property = "strong";
constexpr char const* ringless_property = "ringless";

// Pixels of the base size.
constexpr double field_corner = 3;
constexpr double button_corner = 4;
constexpr int ring_width = 2;
constexpr double inner_ring_distance = 2.5; // on a strong button
constexpr double inner_ring_width = 1;
constexpr int indicator_size = 14;
constexpr int label_gap = 6;
constexpr QSize dialog_button{80, 26}; // at least
constexpr int dialog_margin = 16;
constexpr int dialog_rows_gap = 12;
constexpr int dialog_columns_gap = 8;
constexpr int message_sign = 32;
constexpr int tool_icon = 16;
constexpr int scroll_bar_width = 12;
constexpr int arrow_width = 13;
constexpr int text_margin = 3; // in addition to the two pixels that the toolkit keeps free in a text box

/// Restores the painter at its end.
class Pen {
public:
    Pen(QPainter& painter, QWidget const* widget, bool enabled)
        : painter_(painter),
          scale_(scale_of(widget)),
          enabled_(enabled)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
    }
    Pen(Pen const&) = delete;
    Pen& operator=(Pen const&) = delete;
    ~Pen() { painter_.restore(); }

    double length(double base) const { return scale_.factor() * base; }
    double line() const { return scale_.line(); }

    void fill(QRectF const& room, double corner, QColor const& colour)
    {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(shown(colour));
        painter_.drawRoundedRect(room, length(corner), length(corner));
    }

    /// width: pixels.
    void outline(QRectF const& room, double corner, QColor const& colour, double width)
    {
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen{shown(colour), width});
        double const half = width / 2;
        painter_.drawRoundedRect(room.adjusted(half, half, -half, -half), length(corner), length(corner));
    }

    /// A light outline with a darker lower edge, like that of a key.
    void raised_outline(QRectF const& room, double corner, QColor const& quiet, QColor const& firm)
    {
        outline(room, corner, quiet, line());
        painter_.save();
        painter_.setClipRect(QRectF{room.left(), room.bottom() - line(), room.width(), line()}, Qt::IntersectClip);
        outline(room, corner, firm, line());
        painter_.restore();
    }

    void ring(QRectF const& room, double corner) { outline(room, corner, colours().ring, length(ring_width)); }

    void stroke(QPolygonF const& line, QColor const& colour, double width)
    {
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen{shown(colour), length(width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        painter_.drawPolyline(line);
    }

private:
    QColor shown(QColor const& colour) const { return in_state(enabled_, colour); }

    QPainter& painter_;
    Scale scale_;
    bool enabled_;
};

bool is_in(QStyleOption const& option, QStyle::StateFlag state) { return option.state.testFlag(state); }

bool is_cell(QWidget const* widget) { return widget != nullptr && widget->property(cell_property).toBool(); }

bool has_rings_above(QWidget const* widget)
{
    return widget != nullptr && widget->window()->property(ringless_property).toBool();
}

bool is_dialog(QWidget const* widget) { return qobject_cast<QDialog const*>(widget) != nullptr; }

bool is_strong(QStyleOption const& option, QWidget const* widget)
{
    if (!is_in(option, QStyle::State_Enabled)) return false;
    if (widget != nullptr && widget->property(strong_property).toBool()) return true;
    auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) && widget != nullptr &&
           is_dialog(widget->window());
}

void draw_cell(QStyleOption const& option, QPainter& painter, QWidget const* widget)
{
    Colours const& of = colours();
    bool const hovered = is_in(option, QStyle::State_MouseOver) && is_in(option, QStyle::State_Enabled);
    QColor const base = is_in(option, QStyle::State_ReadOnly) ? of.page : of.field;
    painter.fillRect(option.rect, hovered ? mixture(base, of.strong, 8) : base);
    if (is_in(option, QStyle::State_HasFocus)) Pen{painter, widget, true}.ring(option.rect, field_corner);
}

void draw_field(QStyleOption const& option, QPainter& painter, QWidget const* widget)
{
    Colours const& of = colours();
    Pen pen{painter, widget, is_in(option, QStyle::State_Enabled)};
    bool const read_only = is_in(option, QStyle::State_ReadOnly);
    pen.fill(option.rect, field_corner, read_only ? of.band : of.field);
    if (is_in(option, QStyle::State_HasFocus)) return pen.ring(option.rect, field_corner);
    if (read_only && !of.high_contrast) return;
    bool const hovered = is_in(option, QStyle::State_MouseOver) && !read_only;
    pen.raised_outline(option.rect, field_corner, hovered ? of.firm : of.soft, of.firm);
}

void draw_button(QStyleOption const& option, QPainter& painter, QWidget const* widget)
{
    Colours const& of = colours();
    bool const strong = is_strong(option, widget);
    bool const pressed = is_in(option, QStyle::State_Sunken) || is_in(option, QStyle::State_On);
    bool const hovered = is_in(option, QStyle::State_MouseOver) && is_in(option, QStyle::State_Enabled);
    bool const focused = is_in(option, QStyle::State_HasFocus);
    Pen pen{painter, widget, is_in(option, QStyle::State_Enabled)};
    QRectF const room = option.rect;
    if (strong) {
        pen.fill(room, button_corner, mixture(of.strong, Qt::black, pressed ? 18 : hovered ? 6 : 0));
        pen.outline(room, button_corner, mixture(of.strong, Qt::black, of.high_contrast ? 0 : 12), pen.line());
        if (!focused) return;
        double const inside = pen.length(inner_ring_distance);
        pen.outline(room.adjusted(inside, inside, -inside, -inside), button_corner - 1, of.text_on_strong,
                    pen.length(inner_ring_width));
        return;
    }
    pen.fill(room, button_corner, mixture(of.button, of.text, pressed ? 14 : hovered ? (of.dark ? 7 : 4) : 0));
    if (focused) pen.ring(room, button_corner);
    else pen.raised_outline(room, button_corner, of.soft, of.firm);
}

/// The square of a check box or the circle of an option, with its tick or dot.
void draw_indicator(QStyleOption const& option, QPainter& painter, QWidget const* widget, bool round)
{
    Colours const& of = colours();
    Pen pen{painter, widget, is_in(option, QStyle::State_Enabled)};
    QRectF const room = option.rect;
    double const corner = round ? indicator_size / 2.0 : field_corner;
    bool const on = is_in(option, QStyle::State_On);
    bool const hovered = is_in(option, QStyle::State_MouseOver) && is_in(option, QStyle::State_Enabled);
    pen.fill(room, corner, on ? of.strong : of.field);
    if (!on || of.high_contrast) pen.outline(room, corner, hovered ? of.ring : of.firm, pen.line());
    if (is_in(option, QStyle::State_NoChange)) {
        double const middle = room.center().y();
        QPointF const from{room.left() + room.width() * 0.28, middle};
        QPointF const to{room.right() - room.width() * 0.28, middle};
        pen.stroke(QPolygonF{QList<QPointF>{from, to}}, of.text, 1.8);
    }
    if (!on) return;
    if (round) {
        double const free = room.width() * 0.32;
        pen.fill(room.adjusted(free, free, -free, -free), indicator_size / 2.0, of.text_on_strong);
        return;
    }
    auto const at = [&](double x, double y) {
        return QPointF{room.left() + room.width() * x, room.top() + room.height() * y};
    };
    pen.stroke({{at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.31)}}, of.text_on_strong, 1.8);
}

/// The arrow of a tree: to the right while the branch is closed, otherwise down.
void draw_branch(QStyleOption const& option, QPainter& painter, QWidget const* widget)
{
    if (!is_in(option, QStyle::State_Children)) return;
    Colours const& of = colours();
    Pen pen{painter, widget, is_in(option, QStyle::State_Enabled)};
    QPointF const centre = QRectF{option.rect}.center();
    double const across = pen.length(3);
    double const along = pen.length(1.5);
    auto const at = [&](double x, double y) {
        return centre + (is_in(option, QStyle::State_Open) ? QPointF{y, x} : QPointF{x, y});
    };
    pen.stroke({{at(-along, -across), at(along, 0), at(-along, across)}},
               is_in(option, QStyle::State_Selected) ? of.text_on_strong : of.dim, 1.5);
}

/// Without a list to open, the arrow is not among the option's parts.
void draw_combo_box(QStyle const& style, QStyleOptionComplex const& option, QPainter& painter, QWidget const* widget)
{
    Colours const& of = colours();
    draw_field(option, painter, widget);
    QRectF const room = style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, widget);
    Pen pen{painter, widget, is_in(option, QStyle::State_Enabled)};
    QPointF const centre = room.center() - QPointF{pen.length(1), 0};
    double const across = pen.length(3);
    double const down = pen.length(1.5);
    bool const offers = option.subControls.testFlag(QStyle::SC_ComboBoxArrow);
    pen.stroke({{centre + QPointF{-across, -down}, centre + QPointF{0, down}, centre + QPointF{across, -down}}},
               offers ? mixture(of.page, of.text, 70) : of.soft, 1.5);
}

/// The background of a scroll bar: that of what it scrolls.
QColor ground_of(QWidget const* bar, QPalette const& palette)
{
    for (auto const* above = bar; above != nullptr; above = above->parentWidget()) {
        if (auto const* const area = qobject_cast<QAbstractScrollArea const*>(above))
            return area->viewport()->palette().color(area->viewport()->backgroundRole());
    }
    return palette.color(QPalette::Window);
}

void draw_scroll_bar(QStyle const& style, QStyleOptionComplex const& option, QPainter& painter, QWidget const* widget)
{
    Colours const& of = colours();
    painter.fillRect(option.rect, ground_of(widget, option.palette));
    auto const* const bar = qstyleoption_cast<QStyleOptionSlider const*>(&option);
    if (bar == nullptr || bar->maximum <= bar->minimum) return;
    Pen pen{painter, widget, true};
    double const free = pen.length(2);
    QRectF const slider =
        QRectF{style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, widget)}.adjusted(
            free, free, -free, -free);
    bool const held = is_in(option, QStyle::State_MouseOver) || is_in(option, QStyle::State_Sunken);
    pen.fill(slider, scroll_bar_width / 3.0, held ? of.dim : of.firm);
}

QRect scroll_bar_part(QStyle const& style, QStyleOptionSlider const& bar, QStyle::SubControl part)
{
    bool const lies = bar.orientation == Qt::Horizontal;
    int const length = lies ? bar.rect.width() : bar.rect.height();
    std::int64_t const range = std::int64_t{bar.maximum} - bar.minimum;
    std::int64_t const whole = range + bar.pageStep;
    int const least = style.pixelMetric(QStyle::PM_ScrollBarSliderMin, &bar);
    int const size = range > 0 ? std::clamp(static_cast<int>(bar.pageStep * std::int64_t{length} / whole),
                                            std::min(least, length), length)
                               : length;
    int const start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - size, bar.upsideDown);
    auto const stretch = [&](int from, int to) {
        QRect const at =
            lies ? QRect{from, 0, to - from, bar.rect.height()} : QRect{0, from, bar.rect.width(), to - from};
        return QStyle::visualRect(bar.direction, bar.rect, at.translated(bar.rect.topLeft()));
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove: return bar.rect;
    case QStyle::SC_ScrollBarSlider: return stretch(start, start + size);
    case QStyle::SC_ScrollBarSubPage: return stretch(0, start);
    case QStyle::SC_ScrollBarAddPage: return stretch(start + size, length);
    default: return {};
    }
}

/// If the end is unknown, a part of the bar that moves to and fro by the clock.
QRectF finished_part(QStyleOptionProgressBar const& bar)
{
    QRectF part = bar.rect;
    if (bar.maximum <= bar.minimum) {
        constexpr qint64 there_and_back = 3000; // milliseconds
        double const passed =
            static_cast<double>(QDateTime::currentMSecsSinceEpoch() % there_and_back) / there_and_back;
        part.setWidth(part.width() / 4);
        part.moveLeft(bar.rect.left() + (bar.rect.width() - part.width()) * (1 - std::abs(1 - 2 * passed)));
        return part;
    }
    double const whole = double{1} * bar.maximum - bar.minimum;
    part.setWidth(part.width() * std::clamp((bar.progress - double{1} * bar.minimum) / whole, 0.0, 1.0));
    return part;
}

class PagePaletteFollower : public QObject {
public:
    explicit PagePaletteFollower(QWidget& widget) : QObject(&widget), widget_(widget)
    {
        setObjectName("PagePaletteFollower");
        widget.window()->installEventFilter(this); // only windows are notified of the user's palette
        widget.setPalette(page_palette());
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange) {
            widget_.setPalette(page_palette());
            renew_inks(widget_);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget& widget_;
};

} // namespace

void PageStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QDialog*>(widget) != nullptr) follow_page_palette(*widget);
    if (qobject_cast<QLineEdit*>(widget) != nullptr) widget->setAttribute(Qt::WA_Hover);
}

void PageStyle::drawPrimitive(PrimitiveElement element, QStyleOption const* option, QPainter* painter,
                              QWidget const* widget) const
{
    switch (element) {
    case PE_PanelLineEdit: {
        auto const* const frame = qstyleoption_cast<QStyleOptionFrame const*>(option);
        if (is_cell(widget)) draw_cell(*option, *painter, widget);
        else if (frame != nullptr && frame->lineWidth > 0) draw_field(*option, *painter, widget);
        return; // without a frame it is a part of a combo box, which paints itself
    }
    case PE_PanelButtonCommand: return draw_button(*option, *painter, widget);
    case PE_IndicatorCheckBox: return draw_indicator(*option, *painter, widget, false);
    case PE_IndicatorRadioButton: return draw_indicator(*option, *painter, widget, true);
    case PE_IndicatorBranch: return draw_branch(*option, *painter, widget);
    case PE_FrameFocusRect: {
        if (is_in(*option, State_Item) && is_in(*option, State_Selected)) return; // the list has a ring
        bool const tool = qobject_cast<QToolButton const*>(widget) != nullptr; // its own rectangle would cut the icon
        return Pen{*painter, widget, true}.ring(tool ? widget->rect() : option->rect, field_corner);
    }
    case PE_Frame: {
        Pen pen{*painter, widget, is_in(*option, State_Enabled)};
        if (is_in(*option, State_HasFocus)) pen.ring(option->rect, 0);
        else if (is_in(*option, State_Sunken) || (widget != nullptr && widget->window()->windowType() == Qt::Popup))
            pen.outline(option->rect, 0, colours().soft, pen.line());
        return;
    }
    case PE_FrameMenu: {
        Pen pen{*painter, widget, true};
        return pen.outline(option->rect, 0, colours().high_contrast ? colours().firm : colours().soft, pen.line());
    }
    case PE_FrameLineEdit:
    case PE_FrameTabWidget:
    case PE_FrameGroupBox:
    case PE_FrameDefaultButton:
    case PE_PanelScrollAreaCorner: return;
    default: QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void PageStyle::drawControl(ControlElement element, QStyleOption const* option, QPainter* painter,
                            QWidget const* widget) const
{
    switch (element) {
    case CE_PushButton: // without the base style's own ring
        if (auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(option)) {
            proxy()->drawControl(CE_PushButtonBevel, button, painter, widget);
            QStyleOptionButton label = *button;
            label.rect = subElementRect(SE_PushButtonContents, button, widget);
            proxy()->drawControl(CE_PushButtonLabel, &label, painter, widget);
        }
        return;
    case CE_PushButtonBevel: return proxy()->drawPrimitive(PE_PanelButtonCommand, option, painter, widget);
    case CE_PushButtonLabel:
        if (auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(option)) {
            QStyleOptionButton label = *button;
            if (is_strong(*option, widget)) label.palette.setColor(QPalette::ButtonText, colours().text_on_strong);
            QProxyStyle::drawControl(element, &label, painter, widget);
        }
        return;
    case CE_CheckBox:
    case CE_RadioButton:
        if (auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(option)) {
            QStyleOptionButton ringless = *button;
            ringless.state.setFlag(State_HasFocus, false); // otherwise the base style draws its own ring
            QProxyStyle::drawControl(element, &ringless, painter, widget);
            if (!is_in(*option, State_HasFocus) || has_rings_above(widget)) return;
            auto const part = element == CE_CheckBox ? SE_CheckBoxFocusRect : SE_RadioButtonFocusRect;
            Pen{*painter, widget, true}.ring(proxy()->subElementRect(part, option, widget) & option->rect,
                                             field_corner);
        }
        return;
    case CE_ToolBar: {
        Pen const pen{*painter, widget, true};
        QRectF const room = option->rect;
        painter->fillRect(room, colours().strip);
        painter->fillRect(QRectF{room.left(), room.bottom() - pen.line(), room.width(), pen.line()}, colours().soft);
        return;
    }
    case CE_MenuItem:
    case CE_MenuBarItem:
        if (auto const* const item = qstyleoption_cast<QStyleOptionMenuItem const*>(option)) {
            QStyleOptionMenuItem readable = *item;
            readable.palette.setColor(QPalette::Highlight, colours().strong);
            QProxyStyle::drawControl(element, &readable, painter, widget);
        }
        return;
    case CE_ProgressBarGroove: {
        Pen pen{*painter, widget, true};
        return pen.fill(option->rect, option->rect.height() / 2.0, colours().tie);
    }
    case CE_ProgressBarContents:
        if (auto const* const bar = qstyleoption_cast<QStyleOptionProgressBar const*>(option)) {
            Pen pen{*painter, widget, true};
            QRectF const done = finished_part(*bar);
            if (done.width() >= done.height()) pen.fill(done, done.height() / 2, colours().ring);
        }
        return;
    default: QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void PageStyle::drawComplexControl(ComplexControl control, QStyleOptionComplex const* option, QPainter* painter,
                                   QWidget const* widget) const
{
    switch (control) {
    case CC_ComboBox: return draw_combo_box(*proxy(), *option, *painter, widget);
    case CC_ScrollBar: return draw_scroll_bar(*proxy(), *option, *painter, widget);
    default: QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect PageStyle::subElementRect(SubElement element, QStyleOption const* option, QWidget const* widget) const
{
    Scale const scale = scale_of(widget);
    switch (element) {
    case SE_LineEditContents: {
        auto const* const frame = qstyleoption_cast<QStyleOptionFrame const*>(option);
        if (frame != nullptr && frame->lineWidth == 0 && !is_cell(widget)) return option->rect;
        auto const* const box = qobject_cast<QLineEdit const*>(widget);
        bool const number = is_cell(widget) && box != nullptr && box->alignment().testFlag(Qt::AlignRight);
        int const left = number ? 0 : text_margin;
        return option->rect.adjusted(scale.from_base(left), 0, -scale.from_base(text_margin), 0);
    }
    case SE_PushButtonFocusRect: return option->rect;
    case SE_CheckBoxFocusRect:
    case SE_RadioButtonFocusRect:
        if (auto const* const button = qstyleoption_cast<QStyleOptionButton const*>(option)) {
            bool const box = element == SE_CheckBoxFocusRect;
            QRect const mark =
                proxy()->subElementRect(box ? SE_CheckBoxIndicator : SE_RadioButtonIndicator, option, widget);
            QRect text = proxy()->subElementRect(box ? SE_CheckBoxContents : SE_RadioButtonContents, option, widget);
            int const wide = option->fontMetrics.size(Qt::TextShowMnemonic, button->text).width();
            text = alignedRect(option->direction, Qt::AlignLeft | Qt::AlignVCenter,
                               {wide, option->fontMetrics.height()}, text);
            int const free = scale.from_base(4); // includes two for the ring
            return mark.united(text).adjusted(-free, -free, free, free);
        }
        break;
    default: break;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect PageStyle::subControlRect(ComplexControl control, QStyleOptionComplex const* option, SubControl part,
                                QWidget const* widget) const
{
    if (control == CC_ScrollBar) {
        if (auto const* const bar = qstyleoption_cast<QStyleOptionSlider const*>(option)) {
            return scroll_bar_part(*proxy(), *bar, part);
        }
    }
    if (control == CC_GroupBox && part == SC_GroupBoxContents) return option->rect;
    if (control == CC_ComboBox) {
        Scale const scale = scale_of(widget);
        int const arrow = scale.from_base(arrow_width);
        int const edge = scale.line();
        QRect const inside = option->rect.adjusted(edge, edge, -edge, -edge);
        QRect at = inside;
        switch (part) {
        case SC_ComboBoxEditField: at.setRight(inside.right() - arrow); break;
        case SC_ComboBoxArrow: at.setLeft(inside.right() + 1 - arrow); break;
        case SC_ComboBoxFrame:
        case SC_ComboBoxListBoxPopup: return option->rect;
        default: return QProxyStyle::subControlRect(control, option, part, widget);
        }
        return visualRect(option->direction, option->rect, at);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

int PageStyle::pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const
{
    auto const base = [&](int pixels) { return scale_of(widget).from_base(pixels); };
    if (is_dialog(widget)) {
        switch (metric) {
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin: return base(dialog_margin);
        case PM_LayoutVerticalSpacing: return base(dialog_rows_gap);
        case PM_LayoutHorizontalSpacing: return base(dialog_columns_gap);
        default: break;
        }
    }
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return base(indicator_size);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing: return base(label_gap);
    case PM_ScrollBarExtent: return base(scroll_bar_width);
    case PM_MessageBoxIconSize: return base(message_sign);
    case PM_ToolBarIconSize: return base(tool_icon);
    case PM_DefaultFrameWidth:
        if (qobject_cast<QFrame const*>(widget) != nullptr) return base(ring_width);
        break;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical: return 0;
    default: break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int PageStyle::styleHint(StyleHint hint, QStyleOption const* option, QWidget const* widget,
                         QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
    case SH_TextControl_FocusIndicatorTextCharFormat: // around a link
        if (auto* const answer = qstyleoption_cast<QStyleHintReturnVariant*>(data)) {
            QTextCharFormat format;
            format.setProperty(QTextFormat::OutlinePen, QPen{colours().ring, scale_of(widget).factor() * ring_width});
            answer->variant = format;
            return 1;
        }
        break;
    default: break;
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
}

QSize PageStyle::sizeFromContents(ContentsType type, QStyleOption const* option, QSize const& contents,
                                  QWidget const* widget) const
{
    QSize const usual = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type != CT_PushButton || widget == nullptr || !is_dialog(widget->window())) return usual;
    Scale const scale = scale_of(widget);
    return {std::max(usual.width(), scale.from_base(dialog_button.width())), scale.from_base(dialog_button.height())};
}

QIcon PageStyle::standardIcon(StandardPixmap which, QStyleOption const* option, QWidget const* widget) const
{
    QIcon const drawn = line_icon(which);
    return drawn.isNull() ? QProxyStyle::standardIcon(which, option, widget) : drawn;
}

void make_cell(QLineEdit& box) { box.setProperty(cell_property, true); }

void set_strong(QPushButton& button, bool strong)
{
    if (button.property(strong_property).toBool() == strong) return;
    button.setProperty(strong_property, strong);
    button.update();
}

void leave_rings_to_others(QWidget& window) { window.setProperty(ringless_property, true); }

void follow_page_palette(QWidget& widget)
{
    if (widget.findChild<QObject*>("PagePaletteFollower", Qt::FindDirectChildrenOnly) != nullptr) return;
    new PagePaletteFollower{widget};
}

} // namespace warhost
