// The About box: title, version, legal notice, disclaimer.
#pragma once

#include <QDialog>

namespace warhost {

/// Modeless and without an owner; closing discards it.
class AboutBox : public QDialog {
    Q_OBJECT

public:
    /// Shows a new box, or brings the open one to the front. The legal notice is about.txt in data_folder; if the file
    /// is missing, the box shows its path instead.
    static void show_box(QString const& data_folder);

private:
    explicit AboutBox(QString const& data_folder);

    void Form_Load();
    void arrange(QString const& notice);
};

} // namespace warhost
