#include "ui/qt/screens/description_sheet.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/device_pixels.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/widgets/widget_maker.h"

#include <QEvent>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

namespace warhost {

namespace {

// Pixels of the base size.
constexpr int inside = 3;      // from the edge to a pane, for the focus ring
constexpr int text_margin = 5; // from the edge of a pane, also below the label
constexpr int label_height = 16;
constexpr int label_below_top = 6;
constexpr int label_below_division = 11;
constexpr double ring_width = 2;

} // namespace

DescriptionSheet::DescriptionSheet(CombatControls& controls, WidgetMaker& make, double top, double division, double end)
    : division_(make.span(top, division))
{
    struct Pane {
        TextLabel& caption;
        RichTextBox& account;
        char const* spoken;
        double label_top, end;
    };
    std::array const panes{Pane{controls.Label10, controls.txtBattleResults, "Description of the loser's casualties",
                                top + label_below_top, division},
                           Pane{controls.Label11, controls.txtVictorDesc, "Description of the victor's casualties",
                                division + label_below_division, end}};
    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(make.pixels(inside), 0, make.pixels(inside), make.pixels(inside));
    column->setSpacing(0);
    double at = top;
    for (std::size_t k = 0; k < panes.size(); ++k) {
        Pane const& pane = panes.at(k);
        QLabel* const caption = make.label(pane.caption);
        set_ink(*caption, Ink::dim);
        double const text_top = pane.label_top + label_height;
        caption->setFixedHeight(make.span(pane.label_top, pane.label_top + label_height));
        caption->setIndent(make.pixels(text_margin));
        QTextEdit* const text = make.description(pane.account, pane.spoken);
        caption->setBuddy(text);
        text->setFrameShape(QFrame::NoFrame);
        text->setFont(make.font(type::reading));
        QFont placeholder = make.font(type::plain);
        // Setting the size to its own value keeps it from inheriting the larger size of the text.
        if (placeholder.pixelSize() > 0) placeholder.setPixelSize(placeholder.pixelSize());
        else placeholder.setPointSizeF(placeholder.pointSizeF());
        text->viewport()->setFont(placeholder);
        text->document()->setDocumentMargin(make.pixels(text_margin));
        text->viewport()->setAutoFillBackground(false);
        text->installEventFilter(this);
        panes_.at(k) = text;
        column->addSpacing(make.span(at, pane.label_top));
        column->addWidget(caption);
        at = pane.end;
        if (k == 0) {
            text->setPlaceholderText("The outcome appears here after a roll.");
            text->setFixedHeight(make.span(text_top, pane.end - inside));
            column->addWidget(text);
            column->addSpacing(make.span(pane.end - inside, pane.end));
        } else {
            column->addWidget(text, 1);
        }
    }
}

void DescriptionSheet::paintEvent(QPaintEvent* event)
{
    Colours const& of = colours();
    Scale const scale = scale_of(this);
    int const line = scale.line();
    QPainter painter{this};
    painter.setClipRect(event->rect());
    DevicePixels pixels{painter};
    QRect const sheet = pixels.of(rect());
    int const edge = pixels.thickness(line);
    pixels.fill(sheet, of.soft);
    pixels.fill(sheet.adjusted(edge, edge, -edge, -edge), of.field);
    pixels.draw_line(QRect{line, division_, width() - 2 * line, line}, of.hair);
    std::array const parts{QRectF(0, 0, width(), division_ + line),
                           QRectF(0, division_, width(), height() - division_)};
    for (std::size_t k = 0; k < parts.size(); ++k) {
        if (!panes_.at(k)->hasFocus()) continue;
        double const ring = ring_width * scale.factor();
        painter.setPen(QPen{of.ring, ring, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin});
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(parts.at(k).adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2));
    }
}

bool DescriptionSheet::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    return QWidget::eventFilter(watched, event);
}

} // namespace warhost
