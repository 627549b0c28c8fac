// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPressSheet.h"
#include "MvProject/MvSheetPlan.h"
#include "flows/MvExportOptions.h"

#include <QCoreApplication>
#include <QLineF>
#include <QList>
#include <QPainterPath>
#include <QRectF>

/// What an export puts on its sheets, for a preview: a page with its bleed and the marks of a print shop, or several
/// pages as they lie on the paper. Tiles stay together, as the page that they are glued to. A value; all lengths are
/// tenths of a millimetre.
class MvPreviewSheets
{
    Q_DECLARE_TR_FUNCTIONS(MvPreviewSheets)

public:
    /// One sheet. The places of its pages are in the system of the paper; a page that lies alone has the system of the
    /// page.
    struct Sheet
    {
        QRectF paper;
        QList<MvSheetPlan::Part> parts; // the pages are those of the document
        QPainterPath marks;             // to cut by
        QList<QLineF> foldMarks;
        QString name;

        /// The number of its first page; -1 without any.
        int page() const { return parts.isEmpty() ? -1 : parts.constFirst().page; }
    };

    /// None.
    MvPreviewSheets() = default;
    /// The document has the bleed that is exported.
    MvPreviewSheets(const MvCalendarDocument &document, const MvExportOptions &options);

    int count() const;
    /// Whether sheets are of paper on which several pages lie.
    bool hasSeveral() const;
    /// Empty when there is none.
    Sheet at(int sheet) const;
    /// The sheet with the page; -1 when it is on none.
    int indexOf(int page) const;

    /// Where each page is divided into tiles; empty when it is not.
    QList<QRectF> tiles() const;
    /// How far a bleed is made up beyond pages without one; 0 when it is not.
    double madeUpBleed() const;
    /// Whether pictures that end at the trim get a made-up bleed beside that of the page.
    bool fillsBleedOfPictures() const { return isForPress() && m_document.format().bleed() > 0.0; }
    MvPressSettings::Bleed bleedKind() const { return m_options.forPress.bleedKind; }

private:
    bool isForPress() const { return !m_options.press.isEmpty(); }
    MvPressSheet pressSheet(int page) const;
    MvSheetPlan plan() const { return {m_options.sheets, m_document.format().trimSize(), int(m_options.pages.size())}; }

    MvCalendarDocument m_document;
    MvExportOptions m_options;
};
