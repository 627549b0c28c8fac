// SPDX-License-Identifier: LGPL-2.1-or-later
// Writes photos of 24 megapixels into a folder: process_fotos FOLDER COUNT
#include "../MvBenchFotos.h"

#include <QString>

int main(int argc, char **argv)
{
    const int count = argc == 3 ? QString::fromLocal8Bit(argv[2]).toInt() : 0;
    for (int number = 1; number <= count; ++number) {
        const QString path = QStringLiteral("%1/%2.jpg").arg(QString::fromLocal8Bit(argv[1])).arg(number);
        if (!MvBenchFotos::painted(MvBenchFotos::largeSize, quint32(number)).save(path, "jpeg", 90))
            return 1;
    }
    return count > 0 ? 0 : 2;
}
