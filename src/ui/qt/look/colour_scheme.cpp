#include "ui/qt/look/colour_scheme.h"

#include "ui/qt/look/colours.h"

#include <QApplication>
#include <QStyle>
#include <QStyleHints>

namespace warhost {

namespace {

void take_palette()
{
    QPalette const platform = QApplication::palette();
    QPalette const wanted = palette_for(platform, QApplication::style()->standardPalette());
    if (wanted != platform) QApplication::setPalette(wanted);
}

} // namespace

QPalette palette_for(QPalette const& platform, QPalette const& plain)
{
    return platform == plain && colours_of(platform).dark ? dark_palette() : platform;
}

void follow_colour_scheme()
{
    take_palette();
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    QObject::connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, qApp, [] {
        QApplication::setPalette({}); // the platform's again
        take_palette();
    });
#endif
}

} // namespace warhost
