// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPrintedPage.h"

/// Finds what is wrong with a printed page: on what it recorded, and between that and what it reports.
class MvPageAudit
{
public:
    enum Kind {
        LeavesElement, ///< ink outside the place of the calendarium
        LeavesCell,    ///< letters cut by the clip of their cell, or outside their day's
        TextsMeet,     ///< ink of two texts on each other
        TextsRunOn,    ///< two texts on a line with less than a blank between
        LineThrough,   ///< a line crosses letters
        FotoOnText,    ///< a photo of an entry covers letters
        TypeTooSmall,  ///< under the floor
        NegativeSize,  ///< a cell of no or less than no size
        CellsOverlap,  ///< two days, or two grounds of one colour
        DayNotOnce,    ///< a day without a place, or with two
        MissingText,   ///< neither whole on the page nor reported
        FalseReport,   ///< reported, but whole on the page
        KindCount
    };
    static QString name(Kind kind);

    struct Fault
    {
        Kind kind;
        QString what;
    };

    static QList<Fault> faults(const MvPrintedPage &page);
    /// What is left of a text that may be broken into lines, hyphenated, or joined with others.
    static QString essence(const QString &text);

private:
    explicit MvPageAudit(const MvPrintedPage &page);

    using Item = MvPaintRecording::Item;

    void add(Kind kind, const QString &what) { m_faults.append({kind, what}); }

    /// A day's cell, and what can be read in it.
    struct Day
    {
        QDate date;
        QRectF cell;
        QRectF region;     ///< where to look for its number and texts
        QStringList texts; ///< that it is to show
        QStringList read;  ///< whole items, in the order of painting
        bool hasPhoto = false;
    };

    void findDays();
    void checkPlaces();
    void checkPairs();
    void checkPair(const Item &a, const Item &b);
    void checkLines();
    void checkType();
    void checkCells();
    void checkDays();
    void checkDayTexts();
    void checkTexts(const QDate &date, const QStringList &texts, const QString &read);
    void checkWords();
    void checkHeads();
    void checkReports();

    bool isOfDay(const Item &item) const;
    QString textIn(const QRectF &region) const;
    bool hasItem(const QRectF &region, const QString &text) const;
    bool isReported(const QDate &date, const QString &text) const;

    const MvPrintedPage &m_page;
    QRectF m_rect;
    QList<Item> m_texts; // with ink
    QList<Day> m_days;
    QList<Fault> m_faults;
};
