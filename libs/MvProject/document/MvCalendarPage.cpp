// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendarPage.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvPagePainter.h"
#include "MvProject/MvTemplateFilling.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double tallestStrip = 0.4;         // of its width: a strip beside a photo lies at the page's foot
constexpr double narrowStrip = 900.0;        // less than that and the days take several rows,
constexpr double tallestNarrowStrip = 450.0; // which need height

// of a simple page
constexpr int fotoNumber = 0;

/// What stands in the slots of a template before anybody puts in anything.
QList<MvPageElement> prototypes(const MvPageTemplate &pageTemplate, const MvPageFormat &format)
{
    QList<MvPageElement> elements;
    for (const MvTemplateSlot &slot : pageTemplate.slotsFor(format))
        elements.append(slot.element);
    return elements;
}

} // namespace

const QString MvCalendarPage::fotoSlot = u"photo"_s;
const QString MvCalendarPage::calendariumSlot = u"calendarium"_s;

MvCalendarPage::MvCalendarPage(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content)
    : m_appearance(appearance)
    , m_content(content)
{}

void MvCalendarPage::setAppearance(const MvCalendariumAppearance &appearance)
{
    if (!(appearance.layoutSchema() == m_appearance.layoutSchema()))
        m_unknownLayout.clear();
    if (!(appearance.colorSchema() == m_appearance.colorSchema()))
        m_unknownColors.clear();
    m_appearance = appearance;
}

QList<MvPageElement> MvCalendarPage::elementsOn(const MvPageFormat &format) const
{
    if (!m_isSimple)
        return m_elements;
    return QList<MvPageElement>{{m_foto.rect(format), m_foto.foto(), fotoSlot},
                                {simpleCalendariumRect(format), MvCalendariumElement(), calendariumSlot}} +
           m_elements;
}

void MvCalendarPage::setElements(const QList<MvPageElement> &elements)
{
    m_isSimple = false;
    m_elements = elements;
}

bool MvCalendarPage::setElement(int number, const MvPageElement &element)
{
    if (m_isSimple && number == fotoNumber && element.foto()) {
        m_foto.setFoto(*element.foto());
        return true;
    }
    const int index = number - ownCount();
    if (index < 0 || index >= m_elements.size() || m_elements[index].kind() != element.kind())
        return false;
    m_elements[index] = element;
    return true;
}

bool MvCalendarPage::setFoto(int number, const MvFotoElement &foto)
{
    const int index = number - ownCount();
    MvPageElement element = m_elements.value(index);
    element.setContent(foto);
    return setElement(number, element);
}

int MvCalendarPage::addElement(const MvPageElement &element)
{
    m_elements.append(element);
    return ownCount() + int(m_elements.size()) - 1;
}

bool MvCalendarPage::removeElement(int number)
{
    if (m_isSimple && number == fotoNumber) {
        m_foto.setFoto({});
        return true;
    }
    const int index = number - ownCount();
    if (index < 0 || index >= m_elements.size())
        return false;
    m_elements.removeAt(index);
    return true;
}

void MvCalendarPage::freeElements(const MvPageFormat &format)
{
    if (!m_isSimple)
        return;
    QList<MvPageElement> elements = elementsOn(format);
    if (!m_foto.isValid())
        elements.removeFirst();
    setElements(elements);
    m_foto = {};
}

int MvCalendarPage::elementAt(const QPointF &point, const MvPageFormat &format) const
{
    const QList<MvPageElement> elements = elementsOn(format);
    using Kind = MvPageElement::Kind;
    for (const Kind kind : {Kind::Text, Kind::Calendarium, Kind::Foto}) {
        for (int number = int(elements.size()) - 1; number >= 0; --number) {
            if (elements[number].kind() == kind && elements[number].contains(point))
                return number;
        }
    }
    return -1;
}

QSizeF MvCalendarPage::frameSize(int number, const MvPageFormat &format) const
{
    if (m_isSimple && number == fotoNumber)
        return m_foto.place(format).size();
    const MvPageElement element = m_elements.value(number - ownCount());
    return element.foto() ? element.rect().size() : QSizeF();
}

void MvCalendarPage::setTemplate(const MvPageTemplate &pageTemplate, const MvPageFormat &format)
{
    if (pageTemplate.isValid() && !pageTemplate.isKnown()) {
        m_template = pageTemplate;
        return;
    }
    const MvTemplateFilling filling(m_template.slotsFor(format));
    if (pageTemplate.isValid()) {
        QList<MvPageElement> elements = elementsOn(format);
        if (m_isSimple && !m_foto.isValid())
            elements.removeFirst();
        const QList<MvPageElement> filled = filling.fill(pageTemplate.slotsFor(format), elements, &m_spareElements);
        m_template = pageTemplate;
        m_foto = {};
        setElements(filled);
        return;
    }
    if (m_isSimple)
        return;
    const QList<MvPageElement> filled = filling.fill({{{{}, MvFotoElement(), fotoSlot}}}, m_elements, &m_spareElements);
    m_template = {};
    m_isSimple = true;
    m_foto.setFoto(*filled.constFirst().foto());
    m_elements = filled.mid(1);
}

void MvCalendarPage::setFormat(const MvPageFormat &before, const MvPageFormat &after)
{
    if (!before.isValid() || !after.isValid() || before == after)
        return;
    const QList<MvTemplateSlot> slotsBefore = m_template.slotsFor(before);
    const QList<MvTemplateSlot> slotsAfter = m_template.slotsFor(after);
    const auto find = [](const QList<MvTemplateSlot> &all, const QString &name) {
        const auto found = std::find_if(all.begin(), all.end(),
                                        [&name](const MvTemplateSlot &slot) { return slot.element.slot() == name; });
        return found == all.end() || name.isEmpty() ? nullptr : &*found;
    };
    const double x = after.trimSize().width() / before.trimSize().width();
    const double y = after.trimSize().height() / before.trimSize().height();
    const MvTemplateFilling filling(slotsBefore);
    for (MvPageElement &element : m_elements) {
        const MvTemplateSlot *stood = find(slotsBefore, element.slot());
        const MvTemplateSlot *stands = find(slotsAfter, element.slot());
        const QRectF rect = element.rect();
        if (stood && stands && stood->element.rect() == rect) {
            const MvPageElement merged = filling.merged(element, stands->element);
            element = merged;
        } else {
            element.setRect({rect.x() * x, rect.y() * y, rect.width() * x, rect.height() * y});
        }
    }
}

/// What was changed of that which the template brought is somebody's own as well.
bool MvCalendarPage::hasOwnContent(const MvPageFormat &format) const
{
    const bool hasFoto = m_foto.isValid() || !m_background.foto().isEmpty();
    return hasFoto || !m_spareElements.isEmpty() || m_elements != prototypes(m_template, format);
}

MvCalendarPage MvCalendarPage::withoutOwnContent(const MvPageFormat &format) const
{
    MvCalendarPage page = *this;
    page.m_foto = {};
    page.m_spareElements.clear();
    page.m_background.setFoto({});
    page.m_elements = prototypes(m_template, format);
    if (m_isSimple || m_template.isKnown())
        return page;
    for (const MvPageElement &element :
         m_elements) { // frames, calendaria, and words with placeholders are for any month
        if (element.foto())
            page.m_elements.append(MvPageElement(element.rect(), MvFotoElement(), element.slot()));
        else if (!element.text() || element.text()->text().contains(u'{'))
            page.m_elements.append(element);
    }
    return page;
}

MvCalendarPage MvCalendarPage::withLookOf(const MvCalendarPage &look) const
{
    MvCalendarPage page = *this;
    page.m_kind = look.m_kind;
    page.m_appearance = look.m_appearance;
    page.m_content = look.m_content;
    page.m_unknownLayout = look.m_unknownLayout;
    page.m_unknownColors = look.m_unknownColors;
    return page;
}

QStringList MvCalendarPage::fotoPaths() const
{
    QStringList paths;
    const auto add = [&paths](const MvFotoElement *foto) {
        if (foto && !foto->isEmpty() && !paths.contains(foto->path()))
            paths.append(foto->path());
    };
    add(&m_background.foto());
    if (m_isSimple)
        add(&m_foto.foto());
    for (const MvPageElement &element : m_elements)
        add(element.foto());
    return paths;
}

bool MvCalendarPage::replaceFoto(const QString &path, const QString &by)
{
    bool isFound = false;
    const auto replaced = [&](const MvFotoElement &foto) {
        MvFotoElement other = foto;
        if (!path.isEmpty() && foto.path() == path) {
            other.setPath(by);
            isFound = true;
        }
        return other;
    };
    m_background.setFoto(replaced(m_background.foto()));
    m_foto.setFoto(replaced(m_foto.foto()));
    for (QList<MvPageElement> *elements : {&m_elements, &m_spareElements}) {
        for (MvPageElement &element : *elements) {
            if (element.foto())
                element.setContent(replaced(*element.foto()));
        }
    }
    return isFound;
}

int MvCalendarPage::monthCount() const
{
    return m_appearance.type().traits().monthsPerPage();
}

MvDateRange MvCalendarPage::printedMonths() const
{
    if (!isValid())
        return {};
    const QList<MvPageElement> simple = {{{}, MvCalendariumElement()}};
    MvDateRange printed;
    for (const MvPageElement &element : m_isSimple ? simple : m_elements) {
        if (!element.calendarium())
            continue;
        const MvCalendariumAppearance look = MvPagePainter::appearanceOf(*element.calendarium(), m_appearance);
        if (!look.rendererShowsDays())
            continue;
        const int ahead = element.calendarium()->monthOffset() + look.offsetMonth();
        const QDate first = m_content.moveToDayInMonth(1).date().addMonths(ahead);
        const QDate last = first.addMonths(look.type().traits().monthsPerPage()).addDays(-1);
        printed = printed.isValid() ? MvDateRange(std::min(printed.start(), first), std::max(printed.end(), last))
                                    : MvDateRange(first, last);
    }
    return printed;
}

MvCalendarPage::CalendarWeeks MvCalendarPage::calendarWeeks() const
{
    const auto asking = MvPagePainter::renderer(m_appearance, m_content.moveToDayInMonth(1), {}, {});
    const auto areShownWhen = [this, &asking](bool asked) {
        asking->setCalendarInformation(m_content.withFeature(FEATURE_CALENDAR_WEEKS, asked), {});
        return asking->isConfigured(calendar_render_week_of_year);
    };
    if (areShownWhen(false))
        return CalendarWeeks::Always;
    return areShownWhen(true) ? CalendarWeeks::AsAsked : CalendarWeeks::Never;
}

QRectF MvCalendarPage::calendariumRect(const MvPageFormat &format) const
{
    const QList<MvPageElement> elements = elementsOn(format);
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [](const MvPageElement &element) { return element.calendarium() != nullptr; });
    return found == elements.end() ? QRectF() : found->rect();
}

QRectF MvCalendarPage::simpleCalendariumRect(const MvPageFormat &format) const
{
    QRectF rect = format.contentRect();
    if (!m_foto.isValid() || !format.isValid())
        return rect;
    const QRectF foto = m_foto.rect(format);
    const double gap = rect.left(); // the calendarium keeps the distance that it has from the page's edges
    switch (m_foto.placement()) {
    case MvFotoFrame::Placement::Top:
        rect.setTop(foto.bottom() + gap);
        break;
    case MvFotoFrame::Placement::Left:
        rect.setLeft(foto.right() + gap);
        break;
    case MvFotoFrame::Placement::Right:
        rect.setRight(foto.left() - gap);
        break;
    }
    if (m_appearance.type().traits().isStrip) {
        const double tallest = rect.width() < narrowStrip ? tallestNarrowStrip : tallestStrip * rect.width();
        rect.setTop(std::max(rect.top(), rect.bottom() - tallest));
    }
    return rect.isEmpty() ? QRectF() : rect;
}

MvPageFindings MvCalendarPage::paint(QPainter &painter, const MvPageFormat &format, const MvPageContext &context,
                                     const MvRenderingSources &sources) const
{
    const MvPagePainter page(*this, format);
    page.paintGround(painter);
    page.paintFotos(painter, sources.fotosOrDefault());
    return page.paintCalendaria(painter, {context, sources});
}

void MvCalendarPage::paintGround(QPainter &painter, const MvPageFormat &format) const
{
    MvPagePainter(*this, format).paintGround(painter);
}

void MvCalendarPage::paintFoto(QPainter &painter, const MvPageFormat &format, MvFotoSource &fotos) const
{
    MvPagePainter(*this, format).paintFotos(painter, fotos);
}

MvPaintRecording MvCalendarPage::record(const MvPageFormat &format, const MvPageContext &context,
                                        const Prepare &prepare, const MvRenderingRule &rule, double pixelsPerUnit,
                                        const MvRenderingSources &sources, MvPageFindings *findings) const
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    rule.encodeInto(painter);
    const double scale = pixelsPerUnit > 0.0 ? pixelsPerUnit : 1.0;
    const MvPageFindings found =
        MvPagePainter(*this, format).paintCalendaria(painter, {context, sources, prepare, scale});
    painter.end();
    if (findings)
        *findings = found;
    return recorder.recording();
}

QList<MvUnfittingText> MvCalendarPage::unfittingTexts(const MvPageFormat &format, const MvPageContext &context,
                                                      const MvRenderingSources &sources) const
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    return MvPagePainter(*this, format).paintCalendaria(painter, {context, sources}).unfitting;
}
