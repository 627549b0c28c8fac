// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPdfElement.h"
#include "MvProject/MvPdfPageParts.h"

/// Puts the parts of a painted page into reading order: its heading, then pictures, texts and tables from top to
/// bottom; in tables row after row. The largest of titles and texts is the heading.
class MvPdfPageElements
{
public:
    /// What is handed over must outlive it. Units are those of the parts' bounds; the photo is what a picture without a
    /// description is called.
    MvPdfPageElements(const MvPdfPageParts &parts, double unitsPerPoint, const QString &photo);

    MvPdfElement section(const QString &name) const;

private:
    using Part = MvPdfPageParts::Part;
    using Kind = MvPdfPageParts::Kind;

    int findHeading() const;
    void addPartsOf(int part, std::vector<MvPdfElement> &into) const;
    MvPdfElement element(int part) const;
    MvPdfElement text(int part, const QByteArray &type) const;
    MvPdfElement figure(int part) const;
    MvPdfElement cell(int part) const;
    void addTexts(const Part &cell, std::vector<MvPdfElement> &into) const;
    MvPdfElement table(int part) const;
    QByteArray box(const QRectF &bounds) const;

    const MvPdfPageParts &m_parts;
    const double m_unitsPerPoint;
    const QString m_photo;
    const int m_heading; // the part; decoration: none
};
