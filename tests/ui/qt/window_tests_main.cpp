#include "ui/qt/look/page_style.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    // The off-screen platform reports with every window what it lacks; these lines would hide a real warning.
    static QtMessageHandler const standard_handler =
        qInstallMessageHandler([](QtMsgType type, QMessageLogContext const& context, QString const& message) {
            if (!message.startsWith("This plugin does not support")) standard_handler(type, context, message);
        });
    QTemporaryDir const folder;
    // The off-screen platform's own screen is too small for a window at larger fonts.
    QFile screens{folder.filePath("screens.json")};
    QStringList const size = qEnvironmentVariable("WARHOST_TEST_SCREEN", "4000x3000").split('x');
    QString const screen = R"({"screens":[{"name":"one","x":0,"y":0,"width":%1,"height":%2,)"
                           R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";
    screens.open(QIODevice::WriteOnly);
    screens.write(screen.arg(size.at(0), size.at(1)).toUtf8());
    screens.close();
    if (qgetenv("QT_QPA_PLATFORM") != "windows")                         // a real screen
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens.json"); // a drive's colon would end the name
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    QString const start = QDir::currentPath();
    QDir::setCurrent(folder.path());
    QApplication const application{argc, argv};
    QDir::setCurrent(start);
    QApplication::setStyle(new warhost::PageStyle{qEnvironmentVariable("WARHOST_TEST_STYLE", "fusion")});
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
