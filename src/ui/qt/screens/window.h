// The main window: menus, the tab strip with its page, and the two screens.
#pragma once

#include "ui/main.h"
#include "ui/qt/look/scale.h"

#include <QMainWindow>
#include <QTimer>

namespace warhost {

class ArmyDrop;
class ArmyPage;
class CombatPage;
class QtDesktop;
class ScreenArea;
class TabPage;

/// Loads the form and shows it. Font and scale are the user's, as far as they fit on the display; on a display too
/// small for the base size, the two screens scroll. The form must not be used once the window is gone.
class Window : public QMainWindow {
    Q_OBJECT

public:
    Window(Main& form, QtDesktop& desktop);
    ~Window() override;

    /// Asks the same question as any other request to close the window, if it may ask at all. After a Yes the window
    /// closes from the event loop without asking again. False if the session must continue: after a No, and while a
    /// file is being read or written.
    [[nodiscard]] bool session_may_end(bool may_ask);

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void make_menus();
    void make_tab_strip();
    void make_tab_keys();
    void make_screens();
    void make_combat_screen();
    void fit_to_screen();
    void follow_size();
    QRect place_of(Frame const& frame, int right_margin, int lower_margin) const;
    void place_tab_strip();
    void place_screen(Frame const& frame, ScreenArea& screen);
    void place_misc_panel();
    void choose_tab(int position);
    void focus_first_control();
    void show_army_names();
    QString level_in_digits(QString const& text);
    bool waits_for_disk() const;
    [[nodiscard]] bool confirms_quit();

    Main& form_;
    QtDesktop& desktop_;
    Scale scale_;
    bool scrolls_ = false;      // the display is too small for the base size
    bool asks_to_quit_ = false; // the question is open
    bool quits_ = false;        // the answer was Yes
    QTimer close_later_;
    QSize extra_{0, 0}; // the part of the client area that the scroll bars take
    QWidget* client_;
    TabPage* tabs_ = nullptr;
    ArmyPage* army_ = nullptr;
    ArmyDrop* drop_ = nullptr;     // made when the window is first shown, because it then has a handle
    CombatPage* combat_ = nullptr; // made when it is first shown, for a faster start
};

} // namespace warhost
