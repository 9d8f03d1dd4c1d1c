#include "ui/qt/dialogs/progress_dialog.h"

#include "ui/qt/look/ink.h"
#include "ui/qt/look/scale.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QInputMethod>

namespace warhost {

namespace {

constexpr int bar_steps = 1000;

// Pixels of the base size.
constexpr int dialog_width = 420;
constexpr int bar_height = 8;
constexpr int row_gap = 8;

} // namespace

ProgressDialog::ProgressDialog(QWidget* window, QString const& title, QString const& spoken)
    : QDialog(window, Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      window_(window)
{
    if (window != nullptr) {
        QGuiApplication::inputMethod()->commit(); // while the window still accepts it
        focus_ = window->focusWidget();
        window->setEnabled(false);
        setEnabled(true); // a child window is disabled with its parent
    }
    setWindowTitle(title);
    setWindowModality(Qt::WindowModal);
    Scale const scale = scale_of(this);
    setMinimumWidth(scale.from_base(dialog_width));
    bar_.setFixedHeight(scale.from_base(bar_height));
    bar_.setAccessibleName(spoken);
    bar_.setTextVisible(false);
    column_.setSpacing(scale.from_base(row_gap));
    column_.addWidget(&bar_);
    auto* const texts = new QHBoxLayout;
    texts->addWidget(&left_);
    texts->addStretch();
    texts->addWidget(&right_);
    set_ink(right_, Ink::dim);
    column_.addLayout(texts);
}

ProgressDialog::~ProgressDialog()
{
    if (window_) window_->setEnabled(true);
    if (focus_) focus_->setFocus(Qt::OtherFocusReason);
}

void ProgressDialog::show_share(double share, QString const& left, QString const& right)
{
    bar_.setRange(0, share < 0 ? 0 : bar_steps);
    bar_.setValue(static_cast<int>(share * bar_steps));
    left_.setText(left);
    right_.setText(right);
    if (share < 0) bar_.update(); // its moving part
    show();
    // Input that arrives meanwhile is discarded by this dialog instead of waiting for its end.
    QCoreApplication::processEvents();
}

} // namespace warhost
