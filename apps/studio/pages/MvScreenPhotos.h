// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>

/// Photos in the size of the screen, decoded off the GUI thread. To be used from the GUI thread.
///
/// Files that come, go or change are noticed: when the program is activated again, and a file that could not be read
/// also while the program is in use.
class MvScreenPhotos : public QObject
{
    Q_OBJECT

public:
    /// Keeps images of up to so many bytes.
    explicit MvScreenPhotos(qint64 byteLimit, QObject *parent = nullptr);
    /// Waits for the photo that is being decoded; those that wait for their turn are given up.
    ~MvScreenPhotos() override;

    /// The photo, as large as it fits into the bounds (pixels), but never larger than its file has it. Null when it is
    /// not there yet: loaded() follows. While a larger version is being decoded, the smaller one is given.
    QImage photo(const QString &path, const QSize &bounds);

    /// The bounds for a photo that is to cover a frame (pixels), whatever its proportions within reason.
    static QSize boundsFor(const QRectF &frame);

    /// What the file has, in pixels and upright; empty until it has been read.
    QSize fullSize(const QString &path) const { return m_states.value(path).full; }
    /// True once a file has turned out not to be a photo that can be read, until it has changed.
    bool isUnreadable(const QString &path) const { return m_states.value(path).unreadable; }
    /// Reads all files again when they are asked for next.
    void clear();
    /// Looks, in the background, whether files are others than those that were read; these are read again.
    void recheck();

Q_SIGNALS:
    /// What photo() or isUnreadable() gives for the file is new.
    void loaded(const QString &path);

private:
    /// Tells one state of a file from another.
    struct Stamp
    {
        qint64 changed = -1; // milliseconds; -1 for a file that is not there
        qint64 size = -1;

        bool operator==(const Stamp &) const = default;
    };
    struct State
    {
        QSize decoding; // the bounds that are being decoded; empty when none are
        QSize decoded;  // the bounds that the kept image is good for
        QSize full;     // of the file
        Stamp stamp;    // of the file when it was read
        bool unreadable = false;
    };

    struct Decoded
    {
        QImage image; // null for a file that cannot be read
        QSize full;
        Stamp stamp;
    };

    void startDecoding(const QString &path, const QSize &bounds);
    void take(const QString &path, const QSize &bounds, const Decoded &decoded);
    void takeStamps(const QHash<QString, Stamp> &stamps);
    void watchUnreadable();
    static Stamp stampOf(const QString &path);
    static Decoded decode(const QString &path, const QSize &bounds);

    QCache<QString, QImage> m_images; // cost in kilobytes
    QHash<QString, State> m_states;
    std::shared_ptr<std::atomic_bool> m_givenUp;
    QTimer m_watch; // runs while a file cannot be read
    bool m_isRechecking = false;
    QThreadPool m_pool;
};
