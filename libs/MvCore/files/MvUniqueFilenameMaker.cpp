// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvUniqueFilenameMaker.h"

#include <QDir>

template class MvSingleton<MvUniqueFilenameMaker>;

using namespace Qt::StringLiterals;

QFileInfo MvUniqueFilenameMaker::makeUniqueFileName(const QFileInfo &file, bool remember)
{
    const QMutexLocker lock(&m_mutex);
    const QDir folder = file.absoluteDir();
    const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    const auto isTaken = [this](const QString &path) {
        const QFileInfo info(path);
        return m_givenOut.contains(path) || info.exists() || info.isSymLink(); // a dangling link is a taken name
    };

    QString path = file.absoluteFilePath();
    for (int number = 2; isTaken(path); ++number)
        path = folder.absoluteFilePath(u"%1_%2%3"_s.arg(file.completeBaseName(), QString::number(number), suffix));
    if (remember)
        m_givenOut.insert(path);
    return QFileInfo(path);
}
