// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QFileInfo>
#include <QMutex>
#include <QSet>
#include <QString>

class MvUniqueFilenameMaker;
extern template class MVCORE_EXPORT MvSingleton<MvUniqueFilenameMaker>;

/// Finds file names that are still free: "foto.jpg", then "foto_2.jpg", "foto_3.jpg" and so on. Any thread.
class MVCORE_EXPORT MvUniqueFilenameMaker : public MvSingleton<MvUniqueFilenameMaker>
{
public:
    /// The file itself when its name is free, else the next free one in the same folder. With `remember`, a name that
    /// was given out counts as taken for the rest of the run, although its file may not exist yet.
    QFileInfo makeUniqueFileName(const QFileInfo &file, bool remember);

private:
    QMutex m_mutex;
    QSet<QString> m_givenOut; // absolute paths
};
