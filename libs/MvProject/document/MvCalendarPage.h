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
#include "MvProject/MvPageBackground.h"
#include "MvProject/MvPageContext.h"
#include "MvProject/MvPageElement.h"
#include "MvProject/MvPageFindings.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPageKind.h"
#include "MvProject/MvPageTemplate.h"
#include "MvProject/mvproject_export.h"

#include <QList>
#include <QRectF>
#include <QStringList>

#include <functional>

class MvCalendariumRenderer;
class QPainter;

/// One page of a calendar: photos, texts and calendaria on a ground. A value.
///
/// Its elements stand where a template has put them, or a hand. A page without a template is *simple*, until it is
/// given elements of its own: a calendarium, and a photo beside it if there is one, which share the page as fotoFrame()
/// says; what is put on it beside them is added to these two. Whoever looks at a page looks at elementsOn(), whose
/// numbers name elements everywhere.
///
/// It is painted in layers: the ground of the whole sheet and the photos, which any thread may paint, and above them
/// calendaria and texts with the veils they need on photos, which ask for fonts and schemas and so belong to the GUI
/// thread. record() turns the upper
/// layer into a recording that other threads may replay. Photos lie above each other in the order of elements.
///
/// Painting happens in tenths of a millimetre with the origin at the trimmed page's corner. Personal entries and photos
/// are those of the sources that painting is handed. Above a layout that does not show its month stands the line that
/// the layout names for it.
class MVPROJECT_EXPORT MvCalendarPage
{
public:
    /// Called with the renderer of each calendarium before it renders, to connect its signals. The renderer lives for
    /// the call it was made in.
    using Prepare = std::function<void(MvCalendariumRenderer &)>;

    /// The slots of a simple page's elements.
    static const QString fotoSlot;
    static const QString calendariumSlot;

    MvCalendarPage() = default;
    MvCalendarPage(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content);

    MvPageKind kind() const { return m_kind; }
    void setKind(MvPageKind kind) { m_kind = kind; }

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

    const MvPageBackground &background() const { return m_background; }
    void setBackground(const MvPageBackground &background) { m_background = background; }

    /// The photo of a simple page and its place; of others without effect.
    const MvFotoFrame &fotoFrame() const { return m_foto; }
    void setFotoFrame(const MvFotoFrame &foto) { m_foto = foto; }

    // elements
    /// Photo and calendarium share the page as fotoFrame() says.
    bool isSimple() const { return m_isSimple; }
    /// Everything on the page on a paper: of a simple page its photo, whose rectangle is empty while there is none, its
    /// calendarium, and what was added. Their places in the list are their numbers.
    QList<MvPageElement> elementsOn(const MvPageFormat &format) const;
    /// The elements as the page has them; of a simple page those that were added.
    const QList<MvPageElement> &elements() const { return m_elements; }
    /// Gives the page exactly these; it is no longer simple.
    void setElements(const QList<MvPageElement> &elements);
    /// Replaces an element by one of its kind. Of a simple page's own two only the photo is taken over. False, and no
    /// change, for a number without an element or another kind.
    bool setElement(int number, const MvPageElement &element);
    /// Puts a photo into a frame, with crop, border and caption. False for a number without a frame.
    bool setFoto(int number, const MvFotoElement &foto);
    /// Above all others of its kind. Gives the element's number.
    int addElement(const MvPageElement &element);
    /// Takes an element away; a simple page's photo is emptied, its calendarium stays.
    bool removeElement(int number);
    /// Makes the elements of a simple page ones of its own, placed as they are on the paper.
    void freeElements(const MvPageFormat &format);
    /// The element that is seen at a point of the page, -1 for none: texts first, then calendaria, then photos, the
    /// uppermost of each.
    int elementAt(const QPointF &point, const MvPageFormat &format) const;
    /// The size that a photo in the frame has, or would have on a simple page without one; empty for no frame.
    QSizeF frameSize(int number, const MvPageFormat &format) const;

    // templates
    QString templateId() const { return m_template.id(); }
    const MvPageTemplate &pageTemplate() const { return m_template; }
    /// Divides the page anew. Elements go to the slot of their name, else to the next of their kind. Photos, and texts
    /// that somebody wrote, which find no slot are kept and come back with a template that has room; so does what was
    /// changed of the look of an element, while its slot stays. Elements placed by hand stay. An invalid template makes
    /// the page simple, one that is not known here only leaves its id.
    void setTemplate(const MvPageTemplate &pageTemplate, const MvPageFormat &format);
    /// Only says which template the elements came from: for pages that are read from a file.
    void nameTemplate(const MvPageTemplate &pageTemplate) { m_template = pageTemplate; }
    /// Another paper: elements move as the template says, others with the page's proportions.
    void setFormat(const MvPageFormat &before, const MvPageFormat &after);
    /// What the template has no room for, in the order in which it left.
    const QList<MvPageElement> &spareElements() const { return m_spareElements; }
    void setSpareElements(const QList<MvPageElement> &elements) { m_spareElements = elements; }
    /// Whether somebody has put in photos or texts, on the page or kept.
    bool hasOwnContent(const MvPageFormat &format) const;
    /// The same page without them.
    MvCalendarPage withoutOwnContent(const MvPageFormat &format) const;

    /// What is on this page and its template, in the look of another: its appearance, its content, what it is for.
    MvCalendarPage withLookOf(const MvCalendarPage &look) const;

    /// The photos of all frames and of the ground, each once.
    QStringList fotoPaths() const;
    /// Gives every photo of one file another, whatever frame it stands in; kept ones, too. False when there is none.
    bool replaceFoto(const QString &path, const QString &by);

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
    /// Of several calendaria, from the first month of all to the last.
    MvDateRange printedMonths() const;

    enum class CalendarWeeks { AsAsked, Always, Never };
    /// Whether the layout shows calendar weeks: as the content's FEATURE_CALENDAR_WEEKS asks, or whatever it asks.
    CalendarWeeks calendarWeeks() const;

    /// What the photo of a simple page leaves of the format's content rectangle to the calendarium and the line with
    /// its month; of a tall rest a strip takes the foot. Empty when nothing is left. Of other pages the rectangle of
    /// the first calendarium; empty without one.
    QRectF calendariumRect(const MvPageFormat &format) const;

    /// Paints the page. GUI thread.
    MvPageFindings paint(QPainter &painter, const MvPageFormat &format, const MvPageContext &context,
                         const MvRenderingSources &sources = {}) const;
    /// The parts of paint() beneath calendaria and texts, from any thread: the colour of margins and bleed, which
    /// continues that of empty cells, and the photos with the veils for what stands on them. Empty frames paint
    /// nothing.
    void paintGround(QPainter &painter, const MvPageFormat &format) const;
    void paintFoto(QPainter &painter, const MvPageFormat &format,
                   MvFotoSource &fotos = MvDirectFotoSource::instance()) const;
    /// The part above them, calendaria with the lines of their months, texts, and the veils of both, for which the
    /// sources are asked for the page's photos in a small size; to be replayed in page units. It is recorded for the
    /// rule. Photos of entries are decoded with `pixelsPerUnit` pixels per page unit: pass the largest
    /// scale at which the recording will be replayed. What was found meanwhile is stored where `findings` points,
    /// unless that is null. GUI thread; the recording may be replayed in another.
    MvPaintRecording record(const MvPageFormat &format, const MvPageContext &context, const Prepare &prepare = {},
                            const MvRenderingRule &rule = MvRenderingRule(MvRenderingRule::InteractiveScreen),
                            double pixelsPerUnit = 1.0, const MvRenderingSources &sources = {},
                            MvPageFindings *findings = nullptr) const;

    /// The texts of calendaria that have no room, in the order of painting. Paints the page for nothing else: who
    /// paints or records it anyway is told by that. GUI thread.
    QList<MvUnfittingText> unfittingTexts(const MvPageFormat &format, const MvPageContext &context,
                                          const MvRenderingSources &sources = {}) const;

    bool operator==(const MvCalendarPage &) const = default;

private:
    int ownCount() const { return m_isSimple ? 2 : 0; } // elements that are not in the list
    QRectF simpleCalendariumRect(const MvPageFormat &format) const;

    MvPageKind m_kind = MvPageKind::Month;
    MvCalendariumAppearance m_appearance;
    MvCalendariumContentConfig m_content;
    MvPageBackground m_background;
    MvFotoFrame m_foto;
    bool m_isSimple = true;
    QList<MvPageElement> m_elements;
    QList<MvPageElement> m_spareElements;
    MvPageTemplate m_template;
    MvCalendariumLayoutSchemaID m_unknownLayout;
    MvCalendariumColorSchemaID m_unknownColors;
};
