// A section of a screen: a caption on a line, and the contents below it.
#pragma once

#include <QGroupBox>
#include <QLayout>

#include <optional>

namespace warhost {

/// Paints its head itself. Its layout begins at the top of the frame, so that the head can contain widgets.
class CaptionFrame : public QGroupBox {
    Q_OBJECT

public:
    // Heights from the frame's top, in pixels of the base size.
    static constexpr int caption_height = 19; // the line follows
    static constexpr int contents_top = 24;

    using QGroupBox::QGroupBox;

    /// Shows the side's mark before the caption, and both in the side's colour. Index: 0 for Side A, 1 for Side B.
    void set_side(int Index);

    /// A note after the caption, shortened if there is no room; the tool tip then shows all of it.
    void set_note(QString const& note);
    QString const& note() const { return note_; }

    /// A hint at the right end of the head; empty for none. Screen readers get it as the frame's description.
    void set_hint(QString const& hint);

    /// pixels: the width at the right end of the head that a box there occupies.
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
