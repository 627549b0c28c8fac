// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarPage.h"

#include <QFont>
#include <QList>
#include <QString>

class MvFotoVeil;
class QPainter;

/// Paints the texts of a page that belong to no calendarium: placeholders are filled, lines wrapped, divided and made
/// smaller until they have room. GUI thread.
class MvPageTextPainter
{
public:
    /// What is handed over must outlive the painter.
    MvPageTextPainter(const MvCalendarPage &page, const MvPageFormat &format, const QList<MvPageElement> &elements,
                      const MvPageContext &context)
        : m_page(page)
        , m_format(format)
        , m_elements(elements)
        , m_context(context)
    {}

    /// Paints the element with the number, which is a text, and notes what does not stand whole. A veil, if it is given
    /// one, is laid beneath its words.
    void paint(QPainter &painter, int number, const MvFotoVeil *veil, MvPageFindings &found) const;

    /// What the element prints, a line for each of its lines; empty when nothing of it would be seen.
    QStringList lines(const MvTextElement &text) const;
    /// In page units, as large as the element wants it on this paper; on small papers not under 6.5 points that it has
    /// on A4.
    QFont font(const MvTextElement &text) const;

private:
    QString filled(const QString &placeholder, const MvTextElement &text) const;
    QString captionOf(const QString &slot) const;
    QStringList captions() const;
    QString month() const;
    QString years() const;

    const MvCalendarPage &m_page;
    const MvPageFormat &m_format;
    const QList<MvPageElement> &m_elements;
    const MvPageContext &m_context;
};
