// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoPool.h"

#include <QCollator>
#include <QFileInfo>

#include <algorithm>

const MvFotoPoolItem *MvFotoPool::find(const QString &path) const
{
    const qsizetype index = indexOf(path);
    return index < 0 ? nullptr : &m_items[index];
}

QStringList MvFotoPool::paths() const
{
    QStringList paths;
    for (const MvFotoPoolItem &item : m_items)
        paths.append(item.path);
    return paths;
}

bool MvFotoPool::add(const MvFotoPoolItem &item)
{
    if (item.path.isEmpty() || m_paths.contains(item.path))
        return false;
    m_paths.insert(item.path);
    m_items.append(item);
    return true;
}

int MvFotoPool::add(const QList<MvFotoPoolItem> &items)
{
    return int(std::count_if(items.begin(), items.end(), [this](const MvFotoPoolItem &item) { return add(item); }));
}

bool MvFotoPool::replace(const QString &path, const MvFotoPoolItem &item)
{
    const qsizetype index = indexOf(path);
    if (index < 0 || item.path.isEmpty() || (item.path != path && contains(item.path)))
        return false;
    m_paths.remove(path);
    m_paths.insert(item.path);
    m_items[index] = item;
    return true;
}

bool MvFotoPool::remove(const QString &path)
{
    const qsizetype index = indexOf(path);
    if (index < 0)
        return false;
    m_items.removeAt(index);
    m_paths.remove(path);
    return true;
}

void MvFotoPool::clear()
{
    *this = {};
}

void MvFotoPool::move(int from, int to)
{
    if (from >= 0 && from < m_items.size() && to >= 0 && to < m_items.size())
        m_items.move(from, to);
}

void MvFotoPool::sort(Order order)
{
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(m_items.begin(), m_items.end(), [&](const MvFotoPoolItem &a, const MvFotoPoolItem &b) {
        if (order == Order::Time && a.captured != b.captured) {
            if (a.captured.isValid() != b.captured.isValid())
                return a.captured.isValid();
            return a.captured < b.captured;
        }
        const int names = collator.compare(QFileInfo(a.path).fileName(), QFileInfo(b.path).fileName());
        return names != 0 ? names < 0 : a.path < b.path;
    });
}

qsizetype MvFotoPool::indexOf(const QString &path) const
{
    if (!contains(path))
        return -1;
    const auto found = std::find_if(m_items.cbegin(), m_items.cend(),
                                    [&path](const MvFotoPoolItem &item) { return item.path == path; });
    return found - m_items.cbegin();
}
