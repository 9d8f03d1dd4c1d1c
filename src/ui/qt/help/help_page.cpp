#include "ui/qt/help/help_page.h"

#include "ui/qt/help/help_contents.h"
#include "ui/qt/look/colours.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/look/type.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QPainter>
#include <QScrollBar>
#include <QTextFrame>
#include <QUrlQuery>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace warhost {

namespace {

constexpr int least_percent = 50;
constexpr int largest_percent = 300;
constexpr int percent_of_step = 10;
constexpr int wheel_notch = 120;

// Pixels of the base size.
constexpr int margin = 28;
constexpr int measure = 504; // about 70 characters

// The scheme of pages that are not files.
constexpr char const* notice_scheme = "notice";

QString plain_page(QString const& title, QString const& text, QString const& more)
{
    return QString{"<html><head><title>%1</title></head><body><h1>%1</h1><p>%2</p>%3</body></html>"}.arg(
        title.toHtmlEscaped(), text.toHtmlEscaped(), more);
}

QString style_sheet(Scale const& scale)
{
    Colours const& of = colours();
    return QString{"p, li { line-height: 145%; }"
                   "p { margin-top: 0px; margin-bottom: %6px; }"
                   "ul, ol, pre { margin-top: %6px; margin-bottom: %6px; }"
                   "h1 { font-size: x-large; font-weight: 600; margin-top: 0px; margin-bottom: %6px; }"
                   "h2 { font-size: large; font-weight: 600; margin-top: %7px; margin-bottom: %5px; }"
                   "h3 { font-size: medium; font-weight: 600; margin-top: %6px; margin-bottom: %5px; }"
                   "a[href] { color: %1; text-decoration: none; }"
                   "table { border-collapse: collapse; border-style: none; margin-top: %6px; margin-bottom: %6px; }"
                   "td, th { line-height: 130%; padding-left: %5px; padding-right: %8px; padding-top: %5px;"
                   " padding-bottom: 0px; border-bottom-width: %9px; border-bottom-style: solid;"
                   " border-bottom-color: %2; }"
                   "th { color: %3; border-bottom-color: %4; }"}
        .arg(of.hint.name(), of.hair.name(), of.dim.name(), of.firm.name())
        .arg(scale.from_base(4))
        .arg(scale.from_base(8))
        .arg(scale.from_base(24))
        .arg(scale.from_base(12))
        .arg(scale.line());
}

} // namespace

HelpPage::HelpPage(QString folder, QWidget* parent) : QTextBrowser(parent), folder_(std::move(folder))
{
    setObjectName("helpPage");
    setAccessibleName("Page of the manual");
    setOpenExternalLinks(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setLineWrapMode(FixedPixelWidth);
    setFrameShadow(Plain);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // so that lines are equally wide on every page
    show_anew();
}

/// The width of a line or a picture, in pixels.
int HelpPage::line_width() const
{
    Scale const scale = scale_of(this);
    int const room = viewport()->width() - 2 * scale.from_base(margin);
    return std::max(1, std::min(scale.from_base(measure) * percent_ / 100, room));
}

void HelpPage::show_page(QString const& page, QString const& anchor)
{
    QUrl address = QUrl::fromLocalFile(QDir{folder_}.absoluteFilePath(page));
    if (!anchor.isEmpty()) address.setFragment(anchor);
    setSource(address, QTextDocument::HtmlResource);
}

/// Leaves a third of the view above the text, so that its context is visible.
void HelpPage::mark(int begin, int end)
{
    select(begin, end);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top() - viewport()->height() / 3);
}

int HelpPage::last_position() const { return document()->characterCount() - 1; }

/// Positions beyond the end are clamped: the page may have become shorter.
void HelpPage::select(int anchor, int position)
{
    QTextCursor cursor{document()};
    cursor.setPosition(std::min(anchor, last_position()));
    cursor.setPosition(std::min(position, last_position()), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void HelpPage::show_missing_manual()
{
    setSource(QUrl{QString{"%1:manual"}.arg(notice_scheme)}, QTextDocument::HtmlResource);
}

void HelpPage::show_unknown_topic(int topic)
{
    setSource(QUrl{QString{"%1:topic?number=%2"}.arg(notice_scheme).arg(topic)}, QTextDocument::HtmlResource);
}

QString HelpPage::notice(QUrl const& name) const
{
    if (name.path() == "manual") {
        return plain_page("No manual", "The manual was not found: " + help_contents_path(folder_),
                          "<p>Everything else in the program works without it.</p>");
    }
    auto const contents =
        QUrl::fromLocalFile(QDir{folder_}.absoluteFilePath("contents.html")).toString(QUrl::FullyEncoded);
    return plain_page(
        "No such topic", "There is no help topic " + QUrlQuery{name}.queryItemValue("number") + ".",
        QString{"<p>See the <a href=\"%1\">contents</a> of the manual.</p>"}.arg(contents.toHtmlEscaped()));
}

QVariant HelpPage::loadResource(int type, QUrl const& name)
{
    if (name.scheme() == notice_scheme) return notice(name);
    if (type == QTextDocument::HtmlResource && name.isLocalFile() && !QFileInfo{name.toLocalFile()}.isFile()) {
        return plain_page("No such page", "The page was not found: " + QDir::toNativeSeparators(name.toLocalFile()),
                          {});
    }
    QVariant const resource = QTextBrowser::loadResource(type, name);
    return type == QTextDocument::ImageResource ? picture(resource.toByteArray()) : resource;
}

/// The line and both margins, in pixels.
int HelpPage::page_width() const { return line_width() + 2 * scale_of(this).from_base(margin); }

/// Scaled to the width of a line, because the page itself would scale it coarsely.
QImage HelpPage::picture(QByteArray const& bytes) const
{
    QImage const whole = QImage::fromData(bytes);
    if (!whole.isNull()) {
        int const width = qRound(line_width() * devicePixelRatioF());
        QImage shown = whole.scaledToWidth(width, Qt::SmoothTransformation);
        shown.setDevicePixelRatio(devicePixelRatioF());
        return shown;
    }
    QImage note{line_width(), fontMetrics().height() * 2, QImage::Format_ARGB32_Premultiplied};
    note.fill(Qt::transparent);
    QPainter painter{&note};
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(note.rect(), Qt::AlignVCenter | Qt::AlignLeft, "(The picture was not found.)");
    return note;
}

void HelpPage::zoom(int steps)
{
    percent_ = std::clamp(percent_ + steps * percent_of_step, least_percent, largest_percent);
    show_anew();
}

void HelpPage::zoom_to_normal()
{
    percent_ = 100;
    show_anew();
}

void HelpPage::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    if (lineWrapColumnOrWidth() != page_width()) show_anew();
}

void HelpPage::wheelEvent(QWheelEvent* event)
{
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    int const turn = event->angleDelta().y();
    if (turn != 0) zoom(turn / wheel_notch != 0 ? turn / wheel_notch : (turn > 0 ? 1 : -1));
    event->accept();
}

/// Reads the page again, because colours and the widths of pictures are fixed when a page is read. Keeps the first
/// visible line and the selection.
void HelpPage::show_anew()
{
    document()->documentLayout()->frameBoundingRect(document()->rootFrame()); // completes a pending layout
    QTextCursor const top = cursorForPosition({0, 0});
    int const first = top.position();
    int const above = cursorRect(top).top();
    int const anchor = textCursor().anchor();
    int const position = textCursor().position();

    Type type = type::reading;
    type.pixels = type.pixels * percent_ / 100;
    setFont(in_type(QApplication::font(), type));
    Scale const scale = scale_of(this);
    document()->setDefaultStyleSheet(style_sheet(scale));
    document()->setDocumentMargin(scale.from_base(margin));
    setLineWrapColumnOrWidth(page_width());
    if (source().isEmpty()) return;
    reload();
    select(anchor, position);
    QTextCursor again{document()};
    again.setPosition(std::min(first, last_position()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(again).top() - above);
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationFontChange) show_anew();
}

} // namespace warhost
