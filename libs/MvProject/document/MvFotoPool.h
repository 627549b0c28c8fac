// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoInterest.h"
#include "MvProject/mvproject_export.h"

#include <QDateTime>
#include <QList>
#include <QPointF>
#include <QSet>
#include <QSize>
#include <QString>
#include <QStringList>

/// A photo of the pool and what is known of it without decoding it.
struct MvFotoPoolItem
{
    QString path;                 // absolute
    QSize size;                   // in pixels as it is seen, its orientation applied; empty while unknown
    QDateTime captured;           // invalid when the file does not say
    QPointF focus = {0.5, 0.5};   // of the photo in any frame, see MvFotoElement::focus()
    MvFotoInterest interest = {}; // what the focus in a certain frame follows from, see MvFotoAim

    bool operator==(const MvFotoPoolItem &) const = default;
};

/// The photos that somebody has gathered for a calendar, whether or not they stand on a page. A value; each file is in
/// it once.
class MVPROJECT_EXPORT MvFotoPool
{
public:
    enum class Order { Time, Name };

    const QList<MvFotoPoolItem> &items() const { return m_items; }
    bool isEmpty() const { return m_items.isEmpty(); }
    qsizetype size() const { return m_items.size(); }

    bool contains(const QString &path) const { return m_paths.contains(path); }
    /// Null when the file is not in the pool; valid until the pool changes.
    const MvFotoPoolItem *find(const QString &path) const;
    QStringList paths() const;

    /// At the end; false for an empty path and for a file that is there already.
    bool add(const MvFotoPoolItem &item);
    /// Those that were new.
    int add(const QList<MvFotoPoolItem> &items);
    /// The same photo in another file, or with more known of it; false when there is no such file, or the new one is in
    /// the pool already.
    bool replace(const QString &path, const MvFotoPoolItem &item);
    bool remove(const QString &path);
    void clear();
    /// Moves an item to another place, both counted from 0; numbers without an item change nothing.
    void move(int from, int to);
    /// By capture time, photos without one last, then by name as people count ("Bild 9" before "Bild 10"); or by name.
    void sort(Order order);

    bool operator==(const MvFotoPool &other) const { return m_items == other.m_items; }

private:
    qsizetype indexOf(const QString &path) const;

    QList<MvFotoPoolItem> m_items;
    QSet<QString> m_paths;
};
