// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageIOHandler>
#include <QSize>
#include <QString>

#include <memory>

class MvExif;
class MvHeifImage;
class MvImageDevice;
class QIODevice;
class QImageReader;

/// Reads an image that may come from anybody, within bounds of memory and time: turned as the camera says, in sRGB.
///
/// Only regular files in the formats of MvImageFormat are opened. A small file can claim a picture of gigabytes, or
/// make a decoder go over it thousands of times; that is seen before decoding, and what takes too long is given up.
/// Everything refused has an error() for a person. What the process lets image readers allocate is a bound, too
/// (MvImageLoader::raiseProcessLimit()). Any thread, one at a time; decoding belongs off the GUI thread
/// unless isQuick().
class MVFOTO_EXPORT MvGuardedImageReader
{
    Q_DECLARE_TR_FUNCTIONS(MvGuardedImageReader)

public:
    static constexpr qint64 memoryLimit = qint64(1) << 30; // bytes that decoding may take
    static constexpr double timeLimit = 12.0;              // seconds of computing time for one image
    static constexpr int scanLimit = 64;                   // passes of a JPEG; usual are 1 and some 10
    static constexpr qint64 fileLimit = qint64(2) << 30;   // bytes

    explicit MvGuardedImageReader(const QFileInfo &file);
    /// An image in memory, such as one of an address book.
    explicit MvGuardedImageReader(const QByteArray &content);
    ~MvGuardedImageReader();
    MvGuardedImageReader(const MvGuardedImageReader &) = delete;
    MvGuardedImageReader &operator=(const MvGuardedImageReader &) = delete;

    /// As MvImageFormat names it, by content; empty when it is none of these.
    QByteArray format() const { return m_format; }
    /// In pixels, after turning, from the head of the file; invalid when it cannot be read. Says nothing about limits.
    QSize size() const;
    /// What the camera noted beside the picture.
    MvExif exif() const;
    /// Whether read() takes no longer than a window may stand still.
    bool isQuick();

    /// Another limit than `timeLimit`, counted from now on.
    void setTimeLimit(double seconds);

    /// The image scaled smoothly, keeping its aspect ratio, to the largest size within the bounds, at least one pixel
    /// wide and high; smaller images grow. Empty bounds: in full size. Null when there is an error. Once only.
    QImage read(const QSize &bounds);
    /// Whether what was read are the very pixels of a JPEG file: neither scaled nor turned nor converted.
    bool isUnchangedJpeg() const { return m_isUnchangedJpeg; }

    /// Why the image cannot be read, in one sentence; empty as long as nothing speaks against it.
    QString error() const { return m_error; }

private:
    void open();
    void openReader();
    bool isTurned() const;
    QSize decodedSize(const QSize &full) const { return full.expandedTo(m_canvas); }
    bool isHollow(const QSize &full) const;
    bool isWithinLimits(const QSize &full, const QSize &target);
    qint64 largestImage(const QSize &full, const QSize &target) const;
    qint64 neededMemory(const QSize &full, const QSize &target) const;
    QSize givenSize(const QSize &full, const QSize &target) const;
    void lookThrough();
    bool hasRunOut() const;
    QImage decoded(const QSize &full, const QSize &target);
    QImage readyToPaint(QImage image, const QSize &target) const;

    std::unique_ptr<QIODevice> m_source;
    std::unique_ptr<MvImageDevice> m_device;
    std::unique_ptr<QImageReader> m_reader; // of all formats but HEIC
    std::unique_ptr<MvHeifImage> m_heif;
    QByteArray m_format;
    QImageIOHandler::Transformations m_turn; // from how it is stored; none for HEIC, whose decoder turns
    QSize m_canvas;                          // of a GIF
    bool m_isLookedThrough = false;
    int m_scans = 1;
    bool m_mayBeCutOff = false;
    bool m_isUnchangedJpeg = false;
    QString m_error;
};
