// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRenderReport.h"

#include "MvCliProject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostFotoHints = 20;

QJsonObject rectObject(const QRectF &rect)
{
    return {{u"x"_s, rect.x()}, {u"y"_s, rect.y()}, {u"width"_s, rect.width()}, {u"height"_s, rect.height()}};
}

QJsonValue dateValue(const QDate &date)
{
    return date.isValid() ? QJsonValue(date.toString(Qt::ISODate)) : QJsonValue();
}

QString gradeName(MvFotoResolution::Grade grade)
{
    switch (grade) {
    case MvFotoResolution::Grade::Poor:
        return u"poor"_s;
    case MvFotoResolution::Grade::Modest:
        return u"modest"_s;
    case MvFotoResolution::Grade::Good:
        break;
    }
    return u"good"_s;
}

// pages and elements of the report count from 1

QJsonObject textObject(int page, const MvUnfittingText &unfitting)
{
    QJsonObject text{{u"page"_s, page},
                     {u"date"_s, dateValue(unfitting.date)},
                     {u"text"_s, unfitting.text},
                     {u"rect"_s, rectObject(unfitting.rect)}};
    if (!unfitting.missingGlyphs.isEmpty())
        text.insert(u"missingGlyphs"_s, unfitting.missingGlyphs);
    return text;
}

/// A text beside the calendaria.
QJsonObject elementObject(int page, const MvUnfittingElement &unfitting)
{
    QJsonObject text{{u"page"_s, page},
                     {u"element"_s, unfitting.element + 1},
                     {u"date"_s, QJsonValue()},
                     {u"text"_s, unfitting.text},
                     {u"rect"_s, rectObject(unfitting.rect)}};
    if (!unfitting.missingGlyphs.isEmpty())
        text.insert(u"missingGlyphs"_s, unfitting.missingGlyphs);
    return text;
}

QJsonObject fotoObject(int page, const MvPrintedFoto &foto)
{
    return {{u"page"_s, page},
            {u"element"_s, foto.element < 0 ? QJsonValue() : QJsonValue(foto.element + 1)},
            {u"date"_s, dateValue(foto.date)},
            {u"path"_s, foto.path},
            {u"ppi"_s, std::round(foto.pixelsPerInch)},
            {u"quality"_s, gradeName(foto.grade())},
            {u"rect"_s, rectObject(foto.rect)}};
}

QJsonObject inkObject(const MvInkUse &ink, int limit)
{
    return {{u"page"_s, ink.page + 1},
            {u"percent"_s, std::round(ink.percent)},
            {u"limit"_s, limit},
            {u"x"_s, std::round(ink.place.x())},
            {u"y"_s, std::round(ink.place.y())}};
}

} // namespace

MvRenderReport::MvRenderReport(const MvCalendarDocument &document, const MvRenderingSources &sources)
    : m_document(document)
    , m_sources(sources)
    , m_missingFotos(document.missingFotos())
{}

void MvRenderReport::addPage(int page, const MvPageFindings &findings)
{
    if (!m_pages.contains(page))
        m_pages.insert(
            page, {findings.unfitting, findings.elements,
                   MvPrintedFoto::ofPaintedPage(m_document.pages()[page], m_document.format(), findings, m_sources)});
}

void MvRenderReport::addMissingFotos(const QStringList &paths)
{
    m_missingFotos += paths;
    m_missingFotos.removeDuplicates();
}

void MvRenderReport::setSkippedEntries(const QFileInfo &file, const QList<MvCalendarEventFile::Skipped> &skipped)
{
    m_entriesFile = file;
    m_skipped = skipped;
}

void MvRenderReport::setInks(const QList<MvInkUse> &inks, int limit)
{
    m_inks = inks;
    m_inkLimit = limit;
}

QString MvRenderReport::toJson() const
{
    return QString::fromUtf8(QJsonDocument(toObject()).toJson());
}

QJsonObject MvRenderReport::toObject() const
{
    QJsonArray skippedEntries;
    for (const MvCalendarEventFile::Skipped &skipped : m_skipped)
        skippedEntries.append(QJsonObject{{u"file"_s, m_entriesFile.filePath()},
                                          {u"line"_s, skipped.line},
                                          {u"name"_s, skipped.name},
                                          {u"reason"_s, skipped.reason}});
    QJsonArray unfitting;
    QJsonArray fotos;
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page) {
        for (const MvUnfittingText &text : page->unfitting)
            unfitting.append(textObject(page.key() + 1, text));
        for (const MvUnfittingElement &text : page->elements)
            unfitting.append(elementObject(page.key() + 1, text));
        for (const MvPrintedFoto &foto : page->fotos)
            fotos.append(fotoObject(page.key() + 1, foto));
    }
    QJsonObject report{{u"files"_s, QJsonArray::fromStringList(m_files)},
                       {u"missingPhotos"_s, QJsonArray::fromStringList(m_missingFotos)},
                       {u"photos"_s, fotos},
                       {u"skippedEntries"_s, skippedEntries},
                       {u"unfitting"_s, unfitting}};
    QJsonArray inks;
    for (const MvInkUse &ink : m_inks)
        inks.append(inkObject(ink, m_inkLimit));
    if (!inks.isEmpty())
        report.insert(u"ink"_s, inks);
    return report;
}

void MvRenderReport::printHint(QTextStream &hints) const
{
    printTextHints(hints);
    for (const QString &path : m_missingFotos)
        hints << MvCliProject::missingFoto(path) << '\n';
    printFotoHints(hints);
    printInkHints(hints);
}

void MvRenderReport::printTextHints(QTextStream &hints) const
{
    int withoutRoom = 0;
    QString first;
    QList<uint> missing;
    const auto count = [&](const QString &missingGlyphs, const QString &place) {
        for (const uint character : missingGlyphs.toUcs4()) {
            if (!missing.contains(character))
                missing.append(character);
        }
        if (missingGlyphs.isEmpty() && ++withoutRoom == 1)
            first = place;
    };
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page) {
        for (const MvUnfittingText &text : page->unfitting)
            count(text.missingGlyphs, text.date.toString(u"d.M.yyyy"_s));
        for (const MvUnfittingElement &text : page->elements)
            count(text.missingGlyphs, tr("Seite %1").arg(page.key() + 1));
    }
    if (withoutRoom > 0)
        hints << tr("Texte ohne Platz: %1, der erste: %2; --report json nennt alle")
                     .arg(QString::number(withoutRoom), first)
              << '\n';
    const QString glyphs = QString::fromUcs4(reinterpret_cast<const char32_t *>(missing.constData()), missing.size());
    if (!glyphs.isEmpty())
        hints << tr("Keine Schrift hat diese Zeichen: %1; --report json nennt die Texte").arg(glyphs) << '\n';
}

void MvRenderReport::printFotoHints(QTextStream &hints) const
{
    int poor = 0;
    int modest = 0;
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page) {
        for (const MvPrintedFoto &foto : page->fotos) {
            const MvFotoResolution::Grade grade = foto.grade();
            modest += grade == MvFotoResolution::Grade::Modest ? 1 : 0;
            if (grade != MvFotoResolution::Grade::Poor || ++poor > mostFotoHints)
                continue;
            hints << tr("Foto wird grob, nur %1 Pixel je Zoll (gut ab %2): Seite %3, %4")
                         .arg(std::floor(foto.pixelsPerInch))
                         .arg(MvFotoResolution::modestBelow)
                         .arg(page.key() + 1)
                         .arg(foto.path)
                  << '\n';
        }
    }
    if (poor > mostFotoHints)
        hints << tr("%n weitere Fotos werden grob; --report json nennt alle", nullptr, poor - mostFotoHints) << '\n';
    if (modest > 0)
        hints << tr("%n Fotos mit weniger als %1 Pixeln je Zoll; --report json nennt sie", nullptr, modest)
                     .arg(MvFotoResolution::modestBelow)
              << '\n';
}

void MvRenderReport::printInkHints(QTextStream &hints) const
{
    QList<MvInkUse> told;
    const auto isTooMuch = [this](const MvInkUse &ink) { return std::round(ink.percent) > m_inkLimit; };
    std::copy_if(m_inks.cbegin(), m_inks.cend(), std::back_inserter(told), isTooMuch);
    const bool isAnyTooMuch = !told.isEmpty();
    const auto most = std::max_element(m_inks.cbegin(), m_inks.cend(),
                                       [](const auto &a, const auto &b) { return a.percent < b.percent; });
    if (!isAnyTooMuch && most != m_inks.cend())
        told.append(*most);
    const QString words =
        isAnyTooMuch ? tr("Zu viel Farbe, %1 % (erlaubt sind %2 %): Seite %3, %4 mm von links, %5 mm von oben")
                     : tr("Farbauftrag höchstens %1 % (erlaubt sind %2 %): Seite %3, %4 mm von links, %5 mm von oben");
    for (const MvInkUse &ink : std::as_const(told))
        hints << words.arg(std::round(ink.percent))
                     .arg(m_inkLimit)
                     .arg(ink.page + 1)
                     .arg(std::round(ink.place.x() / 10.0))
                     .arg(std::round(ink.place.y() / 10.0))
              << '\n';
}
