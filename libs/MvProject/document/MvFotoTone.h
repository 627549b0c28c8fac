// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>

#include <array>

/// Brightness and contrast of a photo, as small corrections that lose nothing: a curve from black to white that runs
/// through both, the same for red, green and blue.
class MvFotoTone
{
public:
    /// Both from -50 to 50, 0 for the photo as it is.
    MvFotoTone(int brightness, int contrast);

    /// The image itself when there is nothing to correct. Transparency stays.
    QImage applied(const QImage &image) const;

private:
    bool m_isNeutral = true;
    std::array<uchar, 256> m_curve = {};
};
