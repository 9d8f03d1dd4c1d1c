#include "ui/qt/screens/army_drop.h"

#include "ui/qt/widgets/binding.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <QWindow>

#include <string>
#include <utility>

namespace warhost {

namespace {

/// The path of the one army file that is dragged; empty when it is anything else.
QString army_path(QMimeData const& dragged)
{
    auto const urls = dragged.urls();
    if (urls.size() != 1) return {};
    QString path = urls.front().toLocalFile();
    return path.endsWith(".Army", Qt::CaseInsensitive) ? path : QString{};
}

} // namespace

ArmyDrop::ArmyDrop(QWidget& window, Load load) : QObject(&window), window_(window), load_(std::move(load))
{
    window.setAcceptDrops(true);
    window.windowHandle()->installEventFilter(this);
}

bool ArmyDrop::eventFilter(QObject* watched, QEvent* event)
{
    bool const drops = event->type() == QEvent::Drop;
    if (!drops && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QObject::eventFilter(watched, event);
    auto& drag = static_cast<QDropEvent&>(*event);
    QString const path = army_path(*drag.mimeData());
    if (path.isEmpty() || !takes_input(window_)) return QObject::eventFilter(watched, event);
    drag.setDropAction(Qt::CopyAction);
    drag.accept();
    if (drops) QTimer::singleShot(0, this, [this, path] { load_(path.toStdString()); });
    return true;
}

} // namespace warhost
