// The modal window that is shown during a long operation.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QVBoxLayout>

namespace warhost {

/// Accepts no input and is closed by its owner, not by a key. The window below is disabled while the dialog exists:
/// assistive technology could still reach it behind a dialog that is only modal.
class ProgressDialog : public QDialog {
    Q_OBJECT

public:
    /// window: the main window, or null. spoken: what the bar counts, for a screen reader.
    ProgressDialog(QWidget* window, QString const& title, QString const& spoken);
    ~ProgressDialog() override;

    /// share: of the whole, 0 to 1; negative if unknown. left, right: texts below the bar. The dialog is shown and
    /// painted before this returns.
    void show_share(double share, QString const& left, QString const& right = {});

    void reject() override {}

protected:
    QVBoxLayout& column() { return column_; }

private:
    QPointer<QWidget> window_;
    QPointer<QWidget> focus_; // in the window; restored at the end
    QVBoxLayout column_{this};
    QProgressBar bar_{this};
    QLabel left_{this};
    QLabel right_{this};
};

} // namespace warhost
