// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvTest.h"

#include <QtWidgets/QtWidgets>

/// Base of test classes with windows: what the offscreen platform cannot do is no fault of ours.
class MvWidgetTest : public MvTest
{
    Q_OBJECT

protected:
    static void failOnWarnings()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    }

private Q_SLOTS:
    void init() { failOnWarnings(); }
};

/// Runs a test class in a QApplication (offscreen, Fusion) with a temporary user folder that is gone afterwards.
int mvRunWidgetTest(int argc, char **argv, QObject *(*create)());

#define MV_WIDGET_TEST_MAIN(Class)                                                                                     \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        return mvRunWidgetTest(argc, argv, []() -> QObject * { return new Class; });                                   \
    }
