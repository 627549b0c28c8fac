// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoPages.h"
#include "MvFoto/MvFotoSource.h"
#include "MvFoto/mvfoto_export.h"

#include <QStringList>

/// One painting of a page: while it lives, it is the source of the page's photos, and never waits. A photo that is not
/// there yet is given in another size, if there is one, or not at all.
///
///     MvFotoPass fotos(m_fotoPages, page);
///     paint the page with &fotos as its source
///     if (!fotos.isComplete())
///         return; // MvFotoPages::arrived() follows, to paint it again
///
/// GUI thread; on the stack.
class MVFOTO_EXPORT MvFotoPass : public MvFotoSource
{
public:
    /// The pages must outlive it.
    explicit MvFotoPass(MvFotoPages &pages, int page = 0);
    /// From now on the page wants what was asked for here, in place of what its pass before asked for.
    ~MvFotoPass() override;
    MvFotoPass(const MvFotoPass &) = delete;
    MvFotoPass &operator=(const MvFotoPass &) = delete;

    QImage scaled(const QFileInfo &file, const QSize &bounds) override;

    /// Whether every photo asked for up to now was there; those that cannot be read are.
    bool isComplete() const { return MvFotoPages::isComplete(m_requests); }
    /// The paths of the photos asked for up to now that cannot be read, or are not there.
    QStringList unread() const;

private:
    MvFotoPages &m_pages;
    int m_page;
    MvFotoPages::Requests m_requests;
    QStringList m_absent;
};
