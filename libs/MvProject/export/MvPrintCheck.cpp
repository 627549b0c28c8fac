// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPrintCheck.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvFoto/MvBlankFotoSource.h"
#include "MvFoto/MvImageLoader.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProductBase/MvCalendariumContentKey.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvPrintedFoto.h"

#include <QDir>
#include <QFileInfo>

#include <cmath>

namespace {

using Finding = MvPrintFinding;
using Kind = MvPrintFinding::Kind;
using Severity = MvPrintFinding::Severity;

constexpr int longestText = 60;
constexpr double tolerance = 0.5; // tenths of a millimetre
constexpr int smallSide = 64;     // pixels, to see whether a photo can be decoded

QString inShort(const QString &text)
{
    return MvPrintableText::inShort(text, longestText);
}

/// The look at one page.
class PageCheck
{
    Q_DECLARE_TR_FUNCTIONS(MvPrintCheck)

public:
    PageCheck(const MvCalendarDocument &document, int number)
        : m_document(document)
        , m_number(number)
        , m_page(document.pages()[number])
        , m_elements(m_page.elementsOn(document.format()))
        , m_place(MvPrintCheck::pageName(document, number))
    {}

    QList<Finding> look(const MvPageFindings &findings, const MvRenderingSources &sources)
    {
        lookAtFiles();
        lookAtEntries(sources.entriesOrDefault());
        for (const MvPrintedFoto &foto : MvPrintedFoto::ofPaintedPage(m_page, m_document.format(), findings, sources))
            lookAtResolution(foto);
        lookAtTexts(findings);
        for (int number = 0; number < m_elements.size(); ++number)
            lookAtPlace(number);
        return m_findings;
    }

private:
    void add(Kind kind, Severity severity, int element, const QString &text, const QString &path = {})
    {
        m_findings.append(
            {kind, severity, m_number, element, {}, m_elements.value(element).rect(), path, 0.0, m_place, text});
    }

    void lookAtFiles();
    void lookAtFile(const MvFotoElement &foto, int element);
    void lookAtEntries(const MvCalendarEventSource &entries);
    void lookAtEntry(const MvCalendarEvent &event, const QDate &day);
    void lookAtResolution(const MvPrintedFoto &foto);
    void lookAtTexts(const MvPageFindings &findings);
    void addText(const QString &text, const QString &missingGlyphs, int element, const QDate &date, const QRectF &rect);
    void lookAtPlace(int number);

    const MvCalendarDocument &m_document;
    const int m_number;
    const MvCalendarPage &m_page;
    const QList<MvPageElement> m_elements;
    const QString m_place;
    QList<Finding> m_findings;
};

void PageCheck::lookAtFiles()
{
    lookAtFile(m_page.background().foto(), -1);
    for (int number = 0; number < m_elements.size(); ++number) {
        const MvFotoElement *foto = m_elements[number].foto();
        if (foto)
            lookAtFile(*foto, number);
        if (foto && foto->isEmpty() && !m_elements[number].rect().isEmpty())
            add(Kind::EmptyFrame, Severity::Hint, number, tr("Ein Rahmen ist noch leer"));
    }
}

void PageCheck::lookAtFile(const MvFotoElement &foto, int element)
{
    if (foto.isEmpty())
        return;
    const QFileInfo file(foto.path());
    const QString name = inShort(file.fileName());
    if (!file.exists()) {
        add(Kind::MissingFoto, Severity::Strong, element,
            tr("Das Foto „%1“ fehlt. Es lag in %2").arg(name, QDir::toNativeSeparators(file.absolutePath())),
            foto.path());
        return;
    }
    const QString error = MvImageLoader::instance().error(file);
    if (!error.isEmpty())
        add(Kind::UnreadableFoto, Severity::Strong, element,
            tr("Das Foto „%1“ lässt sich nicht lesen. %2").arg(name, error), foto.path());
}

void PageCheck::lookAtEntries(const MvCalendarEventSource &entries)
{
    const MvCalendariumHolidayConfig content = m_page.contentConfig().holidayConfig();
    const MvDateRange months = m_page.printedMonths();
    if (!months.isValid() || !content.hasFeatures(FEATURE_ENTRIES))
        return;
    for (QDate day = months.start(); day <= months.end(); day = day.addDays(1)) {
        const MvCalendariumContentKey key(MvCalendariumContentConfig(day, content), entries.project());
        for (const MvCalendarEvent &event : entries.events(key))
            lookAtEntry(event, day);
    }
}

/// Whether its photo is there, and may be opened.
void PageCheck::lookAtEntry(const MvCalendarEvent &event, const QDate &day)
{
    if (!event.foto().isValid())
        return;
    const QFileInfo file = event.imagePath();
    const bool isThere = event.foto().mayBeOpened() && file.isFile();
    const QString error = isThere ? MvImageLoader::instance().error(file) : QString();
    if (isThere && error.isEmpty())
        return;
    const QString name = inShort(event.description());
    const QString text =
        isThere ? tr("Das Foto zu „%1“ lässt sich nicht lesen. %2").arg(name, error)
                : tr("Das Foto zu „%1“ fehlt. Es lag in %2").arg(name, QDir::toNativeSeparators(file.absolutePath()));
    m_findings.append({isThere ? Kind::UnreadableFoto : Kind::MissingFoto, Severity::Strong, m_number, -1, day,
                       QRectF(), file.filePath(), 0.0,
                       MvApplicationLocale::instance().locale().toString(day, QLocale::ShortFormat), text});
}

void PageCheck::lookAtResolution(const MvPrintedFoto &foto)
{
    const std::optional<Severity> severity = MvPrintCheck::severity(foto.pixelsPerInch);
    if (!severity)
        return;
    const QString text =
        *severity == Severity::Strong
            ? tr("Das Foto „%1“ wird sehr grob, mit nur %2 Bildpunkten je Zoll. Machen Sie den Rahmen kleiner")
            : tr("Das Foto „%1“ wird etwas grob, mit %2 Bildpunkten je Zoll");
    m_findings.append({Kind::CoarseFoto, *severity, m_number, foto.element, foto.date, foto.rect, foto.path,
                       foto.pixelsPerInch, m_place,
                       text.arg(inShort(QFileInfo(foto.path).fileName())).arg(std::floor(foto.pixelsPerInch))});
}

void PageCheck::lookAtTexts(const MvPageFindings &findings)
{
    for (const MvUnfittingText &text : findings.unfitting)
        addText(text.text, text.missingGlyphs, -1, text.date, text.rect);
    for (const MvUnfittingElement &text : findings.elements)
        addText(text.text, text.missingGlyphs, text.element, {}, text.rect);
}

void PageCheck::addText(const QString &text, const QString &missingGlyphs, int element, const QDate &date,
                        const QRectF &rect)
{
    const bool isAboutRoom = missingGlyphs.isEmpty();
    const QString words = isAboutRoom ? tr("„%1“ hat nicht genug Platz").arg(inShort(text))
                                      : tr("„%1“ – keine Schrift hat %2").arg(inShort(text), missingGlyphs);
    const QString place =
        date.isValid() ? MvApplicationLocale::instance().locale().toString(date, QLocale::ShortFormat) : m_place;
    m_findings.append({isAboutRoom ? Kind::CutText : Kind::MissingGlyphs,
                       Severity::Strong,
                       m_number,
                       element,
                       date,
                       rect,
                       {},
                       0.0,
                       place,
                       words});
}

void PageCheck::lookAtPlace(int number)
{
    const MvPageElement &element = m_elements[number];
    const MvPageFormat &format = m_document.format();
    const QRectF rect = element.rect();
    const QRectF binding = m_document.bindingRect(m_number);
    if (rect.isEmpty() || (element.text() && element.text()->text().isEmpty()))
        return;
    const QRectF inside = rect.adjusted(tolerance, tolerance, -tolerance, -tolerance);
    const QRectF trim = format.trimRect();
    if (element.foto()) {
        const bool bleeds = !trim.contains(inside.adjusted(-1.0, -1.0, 1.0, 1.0));
        if (!binding.isEmpty() && inside.intersects(binding) && !bleeds)
            add(Kind::InBinding, Severity::Hint, number, tr("Ein Foto ragt in den Bereich der Bindung"));
        return;
    }
    const QString what =
        element.text() ? tr("Der Text „%1“").arg(inShort(element.text()->text())) : tr("Das Kalendarium");
    if (!binding.isEmpty() && inside.intersects(binding))
        add(Kind::InBinding, Severity::Strong, number, tr("%1 ragt in den Bereich der Bindung").arg(what));
    else if (!m_document.safeRect(m_number).contains(inside))
        add(Kind::OutsideSafeMargin, Severity::Hint, number,
            tr("%1 steht so nahe am Rand, dass es angeschnitten werden kann").arg(what));
}

} // namespace

QList<MvPrintFinding> MvPrintCheck::ofDocument(const MvCalendarDocument &document, const MvRenderingSources &sources,
                                               Depth depth)
{
    if (depth == Depth::Photos) {
        const QStringList paths = document.fotoUses().keys();
        for (const QString &path : paths) // errors are remembered there
            MvImageLoader::instance().loadUncached(QFileInfo(path), {smallSide, smallSide});
    }
    QList<MvPrintFinding> findings;
    for (int page = 0; page < document.pages().size(); ++page)
        findings += ofPage(document, page, sources);
    return findings;
}

QList<MvPrintFinding> MvPrintCheck::ofPage(const MvCalendarDocument &document, int page,
                                           const MvRenderingSources &sources)
{
    if (page < 0 || page >= document.pages().size())
        return {};
    MvRenderingSources blank = sources;
    if (!blank.fotos)
        blank.fotos = &MvBlankFotoSource::instance();
    MvPageFindings found;
    document.pages()[page].record(document.format(), document.context(), {}, MvRenderingRule(MvRenderingRule::Print),
                                  1.0, blank, &found);
    return ofPaintedPage(document, page, found, sources);
}

QList<MvPrintFinding> MvPrintCheck::ofPaintedPage(const MvCalendarDocument &document, int page,
                                                  const MvPageFindings &findings, const MvRenderingSources &sources)
{
    return page >= 0 && page < document.pages().size() ? PageCheck(document, page).look(findings, sources)
                                                       : QList<MvPrintFinding>();
}

std::optional<MvPrintFinding::Severity> MvPrintCheck::severity(double pixelsPerInch)
{
    if (pixelsPerInch <= 0.0 || pixelsPerInch >= coarseBelow)
        return std::nullopt;
    return pixelsPerInch < veryCoarseBelow ? MvPrintFinding::Severity::Strong : MvPrintFinding::Severity::Hint;
}

QString MvPrintCheck::pageName(const MvCalendarDocument &document, int page)
{
    if (page < 0 || page >= document.pages().size())
        return {};
    const QString title = MvCalendarTitle::ofPage(document.pages()[page]);
    return title.isEmpty() ? tr("Seite %1").arg(page + 1) : title;
}
