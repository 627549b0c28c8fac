// SPDX-License-Identifier: LGPL-2.1-or-later
// The least that a program without windows and fonts costs.
#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return 0;
}
