// The modal window that is seen while something takes its time.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QVBoxLayout>

namespace warhost {

/// Takes no input and closes when its owner says so, not by a key. The window below is disabled as long as the dialog
/// exists: assistive technology would pass a dialog that is only modal.
class ProgressDialog : public QDialog {
    Q_OBJECT

public:
    /// window: the main window, or none. spoken: what the bar counts, for a screen reader.
    ProgressDialog(QWidget* window, QString const& title, QString const& spoken);
    ~ProgressDialog() override;

    /// share: of the whole, 0 to 1; below 0 it is unknown. The texts stand left and right below the bar. The window is
    /// shown and painted before this returns.
    void show_share(double share, QString const& left, QString const& right = {});

    void reject() override {}

protected:
    QVBoxLayout& column() { return column_; }

private:
    QPointer<QWidget> window_;
    QPointer<QWidget> focus_; // in the window, to be given back
    QVBoxLayout column_{this};
    QProgressBar bar_{this};
    QLabel left_{this};
    QLabel right_{this};
};

} // namespace warhost
