// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoService.h"

#include <QHash>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QTimer>

#include <optional>

/// The photos of pages in the size of the screen, as MvFotoService decodes them, and what is known of their files. To
/// be used from the GUI thread.
///
/// Files that come, go or change are noticed: when the program is activated again, and a file that could not be read
/// also while the program is in use.
class MvScreenFotos : public QObject
{
    Q_OBJECT

public:
    explicit MvScreenFotos(MvFotoService::Urgency urgency, QObject *parent = nullptr);

    /// The photo, as large as it fits into the bounds (pixels), but never larger than its file has it. Null when it is
    /// not there yet: loaded() follows. While another size is being decoded, one that is at hand is given.
    ///
    /// Each size is decoded for itself: whoever paints a photo asks for the one in which it is painted, and nobody for
    /// another one beside that.
    QImage foto(const QString &path, const QSize &bounds);
    /// Whether foto() would give an image, in whatever size; asks for none.
    bool isAtHand(const QString &path) const;

    /// What the file has, in pixels and upright; empty until it has been read.
    QSize fullSize(const QString &path) const { return m_states.value(path).full; }
    /// True once a file has turned out not to be a photo that can be read, until it has changed.
    bool isUnreadable(const QString &path) const { return m_states.value(path).isUnreadable; }
    /// Reads all files again when they are asked for next.
    void clear();
    /// Looks, in the background, whether files are others than those that were read; these are read again.
    void recheck();

Q_SIGNALS:
    /// What foto() or isUnreadable() gives for the file is new.
    void loaded(const QString &path);

private:
    struct State
    {
        QSize size;             // the bounds that were asked for last; smaller ones are served by them, too
        MvFotoRequest awaited;  // while it is on its way
        QSize full;             // of the file
        MvFotoStamp shownStamp; // of the file when it was read last
        bool isCurrent = false; // nothing speaks against that state
        bool isUnreadable = false;

        std::optional<MvFotoStamp> stamp() const { return isCurrent ? std::optional(shownStamp) : std::nullopt; }
    };

    static QImage otherSize(const QString &path, const State &state);
    void takeArrived(const MvFotoOrder &order);
    void takeStamps(const QHash<QString, MvFotoStamp> &stamps);
    void watchUnreadable();

    MvFotoService::Urgency m_urgency;
    QHash<QString, State> m_states;
    MvFotoRequest m_latest; // stays at hand, however large; the others are left to the cache
    QTimer m_watch;         // runs while a file cannot be read
    bool m_isRechecking = false;
};
