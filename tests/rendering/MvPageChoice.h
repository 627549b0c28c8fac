// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <optional>

/// What a person chooses for a page.
struct MvPageChoice
{
    enum Entries { None, Short, Long, Many, Fotos, Own }; ///< own: what the registry has

    QString layout;
    QString paper; ///< "A5", "A4 landscape", "90x55"
    QString place; ///< of the photo: "none", "top", "left", "right"
    double share = 0.55;
    int font = 100; ///< percent of the layout's size
    MvLocale language;
    QString region;
    Entries entries = Short;
    QDate month;
    bool hasWeeks = true;        ///< asked for; not every layout has them
    std::optional<bool> hasGrid; ///< as the layout has it, if not said
    QString colors = QStringLiteral("PAPER_WHITE");
    QString foto = QStringLiteral("/photo.jpg"); ///< the file; there need not be any

    /// One line, "MONTH_ONLY, A4 landscape, photo left 0.65, 150 %, de_DE BY, long names, 2027-05, weeks".
    QString describe() const;

    static const QStringList &papers();
    static const QStringList &places();
    /// All shares that matter, from the smallest to the largest.
    static const QList<double> &shares();
    static const QList<int> &fonts();
    /// Months of four, five and six weeks, with week 53, with a leap day, with the longest name.
    static const QList<QDate> &months();
    static QStringList layouts();
    /// The choices of a layout have these factors, of so many values each: paper, place, share, font, language,
    /// entries, month, weeks.
    static QList<int> factorSizes();
    /// The page for a value, from 0, of each factor. Countries that speak the language, and their regions, take turns.
    static MvPageChoice of(const QString &layout, const QList<int> &values);
};
