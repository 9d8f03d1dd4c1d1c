// Army files dropped on the main window.
#pragma once

#include <QObject>

#include <functional>
#include <string>

class QWidget;

namespace warhost {

/// Accepts a file with the suffix ".Army" dropped anywhere on the window, text boxes included; anything else is left to
/// the widgets. The drag ends before load runs. Accepts nothing while the window accepts no input.
class ArmyDrop : public QObject {
    Q_OBJECT

public:
    using Load = std::function<void(std::string const& path)>;

    /// window: already shown, so that it has a handle.
    ArmyDrop(QWidget& window, Load load);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void dropped(QString const& path);

private:
    QWidget& window_;
    Load load_;
};

} // namespace warhost
