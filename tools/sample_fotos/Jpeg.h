// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>
#include <QString>

class QImage;

namespace Jpeg {

/// Writes the picture as a camera does, with the time at which it was taken. False when the file cannot be written.
bool write(const QImage &image, const QDateTime &taken, const QString &path);

} // namespace Jpeg
