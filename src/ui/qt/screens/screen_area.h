// One of the two screens: a viewport over contents of fixed size and position.
#pragma once

#include <QScrollArea>

namespace warhost {

class ScreenArea : public QScrollArea {
    Q_OBJECT

public:
    explicit ScreenArea(QWidget* parent);

    /// The contents of the viewport; everything on the screen is a child of it.
    QWidget& surface() const { return *widget(); }

    /// room: the place of the viewport. content: the whole size of the screen. What does not fit in the room can be
    /// scrolled to if `scrolls`, and is otherwise out of sight.
    void place(QRect const& room, QSize content, bool scrolls);

protected:
    bool focusNextPrevChild(bool next) override;

private:
    void show_whole(QWidget const& at);
};

} // namespace warhost
