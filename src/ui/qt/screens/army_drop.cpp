#include "ui/qt/screens/army_drop.h"

#include "ui/qt/widgets/binding.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <QWindow>

#include <string>
#include <utility>

namespace warhost {

namespace {

/// The path of the army file if exactly one is dragged; otherwise empty.
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
    connect(
        this, &ArmyDrop::dropped, this, [this](QString const& path) { load_(path.toStdString()); },
        Qt::QueuedConnection);
    window.setAcceptDrops(true);
    window.windowHandle()->installEventFilter(this);
}

bool ArmyDrop::eventFilter(QObject* watched, QEvent* event)
{
    auto* const drag = dynamic_cast<QDropEvent*>(event); // entering, moving or dropping
    if (drag == nullptr) return QObject::eventFilter(watched, event);
    QString const path = army_path(*drag->mimeData());
    if (path.isEmpty() || !takes_input(window_)) return QObject::eventFilter(watched, event);
    drag->setDropAction(Qt::CopyAction);
    drag->accept();
    if (event->type() == QEvent::Drop) emit dropped(path);
    return true;
}

} // namespace warhost
