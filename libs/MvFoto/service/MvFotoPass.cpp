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

QImage MvFotoPass::scaled(const QFileInfo &file, const QSize &bounds)
{
    const QString path = file.absoluteFilePath();
    const MvFotoStamp stamp = MvFotoStamp::of(path); // the given information may be of an older state
    if (bounds.isEmpty() || stamp == MvFotoStamp())
        return {};
    MvFotoService &service = MvFotoService::instance();
    const MvFotoOrder order{path, bounds, MvFotoOrder::Fit::Within, stamp};
    const MvFotoRequest request = service.request(order, m_pages.m_urgency);
    m_requests.insert(order, request);
    return request.isDone() ? request.image() : service.otherSize(order);
}
