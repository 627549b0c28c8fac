// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFoto.h"
#include "MvFoto/mvfoto_export.h"

#include <QImage>

#include <functional>

class QObject;

/// Loads photos without keeping windows from answering. GUI thread.
class MVFOTO_EXPORT MvFotoLoader
{
public:
    /// Hands over the photo in medium resolution (MvFotoAccess::midRes()): a small one before returning, a large one
    /// when it has been decoded in the background, unless the receiver is gone by then. Null when it cannot be read.
    static void midRes(const MvFoto &foto, int quality, int caching, QObject *receiver,
                       const std::function<void(const QImage &)> &use);
};
