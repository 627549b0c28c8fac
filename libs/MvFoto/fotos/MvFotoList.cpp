// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoList.h"

#include "MvFoto/MvMediaFormat.h"

#include <QMimeData>
#include <QUrl>

MvFotoList::MvFotoList(const QMimeData *data)
{
    if (!data)
        return;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        const QFileInfo file(url.toLocalFile());
        if (url.isLocalFile() && MvMediaFormat::ofFile(file).isValid())
            append(MvFoto(file));
    }
}
