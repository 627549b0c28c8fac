// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoPass.h"

MvFotoPass::MvFotoPass(MvFotoPages &pages, int page)
    : m_pages(pages)
    , m_page(page)
{}

MvFotoPass::~MvFotoPass()
{
    m_pages.m_pages.insert(m_page, m_requests);
}

QStringList MvFotoPass::unread() const
{
    QStringList paths = m_absent;
    for (auto request = m_requests.cbegin(); request != m_requests.cend(); ++request) {
        if (request->isDone() && request->image().isNull())
            paths.append(request.key().path);
    }
    paths.removeDuplicates();
    return paths;
}

QImage MvFotoPass::scaled(const QFileInfo &file, const QSize &bounds)
{
    const QString path = file.absoluteFilePath();
    const MvFotoStamp stamp = MvFotoStamp::of(path); // the given information may be of an older state
    if (bounds.isEmpty())
        return {};
    if (stamp == MvFotoStamp()) {
        m_absent.append(path);
        return {};
    }
    MvFotoService &service = MvFotoService::instance();
    const MvFotoOrder order{path, bounds, MvFotoOrder::Fit::Within, stamp};
    const MvFotoRequest request = service.request(order, m_pages.m_urgency);
    m_requests.insert(order, request);
    return request.isDone() ? request.image() : service.otherSize(order);
}
