// A captioned frame that loses no room: its layout begins in the caption's own row, at whose right end something may
// stand.
#pragma once

#include <QGroupBox>

namespace warhost {

class CaptionFrame : public QGroupBox {
    Q_OBJECT

public:
    /// margin: pixels to the left, right and bottom of what the frame holds.
    explicit CaptionFrame(int margin, QWidget* parent = nullptr);

    /// Pixels that the caption takes from the top.
    int caption_height() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void tighten();

    int margin_;
};

} // namespace warhost
