// SPDX-License-Identifier: LGPL-2.1-or-later
// The least that a program with fonts and pictures costs.
#include <QGuiApplication>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    return 0;
}
