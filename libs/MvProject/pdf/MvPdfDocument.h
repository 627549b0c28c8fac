// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfFonts.h"
#include "MvProject/MvPdfImages.h"
#include "MvProject/MvPdfStructure.h"

#include <QList>
#include <QRectF>
#include <QString>

class MvPaintRecording;

/// A PDF of recorded pages: vectors, glyphs and pictures once for all pages, exact boxes, bookmarks, metadata, sRGB as
/// output intent, a structure to be read aloud by. Pages are written as they come, so memory does not grow with their
/// number. Any thread, one at a time.
class MvPdfDocument
{
public:
    /// Points of a PDF, 1/72 inch, per tenth of a millimetre.
    static constexpr double pointsPerTenthMillimetre = 72.0 / 254.0;

    struct Description
    {
        QString title;
        QString author;
        QString language; // "de-DE"
    };
    struct Page
    {
        QString name; // of its bookmark; without one it has none
        QRectF media; // with bleed; tenths of a millimetre, downwards from any corner, as are all rectangles
        QRectF trim;
    };

    explicit MvPdfDocument(const Description &description);

    /// The recording has the corner of the media box at (0, 0) and so many dots per inch.
    void addPage(const Page &page, const MvPaintRecording &recording, double dotsPerInch);

    /// Writes the file. Once.
    MvOutcome write(const QString &path);

private:
    int addBookmarks();
    int addOutputIntent();
    int addMetadata();
    bool isForEverybody() const;

    struct Bookmark
    {
        QString name;
        int page;
    };

    const Description m_description;
    MvPdfFile m_file;
    MvPdfFonts m_fonts{m_file};
    MvPdfImages m_images{m_file};
    MvPdfStructure m_structure{m_file};
    int m_pageTree;
    QList<int> m_pages; // their objects
    QList<Bookmark> m_bookmarks;
};
