// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTest.h"

#include "MvTestHome.h"

#include <QGuiApplication>

#include <memory>

int mvRunTest(int argc, char **argv, QObject *(*create)())
{
    const MvTestHome home;
    const QGuiApplication application(argc, argv);
    const std::unique_ptr<QObject> test(create());
    return QTest::qExec(test.get(), argc, argv);
}
