// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvExportFotos.h"

#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvPagePainter.h"

#include <QDateTime>
#include <QMutexLocker>
#include <QPainter>

#include <algorithm>

namespace {

/// From a picture so many times as large, a smaller one is as good as from the file.
constexpr int muchLarger = 2;

bool isMuchLarger(const QSize &image, const QSize &bounds)
{
    return image.width() >= muchLarger * bounds.width() && image.height() >= muchLarger * bounds.height();
}

QImage smaller(const QImage &image, const QFileInfo &file, const QSize &bounds)
{
    const QSize target = MvImageLoader::instance().size(file).scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
    return image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

/// Notes what a page asks for, and gives it nothing.
class MvExportFotos::Notes : public MvFotoSource
{
public:
    Notes(QHash<QString, QList<Use>> &uses, int page)
        : m_uses(uses)
        , m_page(page)
    {}

    QImage scaled(const QFileInfo &file, const QSize &bounds) override
    {
        QList<Use> &uses = m_uses[file.absoluteFilePath()];
        const auto known = std::find_if(uses.begin(), uses.end(), [&](const Use &use) { return use.bounds == bounds; });
        if (known == uses.end())
            uses.append({bounds, m_page});
        else
            known->lastPage = m_page;
        return {};
    }

private:
    QHash<QString, QList<Use>> &m_uses;
    const int m_page;
};

MvExportFotos::State::State(const QFileInfo &file)
    : path(file.absoluteFilePath())
    , changed(file.lastModified().toMSecsSinceEpoch())
    , bytes(file.size())
{}

MvExportFotos::MvExportFotos(const QList<MvCalendarPage> &pages, const MvPageFormat &format)
    : m_pages(pages)
    , m_format(format)
{}

void MvExportFotos::begin(const QPainter &painter, int page)
{
    const QMutexLocker lock(&m_mutex);
    m_page = page;
    if (m_transform == painter.deviceTransform())
        return;
    m_transform = painter.deviceTransform();
    m_uses.clear();
    QImage nothing(1, 1, QImage::Format_RGB32);
    QPainter into(&nothing);
    into.setRenderHints(painter.renderHints()); // the rule is among them
    into.setTransform(m_transform);
    for (int number = 0; number < m_pages.size(); ++number) {
        Notes notes(m_uses, number);
        MvPagePainter(m_pages[number], m_format).paintFotos(into, notes);
    }
}

void MvExportFotos::end(int page)
{
    const QMutexLocker lock(&m_mutex);
    m_kept.removeIf([&](const Kept &kept) { return !isExpected(kept, page); });
    qint64 bytes = 0;
    for (qsizetype i = m_kept.size() - 1; i >= 0; --i) {
        const qint64 size = m_kept[i].image.sizeInBytes();
        if (bytes + size > byteLimit)
            m_kept.removeAt(i);
        else
            bytes += size;
    }
}

/// On a page after this one.
bool MvExportFotos::isExpected(const Kept &kept, int page) const
{
    const QList<Use> uses = m_uses.value(kept.file.path);
    return std::any_of(uses.cbegin(), uses.cend(),
                       [&](const Use &use) { return use.bounds == kept.bounds && use.lastPage > page; });
}

const MvExportFotos::Kept *MvExportFotos::find(const State &file, const QSize &bounds) const
{
    const auto found = std::find_if(m_kept.cbegin(), m_kept.cend(),
                                    [&](const Kept &kept) { return kept.bounds == bounds && kept.file == file; });
    return found == m_kept.cend() ? nullptr : &*found;
}

QImage MvExportFotos::scaled(const QFileInfo &file, const QSize &bounds)
{
    const QFileInfo present(file.filePath()); // the given one may have cached an older state
    const State state(present);
    const QMutexLocker lock(&m_mutex);
    if (bounds.isEmpty())
        return {};
    if (const Kept *known = find(state, bounds))
        return known->image;
    const Kept kept{state, bounds, made(present, state, bounds)};
    m_kept.append(kept);
    if (kept.image.isNull() && !m_unread.contains(state.path))
        m_unread.append(state.path);
    makeSmallOnes(present, kept);
    return kept.image;
}

QImage MvExportFotos::made(const QFileInfo &file, const State &state, const QSize &bounds)
{
    for (const Kept &kept : std::as_const(m_kept)) {
        if (kept.file == state && isMuchLarger(kept.image.size(), bounds))
            return smaller(kept.image, file, bounds);
    }
    return file.isFile() ? MvImageLoader::instance().loadUncached(file, bounds) : QImage();
}

void MvExportFotos::makeSmallOnes(const QFileInfo &file, const Kept &large)
{
    const QList<Use> uses = m_uses.value(large.file.path);
    for (const Use &use : uses) {
        if (use.lastPage > m_page && isMuchLarger(large.image.size(), use.bounds) && !find(large.file, use.bounds))
            m_kept.append({large.file, use.bounds, smaller(large.image, file, use.bounds)});
    }
}

QStringList MvExportFotos::unread() const
{
    const QMutexLocker lock(&m_mutex);
    return m_unread;
}
