// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumColorSchemaID.h"
#include "MvCalendar/MvCalendariumLayoutSchemaID.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvFoto/MvDirectFotoSource.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvPaintRecording.h"
#include "MvProductBase/MvCalendariumContentConfig.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProject/MvFotoFrame.h"
#include "MvProject/MvPageFindings.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/mvproject_export.h"

#include <QRectF>

#include <functional>
#include <memory>

class MvCalendariumRenderer;
class QPainter;

/// One page of a calendar: a calendarium, and a photo beside it if there is one. A value.
///
/// It is painted in layers: the ground of the whole sheet and the photo, which any thread may paint, and above them the
/// line with the month and the calendarium, which ask for fonts and schemas and so belong to the GUI thread. record()
/// turns the upper layer into a recording that other threads may replay.
///
/// Painting happens in tenths of a millimetre with the origin at the trimmed page's corner. Personal entries and photos
/// are those of the sources that painting is handed. Above a layout that does not show its month stands the line that
/// the layout names for it.
class MVPROJECT_EXPORT MvCalendarPage
{
public:
    /// Called with the renderer of the calendarium before it renders, to connect its signals. The renderer lives for
    /// the call it was made in.
    using Prepare = std::function<void(MvCalendariumRenderer &)>;

    MvCalendarPage() = default;
    MvCalendarPage(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content);

    const MvCalendariumAppearance &appearance() const { return m_appearance; }
    void setAppearance(const MvCalendariumAppearance &appearance);

    /// The month, of a year the first one, by any day of it, with the holiday configuration and the week options.
    const MvCalendariumContentConfig &contentConfig() const { return m_content; }
    void setContentConfig(const MvCalendariumContentConfig &content) { m_content = content; }
    /// The part of it that says which holidays and entries there are.
    MvCalendariumHolidayConfig holidayConfig() const { return m_content.holidayConfig(); }
    void setHolidayConfig(const MvCalendariumHolidayConfig &config) { m_content.setHolidayConfig(config); }
    /// Switches every bit of the feature on or off.
    void setFeature(const MvCalendariumFeatures &feature, bool on) { m_content = m_content.withFeature(feature, on); }

    const MvFotoFrame &fotoFrame() const { return m_foto; }
    void setFotoFrame(const MvFotoFrame &foto) { m_foto = foto; }

    /// Ids from a file that this computer has no schemas for; others stand in for them. They are written back as long
    /// as the stand-in is not changed.
    const MvCalendariumLayoutSchemaID &unknownLayout() const { return m_unknownLayout; }
    void setUnknownLayout(const MvCalendariumLayoutSchemaID &id) { m_unknownLayout = id; }
    const MvCalendariumColorSchemaID &unknownColors() const { return m_unknownColors; }
    void setUnknownColors(const MvCalendariumColorSchemaID &id) { m_unknownColors = id; }

    /// The appearance and the month are valid.
    bool isValid() const { return m_appearance.isValid() && m_content.isValid(); }
    /// How many months the layout shows: 12 for a year, else 1.
    int monthCount() const;
    /// The months whose days are on the page, whatever the range of the whole calendar; invalid when it shows no days.
    MvDateRange printedMonths() const;

    enum class CalendarWeeks { AsAsked, Always, Never };
    /// Whether the layout shows calendar weeks: as the content's FEATURE_CALENDAR_WEEKS asks, or whatever it asks.
    CalendarWeeks calendarWeeks() const;

    /// What the photo leaves of the format's content rectangle to the calendarium and the line with its month; of a
    /// tall rest a strip takes the foot. Empty when nothing is left.
    QRectF calendariumRect(const MvPageFormat &format) const;

    /// Paints the page. The range is that of the whole calendar. GUI thread.
    MvPageFindings paint(QPainter &painter, const MvPageFormat &format, const MvDateRange &documentRange,
                         const MvRenderingSources &sources = {}) const;
    /// The parts of paint() beneath the calendarium, from any thread: the ground of margins and bleed, which continues
    /// that of empty cells, and the photo.
    void paintGround(QPainter &painter, const MvPageFormat &format) const;
    void paintFoto(QPainter &painter, const MvPageFormat &format,
                   MvFotoSource &fotos = MvDirectFotoSource::instance()) const;
    /// The part above them, the line with the month and the calendarium, to be replayed in page units. It is recorded
    /// for the rule. Photos of entries are decoded with `pixelsPerUnit` pixels per page unit: pass the largest scale at
    /// which the recording will be replayed. What was found meanwhile is stored where `findings` points, unless that is
    /// null. GUI thread; the recording may be replayed in another.
    MvPaintRecording record(const MvPageFormat &format, const MvDateRange &documentRange, const Prepare &prepare = {},
                            const MvRenderingRule &rule = MvRenderingRule(MvRenderingRule::InteractiveScreen),
                            double pixelsPerUnit = 1.0, const MvRenderingSources &sources = {},
                            MvPageFindings *findings = nullptr) const;

    /// The texts that have no room, in the order of painting. Paints the page for nothing else: who paints or records
    /// it anyway is told by that. GUI thread.
    QList<MvUnfittingText> unfittingTexts(const MvPageFormat &format, const MvDateRange &documentRange,
                                          const MvRenderingSources &sources = {}) const;

    bool operator==(const MvCalendarPage &) const = default;

private:
    struct Pass;

    MvPageFindings paintCalendarium(QPainter &painter, const MvPageFormat &format, const MvDateRange &documentRange,
                                    const Pass &pass) const;
    std::unique_ptr<MvCalendariumRenderer> renderer(const MvCalendariumAppearance &appearance,
                                                    const MvDateRange &documentRange,
                                                    const MvRenderingSources &sources) const;

    MvCalendariumAppearance m_appearance;
    MvCalendariumContentConfig m_content;
    MvFotoFrame m_foto;
    MvCalendariumLayoutSchemaID m_unknownLayout;
    MvCalendariumColorSchemaID m_unknownColors;
};
