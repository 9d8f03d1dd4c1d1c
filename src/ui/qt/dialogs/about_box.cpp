#include "ui/qt/dialogs/about_box.h"

#include "ui/desktop.h"
#include "ui/qt/look/scale.h"
#include "ui/version.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace warhost {

namespace {

constexpr int client_width = 5715; // twips
constexpr int client_height = 4335;
constexpr double title_points = 12;
constexpr int emblem_pixels = 108;

QLabel* label(char const* name, char const* text = "", bool bold = false)
{
    auto* const made = new QLabel{text};
    made->setObjectName(name);
    made->setTextFormat(Qt::PlainText);
    if (bold) {
        QFont font;
        font.setBold(true);
        made->setFont(font);
    }
    return made;
}

/// A line of one pixel in one of the palette's shades.
QWidget* line(char const* name, QPalette::ColorRole shade)
{
    auto* const made = new QWidget;
    made->setObjectName(name);
    made->setAutoFillBackground(true);
    made->setBackgroundRole(shade);
    made->setFixedHeight(1);
    return made;
}

QLabel* emblem()
{
    auto* const picIcon = label("picIcon");
    picIcon->setFixedSize(emblem_pixels, emblem_pixels);
    picIcon->setPixmap(QPixmap{":/icons/emblem.png"});
    picIcon->setAccessibleName("The emblem of Warhost");
    return picIcon;
}

QLabel* title(double scale)
{
    auto* const lblTitle = label("lblTitle", "", true);
    QFont font = lblTitle->font();
    font.setPointSizeF(title_points * scale);
    lblTitle->setFont(font);
    return lblTitle;
}

QPlainTextEdit* notice_box(QString const& notice)
{
    auto* const TextOGL = new QPlainTextEdit{notice};
    TextOGL->setObjectName("TextOGL");
    TextOGL->setAccessibleName("Legal notice");
    TextOGL->setReadOnly(true);
    TextOGL->setTabChangesFocus(true);
    TextOGL->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    TextOGL->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    return TextOGL;
}

QString legal_notice(QString const& folder)
{
    QString const path = QDir{folder}.absoluteFilePath("about.txt");
    QFile file{path};
    if (!file.open(QIODevice::ReadOnly)) return "The legal notice was not found: " + QDir::toNativeSeparators(path);
    return QString::fromUtf8(file.readAll());
}

} // namespace

void AboutBox::show_box(QString const& data_folder)
{
    static QPointer<AboutBox> open_box;
    if (!open_box) {
        open_box = new AboutBox{data_folder};
        connect(qApp, &QCoreApplication::aboutToQuit, open_box, &QWidget::close);
    }
    open_box->show();
    open_box->raise();
    open_box->activateWindow();
}

AboutBox::AboutBox(QString const& data_folder)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint)
{
    setObjectName("frmAbout");
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    arrange(legal_notice(data_folder));
    Form_Load();
}

void AboutBox::Form_Load()
{
    setWindowTitle(QString{"About "} + program_title);
    findChild<QLabel*>("lblVersion")
        ->setText(QString{"Version %1.%2.%3"}.arg(version_major).arg(version_minor).arg(version_revision));
    findChild<QLabel*>("lblTitle")->setText(program_title);
}

void AboutBox::arrange(QString const& notice)
{
    double const scale = growth(font());
    double const base = Scale::base_twips_per_pixel;
    setFixedSize(QSizeF{client_width / base * scale, client_height / base * scale}.toSize());

    auto* const TextOGL = notice_box(notice);
    auto* const cmdOK = new QPushButton{"OK"};
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close); // Escape closes the dialog by itself

    auto* const heads = new QVBoxLayout;
    heads->setSpacing(4);
    heads->addSpacing(6);
    heads->addWidget(title(scale));
    heads->addWidget(label("lblVersion"));
    heads->addStretch();
    heads->addWidget(label("Label1", "Open Gaming License Version 1.0a", true));

    auto* const top = new QHBoxLayout;
    top->setSpacing(12);
    top->addWidget(emblem(), 0, Qt::AlignTop);
    top->addLayout(heads, 1);

    auto* const etched = new QVBoxLayout;
    etched->setSpacing(0);
    etched->addWidget(line("Line1(0)", QPalette::Mid));
    etched->addWidget(line("Line1(1)", QPalette::Light));

    auto* const bottom = new QHBoxLayout;
    bottom->addWidget(label("lblDisclaimer", "Disclaimer: Use this program at your own risk."));
    bottom->addStretch();
    bottom->addWidget(cmdOK);

    auto* const rows = new QVBoxLayout{this};
    rows->setContentsMargins(8, 8, 8, 8);
    rows->setSpacing(6);
    rows->addLayout(top);
    rows->addWidget(TextOGL, 1);
    rows->addLayout(etched);
    rows->addLayout(bottom);

    setTabOrder(TextOGL, cmdOK);
    cmdOK->setFocus();
}

} // namespace warhost
