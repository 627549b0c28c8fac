// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QSize>

/// A JPEG file as a PDF takes it in: the picture as it is stored, without what stands beside it. The camera's notes,
/// previews and the place where a photo was taken are nobody's business who gets a calendar.
class MvPdfJpeg
{
public:
    explicit MvPdfJpeg(const QByteArray &file);

    /// Empty for anything but a whole file with 8 bits of grey or of three colours.
    QByteArray content() const { return m_content; }
    QSize size() const { return m_size; }
    bool isGray() const { return m_components == 1; }

private:
    bool readParts(const QByteArray &file);
    bool readFrame(const QByteArray &part);

    QByteArray m_content;
    QSize m_size;
    int m_components = 0;
};
