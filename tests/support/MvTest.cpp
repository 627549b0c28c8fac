#include "MvTest.h"

#include "MvCore/MvDirectoryConfig.h"

#include <QGuiApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

int mvRunTest(int argc, char **argv, QObject *(*create)())
{
    const QTemporaryDir home;
    if (!home.isValid())
        qFatal("no temporary user folder");
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("MVCALENDAR_DATA", home.filePath(QStringLiteral("data/mvcalendar")).toLocal8Bit());
    qunsetenv("MVCALENDAR_RESOURCES");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QGuiApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const std::unique_ptr<QObject> test(create());
    return QTest::qExec(test.get(), argc, argv);
}
