// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFoto.h"
#include "MvFoto/mvfoto_export.h"

#include <QList>

class QMimeData;

/// Photos in order.
class MVFOTO_EXPORT MvFotoList : public QList<MvFoto>
{
public:
    using QList<MvFoto>::QList;
    MvFotoList() = default;

    /// What is dropped or pasted: the local files whose content is a photo. Everything else is left out.
    explicit MvFotoList(const QMimeData *data);
};
