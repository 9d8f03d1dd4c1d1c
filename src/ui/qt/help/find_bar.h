// The bar below a page that finds text in it.
#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextEdit;

namespace warhost {

/// Hidden until opened; Escape closes it and returns the focus to the page.
class FindBar : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QTextEdit& page, QWidget* parent = nullptr);

    void open();
    void find_next();
    void find_previous();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void close_bar();
    void find_while_typing();
    void find(QTextDocument::FindFlags direction);

    QTextEdit& page_;
    QLineEdit* text_;
    QLabel* message_;
};

} // namespace warhost
