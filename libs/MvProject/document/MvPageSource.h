// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/MvPageContent.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPageKind.h"
#include "MvProject/mvproject_export.h"

#include <QDate>
#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <functional>

class QPainter;

/// Pages to be exported: how many, on which paper, and who paints them.
class MVPROJECT_EXPORT MvPageSource
{
public:
    MvPageFormat format;
    /// One page per date, the first day of the month that it shows; file names are made from it.
    QList<QDate> pages;
    /// The pages' numbers in their document, counted from 0, for file names; empty when they are all of it.
    QList<int> numbers;
    /// How many pages their document has; 0 when they are all of it.
    int documentPages = 0;
    /// What each page is for, for file names; empty when all are months.
    QList<MvPageKind> kinds;
    /// What a table of contents calls the pages; empty, or empty for a page, when it is not to name them.
    QStringList names;
    /// What the binding takes of each page, in tenths of a millimetre from its corner; empty when it takes nothing.
    QList<QRectF> bindings;
    /// Paints the page with the number, counted from 0, in tenths of a millimetre with the origin at the top left
    /// corner of the trimmed page.
    std::function<void(QPainter &painter, int page)> paint;
    /// What there is to read on a page, for files that are read; may be missing.
    std::function<MvPageContent(int page)> content;
    /// The paths of the photos that could not be painted so far; may be missing.
    std::function<QStringList()> missingFotos;

    QString title;
    QString author;
    QString language = QStringLiteral("de-DE"); // of the texts on the pages
    QString region;                             // whose holidays they show: its code, or the country's; for file names

    /// Some of the pages, by their places in the list, counted from 0; places out of range are ignored. They keep
    /// their numbers.
    MvPageSource part(const QList<int> &places) const;
    /// A page's number in its document, counted from 0.
    int number(int place) const { return numbers.value(place, place); }
    int documentPageCount() const { return documentPages > 0 ? documentPages : int(pages.size()); }

    MvPageKind kind(int place) const { return kinds.value(place, MvPageKind::Month); }

    /// Whether there is something to export, on a paper with a size.
    MvOutcome check() const;

    /// Has a page painted for print, clipped to the page and its bleed. The trimmed page's corner lies at `corner` of
    /// the device and a tenth of a millimetre measures `scale` of its units. The painter's state is as before after.
    void paintPage(QPainter &painter, int page, const QPointF &corner, double scale) const;
};
