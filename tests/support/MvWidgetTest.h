#pragma once

#include "MvTest.h"

#include <QtWidgets/QtWidgets>

/// Runs a test class in a QApplication (offscreen, Fusion) with a temporary user folder that is gone afterwards.
int mvRunWidgetTest(int argc, char **argv, QObject *(*create)());

#define MV_WIDGET_TEST_MAIN(Class)                                                                                     \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        return mvRunWidgetTest(argc, argv, []() -> QObject * { return new Class; });                                   \
    }
