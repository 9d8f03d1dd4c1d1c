#include "ui/qt/help/help_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <array>
#include <utility>

namespace warhost {

namespace {

constexpr char const* topic_property = "help_topic";

struct HelpPlace {
    char const* name; // of a widget, or the title of a window
    char const* address;
};

constexpr std::array help_places{
    HelpPlace{"FrameArmy", "army_screen.html"},
    HelpPlace{"FrameCombat", "combat_screen.html"},
    HelpPlace{"FrameMisc", "misc_modifiers.html"},
    HelpPlace{"helpViewer", "keyboard.html#manual"},
    HelpPlace{"frmAbout", "contents.html#menus"},
    HelpPlace{"waitingDialog", "army_files.html"},
    HelpPlace{"Quit Warhost?", "contents.html#menus"},
    HelpPlace{"Load Warhost Army File", "army_files.html#loading"},
    HelpPlace{"Save Warhost Army File", "army_files.html#saving"},
    HelpPlace{"Error!", "army_files.html#errors"},
    HelpPlace{"File Not Found", "troubleshooting.html#window"},
    HelpPlace{"Simulate N Battles", "simulation.html"},
    HelpPlace{"Warhost Simulation", "simulation.html#report"},
};

/// The page about the innermost part of a window that has one, otherwise the page about the screen that is shown.
char const* address_of(QWidget const* part)
{
    for (; part != nullptr; part = part->parentWidget()) {
        for (auto const& [name, address] : help_places) {
            if (part->objectName() == name || (part->isWindow() && part->windowTitle() == name)) return address;
        }
        for (auto const& [name, address] : help_places) {
            auto const* const screen = part->isWindow() ? part->findChild<QWidget*>(name) : nullptr;
            if (screen != nullptr && screen->isVisible()) return address;
        }
    }
    return "contents.html";
}

} // namespace

void set_help_topic(QWidget& widget, int topic) { widget.setProperty(topic_property, topic); }

HelpKey::HelpKey(OpenTopic open_topic, OpenPage open_page)
    : open_topic_(std::move(open_topic)),
      open_page_(std::move(open_page))
{
    qApp->installEventFilter(this);
}

/// Filters the key before the widgets receive it: some of them accept every key.
bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    auto* const widget = qobject_cast<QWidget*>(watched);
    auto* const key = dynamic_cast<QKeyEvent*>(event);
    if (widget == nullptr || key == nullptr || key->type() != QEvent::KeyPress) return false;
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
    QWidget const* part = widget;
    if (QWidget* const popup = QApplication::activePopupWidget()) { // an open list or menu
        popup->close();
        part = QApplication::focusWidget();
    }
    for (auto const* at = part; at != nullptr; at = at->parentWidget()) {
        if (int const topic = at->property(topic_property).toInt(); topic != 0) {
            open_topic_(topic);
            return true;
        }
    }
    open_page_(address_of(part));
    return true;
}

} // namespace warhost
