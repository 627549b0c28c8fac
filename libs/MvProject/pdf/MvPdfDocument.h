// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvPaint/MvTextOutline.h"
#include "MvProject/MvInkUse.h"
#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfFonts.h"
#include "MvProject/MvPdfImages.h"
#include "MvProject/MvPdfStructure.h"
#include "MvProject/MvPressSettings.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QList>
#include <QRectF>
#include <QString>

#include <memory>

class MvPaintRecording;
class MvPdfContent;
class MvPdfMadeUpBleed;
class MvPdfPagePainter;
class MvPdfPageParts;
class MvPressColors;
class MvPressSheet;
class QFile;

/// A PDF of recorded pages: vectors, glyphs and pictures once for all pages, exact boxes, bookmarks, metadata, sRGB as
/// output intent, a structure to be read aloud by. Pages are written as they come, so memory does not grow with their
/// number. Any thread, one at a time.
///
/// For a press it has that one's inks and output intent, and its pages lie on larger sheets with marks (PDF/X-4).
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
        QRectF binding = {};     // what the binding takes of the page
        MvTextOutline slug = {}; // the line about the page beside it; only on a sheet for the press
    };

    explicit MvPdfDocument(const Description &description, const MvPressSettings &press = {});
    ~MvPdfDocument();
    MvPdfDocument(const MvPdfDocument &) = delete;
    MvPdfDocument &operator=(const MvPdfDocument &) = delete;

    /// The recording has the corner of the media box at (0, 0) and so many dots per inch.
    void addPage(const Page &page, const MvPaintRecording &recording, double dotsPerInch);

    /// Now, or the date that files are to be reproducible with (SOURCE_DATE_EPOCH).
    static QDateTime dateOfFile();

    /// Where the pages, counted from 0, have most ink; of a file for the press.
    QList<MvInkUse> inks() const { return m_inks; }

    /// Writes to the file, which is open and empty. Once.
    MvOutcome write(QFile &file);

private:
    static QTransform unitsOn(const MvPressSheet &sheet);
    MvPdfContent startOfSheet(const MvPressSheet &sheet, const Page &page, const MvPaintRecording &recording,
                              const QTransform &dotsToUnits);
    int addPageObject(const Page &page, const MvPdfContent &painted, const MvPdfPageParts &parts);
    MvPdfContent endOfSheet(const MvPressSheet &sheet, const Page &page, const MvPdfPagePainter &painter,
                            const MvPaintRecording &recording, const QTransform &dotsToUnits);
    MvPdfMadeUpBleed madeUpBleed(const MvPressSheet &sheet);
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
    const MvPressSettings m_press;
    const std::unique_ptr<const MvPressColors> m_pressColors;
    MvPdfFile m_file;
    MvPdfFonts m_fonts{m_file};
    MvPdfImages m_images{m_file, m_pressColors.get(), m_press.keepsFotoColors};
    QCryptographicHash m_hash{QCryptographicHash::Sha1}; // of the pages' contents, for the press
    QList<MvInkUse> m_inks;
    MvPdfStructure m_structure{m_file};
    int m_pageTree;
    QList<int> m_pages; // their objects
    QList<Bookmark> m_bookmarks;
};
