// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtTest>

/// Base of every test class: a warning that no test announced fails the test. Brings all of Qt Core and Qt Test along.
class MvTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
};

/// Runs a test class in a QGuiApplication (offscreen) with a temporary user folder that is gone afterwards.
int mvRunTest(int argc, char **argv, QObject *(*create)());

#define MV_TEST_MAIN(Class)                                                                                            \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        return mvRunTest(argc, argv, []() -> QObject * { return new Class; });                                         \
    }
