// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTestHome.h"

#include <QLocale>

MvTestHome::MvTestHome()
{
    if (!m_home.isValid())
        qFatal("no temporary user folder");
    qputenv("XDG_CONFIG_HOME", m_home.filePath(QStringLiteral("config")).toLocal8Bit());
    qputenv("XDG_DATA_HOME", m_home.filePath(QStringLiteral("data")).toLocal8Bit());
    qputenv("MVCALENDAR_DATA", m_home.filePath(QStringLiteral("data/mvcalendar")).toLocal8Bit());
    qunsetenv("MVCALENDAR_RESOURCES");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(qEnvironmentVariable("MV_TEST_LOCALE", QStringLiteral("de_DE"))));
}
