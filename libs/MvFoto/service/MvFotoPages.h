// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoService.h"
#include "MvFoto/mvfoto_export.h"

#include <QHash>
#include <QObject>

/// The photos of pages that are painted on the GUI thread, by the number of the page: what MvFotoService has at hand is
/// painted, the rest comes in behind the scenes, and arrived() says when the page is worth painting again.
///
/// A page is painted under an MvFotoPass. What its last pass asked for stays at hand until the next one is over, so
/// that a page whose photos have arrived finds them all. GUI thread.
class MVFOTO_EXPORT MvFotoPages : public QObject
{
    Q_OBJECT

public:
    explicit MvFotoPages(MvFotoService::Urgency urgency, QObject *parent = nullptr);

    /// Gives up what the page's last pass asked for.
    void letGo(int page) { m_pages.remove(page); }

Q_SIGNALS:
    /// All that the last pass of the page lacked is there.
    void arrived(int page);

private:
    friend class MvFotoPass;
    using Requests = QHash<MvFotoOrder, MvFotoRequest>;

    static bool isComplete(const Requests &requests);
    void tellArrival(const MvFotoOrder &order);

    MvFotoService::Urgency m_urgency;
    QHash<int, Requests> m_pages;
};
