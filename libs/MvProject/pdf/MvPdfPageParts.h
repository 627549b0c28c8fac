// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintMark.h"
#include "MvProject/MvPdfWholeTexts.h"

#include <QHash>
#include <QList>
#include <QRectF>

#include <vector>

struct MvPaintRecordingData;

/// The parts of a page that are read, found by the marks of a recording, and which of them each painted thing belongs
/// to. Numbers what is marked in the page's content.
class MvPdfPageParts
{
public:
    using Kind = MvPaintMark::Kind;

    /// The part that is the page, and the number of what is no part of anything.
    static constexpr int page = 0;
    static constexpr int decoration = -1;

    struct Part
    {
        Kind kind = Kind::Group;
        int row = 0;
        int column = 0;
        int around = decoration;
        int head = decoration; ///< of a row that is one thing: the part with its first text
        int text = 0;          ///< of a text in a cell: its number
        MvPdfWholeTexts texts;
        QStringList painted = {}; ///< its lines
        /// Letters among them are shapes or pictures that say nothing by themselves, or stand from right to left.
        bool isDrawn = false;
        double size = 0.0;        ///< of the largest letters
        QRectF bounds;            ///< upwards, in the units of the content
        QList<int> contents = {}; ///< the numbers of what is marked
        QList<int> parts = {};
    };

    /// The recording outlives it.
    explicit MvPdfPageParts(const MvPaintRecordingData &recording);

    /// The part of an operation that is no text.
    int partOf(size_t operation) const;
    /// The parts of the lines of a text.
    QList<int> partsOfLines(size_t operation) const { return m_lines[operation]; }
    /// A figure that is all that can be read of the page.
    int addPicture(const QString &description);

    /// Gives what is painted next for the part a number, from 0 on.
    int addContent(int part);
    void addBounds(int part, const QRectF &bounds);

    const std::vector<Part> &parts() const { return m_parts; }
    const Part &part(int number) const { return m_parts[size_t(number)]; }
    int contentCount() const { return m_contentCount; }
    /// Whether something is painted for the part or one in it.
    bool isSeen(int part) const;

private:
    int partOf(const MvPaintMark *mark);
    int newPartOf(const MvPaintMark &mark);
    int tableAround(int part) const;
    int child(int around, Kind kind, int row, int column, const QStringList &texts = {});
    int partOfLine(int marked, const QString &line, qsizetype operation);

    const MvPaintRecordingData &m_recording;
    std::vector<Part> m_parts;
    std::vector<QList<int>> m_lines; // by operation; of texts
    QHash<const MvPaintMark *, int> m_known;
    int m_contentCount = 0;
};
