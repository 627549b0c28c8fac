// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QIODevice>
#include <QList>

/// Hands an image file to a decoder, read-only: only some stretches of it if need be, and only as long as the thread
/// has computing time left for it. Afterwards every reading fails, so that the decoder gives up. (Computing time: a
/// slow disk does not count against the file.)
class MvImageDevice : public QIODevice
{
public:
    struct Stretch
    {
        qint64 start = 0;
        qint64 length = 0;
    };

    /// Reads all of an open device, which must outlive this one; without a limit at first.
    explicit MvImageDevice(QIODevice *source);

    /// Computing time that this thread has from now on.
    void setTimeLimit(double seconds);

    /// Only these stretches, in their order, as if there was nothing between them.
    void setStretches(const QList<Stretch> &stretches);
    /// Whether a reading has failed because the time was over.
    bool hasRunOut() const { return m_hasRunOut; }

    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice *m_source;
    QList<Stretch> m_stretches;
    qint64 m_size = 0;
    double m_end; // in computing time
    bool m_hasRunOut = false;
};
