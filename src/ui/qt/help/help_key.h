// F1 in any window of the program.
#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace warhost {

/// The topic of one widget, which takes precedence over the page about the screen; 0: none.
void set_help_topic(QWidget& widget, int topic);

/// While it exists, F1 opens the manual where it describes the widget, the screen or the dialog. Needs the application;
/// does not work in the desktop's own dialogs.
class HelpKey : public QObject {
    Q_OBJECT

public:
    using OpenTopic = std::function<void(int topic)>;
    /// address: of a page, with an optional "#" and anchor.
    using OpenPage = std::function<void(char const* address)>;

    HelpKey(OpenTopic open_topic, OpenPage open_page);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    OpenTopic open_topic_;
    OpenPage open_page_;
};

} // namespace warhost
