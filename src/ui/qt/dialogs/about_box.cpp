#include "ui/qt/dialogs/about_box.h"

#include "ui/desktop.h"
#include "ui/qt/dialogs/dialog_parts.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/look/type.h"
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
constexpr int margin = 12; // pixels of the base size
constexpr int gap = 8;
constexpr int notice_margin = 8;
constexpr int emblem_pixels = 108;

QLabel* label(char const* name, char const* text = "")
{
    auto* const made = new QLabel{text};
    made->setObjectName(name);
    made->setTextFormat(Qt::PlainText);
    return made;
}

QLabel* emblem()
{
    auto* const picIcon = label("picIcon");
    picIcon->setFixedSize(emblem_pixels, emblem_pixels);
    picIcon->setPixmap(QPixmap{":/icons/emblem.png"});
    picIcon->setAccessibleName("Warhost emblem");
    return picIcon;
}

QPlainTextEdit* notice_box(QString const& notice, Scale const& scale)
{
    auto* const TextOGL = new QPlainTextEdit{notice};
    TextOGL->setObjectName("TextOGL");
    TextOGL->setAccessibleName("Legal notice");
    TextOGL->setReadOnly(true);
    TextOGL->setTabChangesFocus(true);
    TextOGL->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    TextOGL->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    TextOGL->document()->setDocumentMargin(scale.from_base(notice_margin));
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
    Scale const scale = scale_of(this);
    setFixedSize(scale.from_twips(client_width, client_height));

    auto* const lblTitle = label("lblTitle");
    set_type(*lblTitle, font(), type::program_title);
    auto* const Label1 = label("Label1", "Open Gaming License Version 1.0a");
    set_type(*Label1, font(), type::licence);
    auto* const heads = new QVBoxLayout;
    heads->setSpacing(scale.from_base(4));
    heads->addSpacing(scale.from_base(10));
    heads->addWidget(lblTitle);
    heads->addWidget(label("lblVersion"));
    heads->addStretch();
    heads->addWidget(Label1);

    auto* const top = new QHBoxLayout;
    top->setSpacing(scale.from_base(margin));
    top->addWidget(emblem(), 0, Qt::AlignTop);
    top->addLayout(heads, 1);

    auto* const TextOGL = notice_box(notice, scale);
    auto* const etched = new QVBoxLayout;
    etched->setSpacing(0);
    auto* const grey = new Rule{Qt::Horizontal, this};
    grey->setObjectName("Line1(0)");
    auto* const white = new QWidget;
    white->setObjectName("Line1(1)");
    white->setFixedHeight(grey->height());
    white->setBackgroundRole(QPalette::Base);
    white->setAutoFillBackground(true);
    etched->addWidget(grey);
    etched->addWidget(white);

    auto* const cmdOK = new QPushButton{"OK"};
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close); // a QDialog closes on Escape without this
    auto* const bottom = new QHBoxLayout;
    bottom->addWidget(label("lblDisclaimer", "Disclaimer: Use this program at your own risk."));
    bottom->addStretch();
    bottom->addWidget(cmdOK);

    auto* const rows = new QVBoxLayout{this};
    int const free = scale.from_base(margin);
    rows->setContentsMargins(free, free, free, free);
    rows->setSpacing(scale.from_base(gap));
    rows->addLayout(top);
    rows->addWidget(TextOGL, 1);
    rows->addLayout(etched);
    rows->addLayout(bottom);

    setTabOrder(TextOGL, cmdOK);
    cmdOK->setFocus();
}

} // namespace warhost
