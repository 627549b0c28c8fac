// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvWidgetTest.h"

#include "MvTestHome.h"

#include <QApplication>

#include <memory>

int mvRunWidgetTest(int argc, char **argv, QObject *(*create)())
{
    const MvTestHome home;
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const std::unique_ptr<QObject> test(create());
    return QTest::qExec(test.get(), argc, argv);
}
