// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvScreenFotoSource.h"

#include "pages/MvScreenFotos.h"

#include <QFileInfo>

QImage MvScreenFotoSource::scaled(const QFileInfo &file, const QSize &bounds)
{
    return m_fotos.foto(file.filePath(), bounds);
}

QSize MvScreenFotoSource::fullSize(const QFileInfo &file)
{
    const QSize known = m_fotos.fullSize(file.filePath());
    return known.isEmpty() ? MvFotoSource::fullSize(file) : known;
}
