#include "ui/qt/help/help_page.h"

#include "ui/qt/help/help_contents.h"
#include "ui/qt/look/contrast.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFontInfo>
#include <QPainter>
#include <QScrollBar>
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
constexpr int picture_width = 640;

// Addresses of pages that no file holds.
constexpr char const* notice_scheme = "notice";

QString plain_page(QString const& title, QString const& text, QString const& more)
{
    return QString{"<html><head><title>%1</title></head><body><h1>%1</h1><p>%2</p>%3</body></html>"}.arg(
        title.toHtmlEscaped(), text.toHtmlEscaped(), more);
}

} // namespace

HelpPage::HelpPage(QString folder, QWidget* parent) : QTextBrowser(parent), folder_(std::move(folder))
{
    setObjectName("helpPage");
    setAccessibleName("Page of the manual");
    setOpenExternalLinks(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDocumentMargin(14);
    follow_palette();
}

void HelpPage::show_entry(HelpEntry const& entry)
{
    QUrl address = QUrl::fromLocalFile(QDir{folder_}.absoluteFilePath(entry.page));
    if (!entry.anchor.isEmpty()) address.setFragment(entry.anchor);
    setSource(address, QTextDocument::HtmlResource);
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
        "No such topic", "There is no help topic " + QUrlQuery{name}.queryItemValue("number"),
        QString{"<p>The manual starts at its <a href=\"%1\">contents</a>.</p>"}.arg(contents.toHtmlEscaped()));
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

/// As wide as the manual shows its pictures: the page itself would scale them roughly.
QImage HelpPage::picture(QByteArray const& bytes) const
{
    QImage const whole = QImage::fromData(bytes);
    int const width = qRound(picture_width * devicePixelRatioF());
    if (!whole.isNull()) return whole.width() > width ? whole.scaledToWidth(width, Qt::SmoothTransformation) : whole;

    QImage note{picture_width, fontMetrics().height() * 2, QImage::Format_ARGB32_Premultiplied};
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
    apply_zoom();
}

void HelpPage::zoom_to_normal()
{
    percent_ = 100;
    apply_zoom();
}

void HelpPage::apply_zoom()
{
    QFont scaled;
    if (percent_ != 100) scaled.setPointSizeF(QFontInfo{parentWidget()->font()}.pointSizeF() * percent_ / 100);
    setFont(scaled);
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

/// The colours of a page are fixed when it is read.
void HelpPage::follow_palette()
{
    QColor const base = palette().color(QPalette::Base);
    QColor const text = palette().color(QPalette::Text);
    QColor const link = readable_colour(palette().color(QPalette::Link), base, text);
    QColor const line = readable_colour(palette().color(QPalette::Mid), base, text);
    QColor const band = palette().color(QPalette::AlternateBase);
    document()->setDefaultStyleSheet(
        QString{"p, li, td, th { line-height: 125%; }"
                "a[href] { color: %1; }"
                "table[border=\"1\"] { border-collapse: collapse; border-style: solid; border-color: %2; }"
                "th { background-color: %3; }"}
            .arg(link.name(), line.name(), band.name()));
}

void HelpPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        int const place = verticalScrollBar()->value();
        follow_palette();
        reload();
        verticalScrollBar()->setValue(place);
    }
}

} // namespace warhost
