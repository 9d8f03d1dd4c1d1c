// A section of a screen: a caption on a line, and what belongs to it below.
#pragma once

#include <QGroupBox>
#include <QLayout>

#include <optional>

namespace warhost {

/// Paints its head itself. A layout in it begins at the frame's top, so that something may stand in the head too.
class CaptionFrame : public QGroupBox {
    Q_OBJECT

public:
    // Heights from the frame's top, in pixels of the base size.
    static constexpr int caption_height = 19; // the line follows
    static constexpr int contents_top = 24;

    using QGroupBox::QGroupBox;

    /// Writes the caption in the side's colour behind its mark. Index: 0 for Side A, 1 for Side B.
    void set_side(int Index);

    /// A note behind the caption, cut short where there is no room; the tool tip then has it whole.
    void set_note(QString const& note);
    QString const& note() const { return note_; }

    /// A hint at the right end of the head; empty for none. Screen readers hear it as the frame's description.
    void set_hint(QString const& hint);

    /// pixels: at the right end of the head, taken by a box there.
    void keep_free(int pixels);

    /// The font in which the caption fits.
    QFont caption_font() const;

    QSize minimumSizeHint() const override { return layout() != nullptr ? layout()->totalMinimumSize() : QSize{}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int caption_left() const;
    int note_left() const;
    int note_room() const;
    void show_note_whole_when_cut();

    std::optional<int> Index_;
    QString note_;
    QString hint_;
    int kept_free_ = 0;
};

} // namespace warhost
