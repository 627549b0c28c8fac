// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProject/MvSheetSettings.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QLineF>
#include <QList>
#include <QRectF>
#include <QString>

/// Which part of which page lies where on which sheet, and where to cut. All lengths are tenths of a millimetre,
/// downwards from the upper left corner of the sheet or of the trimmed page.
///
/// Tiles share a page evenly, so that none is a sliver. Each is cut along its left and upper edge and glued onto what
/// its neighbours have beyond theirs. Several pages on a sheet are as large as the sheet lets them be, and never
/// enlarged.
class MVPROJECT_EXPORT MvSheetPlan
{
    Q_DECLARE_TR_FUNCTIONS(MvSheetPlan)

public:
    struct Part
    {
        int page = 0; ///< counted from 0
        QRectF part;  ///< of the page
        QRectF place; ///< on the sheet
    };

    /// So many pages of that trimmed size.
    MvSheetPlan(const MvSheetSettings &settings, const QSizeF &page, int pageCount);

    /// Why it cannot be done, for a person; empty when it can. Nothing else is to be asked then.
    QString error() const { return m_error; }

    /// The paper as it is turned.
    QSizeF sheet() const { return m_sheet; }
    int sheetCount() const { return m_sheetCount; }
    int columns() const { return m_columns; }
    int rows() const { return m_rows; }
    /// Of the pages on the sheets; at most 1.
    double scale() const { return m_scale; }

    /// What lies on the sheet, counted from 0; may be none on the last ones.
    QList<Part> parts(int sheet) const;
    /// Lines beside the pages along which to cut, and where the neighbouring tiles will end.
    QList<QLineF> cutMarks(int sheet) const;
    QList<QLineF> joinMarks(int sheet) const;
    /// Column and row of a tile, "B2 von C4", or which sheet of a stack it is, in the calendar's language; empty for
    /// others.
    QString name(int sheet, const MvLocale &language) const;
    /// Where that may stand, between marks; empty when there is no room for it.
    QRectF nameRoom() const;

    bool isTwoSided() const { return m_settings.isTwoSided; }
    /// Whether a sheet printed on both sides is turned about its long edge: always about the left or right one.
    bool isTurnedAboutLongEdge() const { return m_sheet.height() >= m_sheet.width(); }

    /// What becomes of the pages, for a person: "Jede Seite wird zu 2 × 3 Blättern."
    QString description() const;

private:
    QString planTiles();
    QString planSeveral();
    bool isTiled() const { return m_settings.kind == MvSheetSettings::Kind::Tiles; }
    bool isStack() const { return m_settings.kind == MvSheetSettings::Kind::Several && m_settings.isForCutting; }
    bool isToTheEdge() const { return besideRoom() == 0.0; }
    /// What is left of a sheet within the printer's margin and, where there are any, the marks.
    QSizeF room(const QSizeF &sheet) const;
    double besideRoom() const;
    double gap() const;
    QRectF block() const;
    QRectF cell(int number) const;
    QList<double> cuts(double from, double length, int count, int place) const;
    QList<QLineF> marks(const QList<double> &across, const QList<double> &atHeight) const;
    int pageAt(int sheet, int cell) const;
    bool isBack(int sheet) const { return m_settings.isTwoSided && sheet % 2 == 1; }

    const MvSheetSettings m_settings;
    const QSizeF m_page;
    const int m_pageCount;
    QString m_error;
    QSizeF m_sheet;
    QSizeF m_cell; // of a page, or a tile, on the sheet
    int m_columns = 1;
    int m_rows = 1;
    int m_sheetCount = 0;
    double m_scale = 1.0;
};
