// One of the two screens: a viewport over contents that keep their size and places.
#pragma once

#include <QScrollArea>

namespace warhost {

class ScreenArea : public QScrollArea {
    Q_OBJECT

public:
    explicit ScreenArea(QWidget* parent);

    /// What lies in the viewport; everything on the screen is a child of it.
    QWidget& surface() const { return *widget(); }

    /// room: the viewport's place. content: the screen's whole size; what the room does not show is scrolled to when
    /// `scrolls`, else out of sight.
    void place(QRect const& room, QSize content, bool scrolls);

protected:
    bool focusNextPrevChild(bool next) override;

private:
    void show_whole(QWidget const& at);
};

} // namespace warhost
