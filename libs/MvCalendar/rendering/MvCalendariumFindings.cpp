// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumFindings.h"

#include "MvCore/MvStringHelper.h"
#include "MvPaint/MvGlyphCoverage.h"

#include <algorithm>
#include <utility>

void MvCalendariumFindings::addUnfitting(const QDate &date, const QString &text, const QRectF &rect)
{
    if (MvStringHelper::isVisible(text))
        m_unfitting.append({date, text, rect});
}

void MvCalendariumFindings::addMissingHeads(const QDate &month, const QString &names, const QRectF &rect)
{
    m_unfitting.append({month, names, rect, {}, true});
}

void MvCalendariumFindings::addMissingGlyphs(const QDate &date, const QStringList &texts, const QFont &font,
                                             const QRectF &rect)
{
    for (const QString &text : texts) {
        if (const QString missing = MvGlyphCoverage::missingCharacters(font, text); !missing.isEmpty())
            m_unfitting.append({date, text, rect, missing});
    }
}

void MvCalendariumFindings::addBarWithoutRoom(const MvUnfittingText &text, const QDate &start)
{
    const bool isKnown = std::any_of(m_missingBars.cbegin(), m_missingBars.cend(), [&](const Missing &known) {
        return known.start == start && known.text.text == text.text;
    });
    if (!isKnown)
        m_missingBars.append({start, text});
}

void MvCalendariumFindings::finish()
{
    for (const Missing &missing : std::as_const(m_missingBars)) {
        const bool isTold =
            std::any_of(m_unfitting.cbegin(), m_unfitting.cend(), [&missing](const MvUnfittingText &text) {
                return text.text == missing.text.text && text.missingGlyphs.isEmpty();
            });
        if (!isTold)
            m_unfitting.append(missing.text);
    }
    m_missingBars.clear();
}
