// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarPage.h"
#include "MvProject/MvPageContent.h"

#include <memory>

class MvFotoSource;
class MvPageTextPainter;
class QPainter;
struct MvVeilField;

/// Paints one page's layers for MvCalendarPage.
class MvPagePainter
{
public:
    /// What is handed over must outlive the painter.
    MvPagePainter(const MvCalendarPage &page, const MvPageFormat &format)
        : m_page(page)
        , m_format(format)
        , m_elements(page.elementsOn(format))
    {}

    // any thread
    void paintGround(QPainter &painter) const;
    /// The ground's photo and those in frames.
    void paintFotos(QPainter &painter, MvFotoSource &fotos) const;

    // GUI thread
    struct Pass
    {
        const MvPageContext &context;
        const MvRenderingSources &sources;
        MvCalendarPage::Prepare prepare = {};
        double pixelsPerUnit = 0.0; // 0: as the painter is scaled
    };
    /// Calendaria, and texts above them, on the veils that they need on photos.
    MvPageFindings paintCalendaria(QPainter &painter, const Pass &pass) const;

    /// What there is to read: the page's texts, and the months of its calendaria, each month once.
    MvPageContent content(const Pass &pass) const;

    static std::unique_ptr<MvCalendariumRenderer> renderer(const MvCalendariumAppearance &appearance,
                                                           const MvCalendariumContentConfig &content,
                                                           const MvDateRange &documentRange,
                                                           const MvRenderingSources &sources);
    /// How a calendarium on the page looks: as the page, or in a layout of its own.
    static MvCalendariumAppearance appearanceOf(const MvCalendariumElement &element,
                                                const MvCalendariumAppearance &page);

private:
    QList<MvVeilField> veilFields(const MvPageTextPainter &texts) const;
    QDate beginningOfYear(const MvDateRange &range) const;
    MvCalendariumContentConfig contentOf(const MvCalendariumElement &shown, const MvCalendariumAppearance &appearance,
                                         const MvDateRange &range) const;
    void paintCalendarium(QPainter &painter, const MvPageElement &element, QRectF rect, const Pass &pass,
                          MvPageFindings &found) const;

    const MvCalendarPage &m_page;
    const MvPageFormat &m_format;
    QList<MvPageElement> m_elements;
};
