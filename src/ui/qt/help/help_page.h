// One page of the manual, or a plain page that states why there is none.
#pragma once

#include <QImage>
#include <QTextBrowser>

namespace warhost {

class HelpPage : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpPage(QString folder, QWidget* parent = nullptr);

    /// page: the name of its file. anchor: empty for the top.
    void show_page(QString const& page, QString const& anchor);
    /// Selects the text of the page between two positions and scrolls to it.
    void mark(int begin, int end);
    void show_missing_manual();
    void show_unknown_topic(int topic);

    /// A step is a tenth of the window's font size; the text stays between half and three times that size.
    void zoom(int steps);
    void zoom_to_normal();

protected:
    QVariant loadResource(int type, QUrl const& name) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QString notice(QUrl const& name) const;
    QImage picture(QByteArray const& bytes) const;
    int line_width() const;
    int page_width() const;
    int last_position() const;
    void select(int anchor, int position);
    void show_anew();

    QString folder_;
    int percent_ = 100;
};

} // namespace warhost
