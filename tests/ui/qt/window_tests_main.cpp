#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// The off-screen platform's own screen is too small for a window at larger fonts.
void describe_screen(QString const& path, QByteArray const& size)
{
    int width = 4000;
    int height = 3000;
    std::sscanf(size.constData(), "%dx%d", &width, &height);
    QFile file{path};
    file.open(QIODevice::WriteOnly);
    file.write(QString{"{\"screens\":[{\"name\":\"one\",\"x\":0,\"y\":0,\"width\":%1,\"height\":%2,\"logicalDpi\":96,"
                       "\"logicalBaseDpi\":96,\"dpr\":1}]}"}
                   .arg(width)
                   .arg(height)
                   .toUtf8());
}

} // namespace

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    QTemporaryDir const folder;
    QString const path = folder.filePath("screens.json");
    describe_screen(path, qgetenv("WARHOST_TEST_SCREEN"));
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toUtf8());
    QApplication const application{argc, argv};
    QApplication::setStyle(qEnvironmentVariable("WARHOST_TEST_STYLE", "fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
