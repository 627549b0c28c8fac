// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoSource.h"
#include "MvProject/MvCalendarPage.h"

#include <QHash>
#include <QList>
#include <QMutex>
#include <QStringList>
#include <QTransform>

class QPainter;

/// The photos of pages that are painted one after the other, as an export does: decoded at once, in the thread that
/// asks, and let go after their last use, so that memory is that of one page's photos, however many pages there are.
///
/// What the pages will ask for is found out before the first of them is painted. So a photo that comes again is kept,
/// within `byteLimit`, and one that comes again much smaller, as on a back that shows all photos of the year, is made
/// of the large one while that is there; as is what a page needs to measure how legible something is on a photo. What
/// could not be read is remembered by name. Any thread; who asks at the same time waits.
class MvExportFotos : public MvFotoSource
{
public:
    static constexpr qint64 byteLimit = qint64(64) << 20; // of what is kept for pages ahead: more than fills an A4

    /// In the order in which they are painted.
    MvExportFotos(const QList<MvCalendarPage> &pages, const MvPageFormat &format);

    /// To be called before a page, counted from 0, is painted, with its painter ready, and after it. Pages may come in
    /// any order, at the price of reading photos again.
    void begin(const QPainter &painter, int page);
    void end(int page);

    QImage scaled(const QFileInfo &file, const QSize &bounds) override;

    /// The photos that were asked for and could not be read, or were not there; each once.
    QStringList unread() const;

private:
    struct State // of a file
    {
        QString path;
        qint64 changed = 0;
        qint64 bytes = 0;

        explicit State(const QFileInfo &file);
        bool operator==(const State &) const = default;
    };
    struct Kept
    {
        State file;
        QSize bounds;
        QImage image; // null: cannot be read
    };
    struct Use
    {
        QSize bounds;
        int lastPage = 0;
    };
    class Notes;

    const Kept *find(const State &file, const QSize &bounds) const;
    bool isExpected(const Kept &kept, int page) const;
    QImage made(const QFileInfo &file, const State &state, const QSize &bounds);
    void makeSmallOnes(const QFileInfo &file, const Kept &large);

    const QList<MvCalendarPage> m_pages;
    const MvPageFormat m_format;
    mutable QMutex m_mutex; // for what follows
    QTransform m_transform; // for which the uses hold
    QHash<QString, QList<Use>> m_uses;
    QList<Kept> m_kept; // latest last
    QStringList m_unread;
    int m_page = 0; // that is being painted
};
