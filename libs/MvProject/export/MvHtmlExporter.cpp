// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvHtmlExporter.h"

#include "MvCore/MvSafeFileWriter.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageSource.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QXmlStreamWriter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Of all documents: sizes in units of the reader's own type, tables that shrink with a narrow window.
const QString commonStyle = uR"(
body { margin: 2rem auto; max-width: 70rem; padding: 0 1rem; font-family: Lato, Carlito, sans-serif; line-height: 1.35; }
section { margin: 0 0 3rem; padding: 1.5rem; border-radius: .3rem; }
h2 { margin: 0 0 1rem; font-weight: 600; }
table { width: 100%; border-collapse: collapse; table-layout: fixed; margin: 0 0 2rem; }
.heard { position: absolute; clip-path: inset(50%); }
caption { text-align: left; font-size: 1.15rem; padding: 0 0 .5rem; }
th { font-weight: 600; text-align: left; padding: .3rem .4rem; }
thead th:first-child:not([data-day]), tbody th { width: 3.5rem; }
td { height: 4.5rem; vertical-align: top; padding: .3rem .4rem; border: 1px solid rgba(128, 128, 128, .35);
    overflow-wrap: break-word; hyphens: auto; }
abbr { text-decoration: none; }
td ul { list-style: none; margin: .2rem 0 0; padding: 0; font-size: .85rem; }
@media (max-width: 40rem) {
    section { padding: .5rem; }
    section, table { margin-bottom: 1rem; }
    th, td { padding: .2rem .15rem; font-size: .8rem; }
    td { height: auto; }
    td ul { font-size: .75rem; }
    thead th:first-child:not([data-day]), tbody th { width: 1.7rem; }
}
@media print {
    section { break-after: page; }
    body, section, td { -webkit-print-color-adjust: exact; print-color-adjust: exact; }
}
)"_s;

/// "#rrggbb", or with its opacity; empty for what is not seen.
QString cssColor(const QColor &color)
{
    if (!color.isValid() || color.alpha() == 0)
        return {};
    if (color.alpha() == 255)
        return color.name();
    return u"rgba(%1,%2,%3,%4)"_s.arg(color.red()).arg(color.green()).arg(color.blue()).arg(color.alphaF(), 0, 'g', 3);
}

QString cssOf(const QColor &ground, const QColor &ink)
{
    QString css;
    if (const QString color = cssColor(ground); !color.isEmpty())
        css += u"background:"_s + color + u';';
    if (const QString color = cssColor(ink); !color.isEmpty())
        css += u"color:"_s + color + u';';
    return css;
}

/// The same colours stand in hundreds of cells: each pair is a class of the style sheet.
class Classes
{
public:
    QString nameOf(const QColor &ground, const QColor &ink)
    {
        const QString css = cssOf(ground, ink);
        if (css.isEmpty())
            return {};
        if (!m_css.contains(css))
            m_css.append(css);
        return u"c%1"_s.arg(m_css.indexOf(css) + 1);
    }
    QString sheet() const
    {
        QString sheet;
        for (qsizetype i = 0; i < m_css.size(); ++i)
            sheet += u".c%1 { %2 }\n"_s.arg(i + 1).arg(m_css[i]);
        return sheet;
    }

private:
    QStringList m_css;
};

class Writer
{
public:
    Writer(QBuffer &buffer, Classes &classes)
        : m_xml(&buffer)
        , m_classes(classes)
    {}

    /// The colours are those of all pages, if they have the same.
    void head(const MvPageSource &source, const QColor &ground, const QColor &ink);
    void page(const MvPageContent &page, int number);
    void end();

private:
    void element(const QString &name, const QString &text, const QList<QPair<QString, QString>> &attributes = {});
    void colors(const QColor &ground, const QColor &ink);
    void month(const MvMonthTable &table, const QString &pageName);
    void headings(const MvMonthTable &table);
    void day(const MvMonthTable::Day &day);

    QXmlStreamWriter m_xml;
    Classes &m_classes;
};

/// Never as an empty tag, which HTML would leave open.
void Writer::element(const QString &name, const QString &text, const QList<QPair<QString, QString>> &attributes)
{
    m_xml.writeStartElement(name);
    for (const auto &[key, value] : attributes)
        m_xml.writeAttribute(key, value);
    m_xml.writeCharacters(text);
    m_xml.writeEndElement();
}

void Writer::colors(const QColor &ground, const QColor &ink)
{
    if (const QString name = m_classes.nameOf(ground, ink); !name.isEmpty())
        m_xml.writeAttribute(u"class"_s, name);
}

void Writer::head(const MvPageSource &source, const QColor &ground, const QColor &ink)
{
    m_xml.writeDTD(u"<!DOCTYPE html>\n"_s);
    m_xml.writeStartElement(u"html"_s);
    m_xml.writeAttribute(u"lang"_s, source.language);
    m_xml.writeStartElement(u"head"_s);
    m_xml.writeEmptyElement(u"meta"_s);
    m_xml.writeAttribute(u"charset"_s, u"utf-8"_s);
    m_xml.writeEmptyElement(u"meta"_s);
    m_xml.writeAttribute(u"name"_s, u"viewport"_s);
    m_xml.writeAttribute(u"content"_s, u"width=device-width, initial-scale=1"_s);
    const QString title = MvPrintableText::onOneLine(source.title);
    element(u"title"_s, title);
    if (!source.author.isEmpty()) {
        m_xml.writeEmptyElement(u"meta"_s);
        m_xml.writeAttribute(u"name"_s, u"author"_s);
        m_xml.writeAttribute(u"content"_s, source.author);
    }
    element(u"style"_s, commonStyle + m_classes.sheet());
    m_xml.writeEndElement();
    m_xml.writeCharacters(u"\n"_s);
    m_xml.writeStartElement(u"body"_s);
    colors(ground, ink);
    m_xml.writeStartElement(u"main"_s);
    element(u"h1"_s, title);
}

void Writer::page(const MvPageContent &page, int number)
{
    const QString id = u"seite-%1"_s.arg(number + 1);
    m_xml.writeCharacters(u"\n"_s);
    m_xml.writeStartElement(u"section"_s);
    m_xml.writeAttribute(u"aria-labelledby"_s, id);
    colors(page.ground, page.ink);
    element(u"h2"_s, page.name, {{u"id"_s, id}});
    for (const QString &text : page.texts)
        element(u"p"_s, text);
    for (const MvMonthTable &table : page.months)
        month(table, page.name);
    m_xml.writeEndElement();
}

/// A page of one month has its name as heading: the table's own is for those who hear it.
void Writer::month(const MvMonthTable &table, const QString &pageName)
{
    m_xml.writeCharacters(u"\n"_s);
    m_xml.writeStartElement(u"table"_s);
    if (table.name == pageName)
        element(u"caption"_s, table.name, {{u"class"_s, u"heard"_s}});
    else
        element(u"caption"_s, table.name);
    headings(table);
    m_xml.writeStartElement(u"tbody"_s);
    for (const MvMonthTable::Week &week : table.weeks) {
        m_xml.writeCharacters(u"\n"_s);
        m_xml.writeStartElement(u"tr"_s);
        if (!table.weekHead.isEmpty())
            element(u"th"_s, week.name, {{u"scope"_s, u"row"_s}});
        for (const MvMonthTable::Day &shown : week.days)
            day(shown);
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void Writer::headings(const MvMonthTable &table)
{
    m_xml.writeStartElement(u"thead"_s);
    m_xml.writeStartElement(u"tr"_s);
    if (!table.weekHead.isEmpty())
        element(u"th"_s, table.weekHead, {{u"scope"_s, u"col"_s}});
    for (const MvMonthTable::Weekday &weekday : table.weekdays) {
        m_xml.writeStartElement(u"th"_s);
        m_xml.writeAttribute(u"scope"_s, u"col"_s);
        m_xml.writeAttribute(u"data-day"_s, QString());
        element(u"abbr"_s, weekday.shortName, {{u"title"_s, weekday.name}});
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
    m_xml.writeEndElement();
}

void Writer::day(const MvMonthTable::Day &day)
{
    if (!day.date.isValid()) {
        element(u"td"_s, QString());
        return;
    }
    m_xml.writeStartElement(u"td"_s);
    colors(day.ground, day.ink);
    element(u"time"_s, QString::number(day.date.day()), {{u"datetime"_s, day.date.toString(Qt::ISODate)}});
    if (!day.texts.isEmpty() || !day.running.isEmpty()) {
        m_xml.writeStartElement(u"ul"_s);
        for (const QString &text : day.texts)
            element(u"li"_s, text);
        for (const QString &text : day.running)
            element(u"li"_s, text, {{u"class"_s, u"heard"_s}});
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

void Writer::end()
{
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    m_xml.writeEndElement();
    m_xml.writeCharacters(u"\n"_s);
}

void collectColors(const MvPageContent &page, Classes &classes)
{
    classes.nameOf(page.ground, page.ink);
    for (const MvMonthTable &table : page.months) {
        for (const MvMonthTable::Week &week : table.weeks) {
            for (const MvMonthTable::Day &day : week.days)
                classes.nameOf(day.ground, day.ink);
        }
    }
}

} // namespace

QByteArray MvHtmlExporter::document(const MvPageSource &source, MvExportObserver *observer)
{
    QList<MvPageContent> pages;
    Classes classes;
    for (int page = 0; page < source.pages.size() && !(observer && observer->isCancelled()); ++page) {
        pages.append(source.content(page));
        collectColors(pages.constLast(), classes);
        if (observer)
            observer->pagesDone(page + 1, int(source.pages.size()));
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Writer writer(buffer, classes);
    const bool isOneGround = std::all_of(pages.cbegin(), pages.cend(), [&](const MvPageContent &page) {
        return page.ground == pages.constFirst().ground && page.ink == pages.constFirst().ink;
    });
    const MvPageContent all = isOneGround ? pages.value(0) : MvPageContent();
    writer.head(source, all.ground, all.ink);
    for (int page = 0; page < pages.size(); ++page)
        writer.page(pages[page], source.number(page));
    writer.end();
    return buffer.data();
}

MvExportResult MvHtmlExporter::write(const MvPageSource &source, const QFileInfo &target, MvExportObserver *observer)
{
    MvOutcome outcome = source.check();
    if (outcome.isOk() && !source.content)
        outcome.error = QCoreApplication::translate("MvHtmlExporter", "Auf diesen Seiten gibt es nichts zu lesen");
    const QByteArray bytes = outcome.isOk() ? document(source, observer) : QByteArray();
    if (observer && observer->isCancelled())
        return MvExportResult::cancelled();
    if (outcome.isOk())
        outcome = MvSafeFileWriter::write(target, bytes, MvSafeFileWriter::Backups::None);
    if (!outcome.isOk())
        return MvExportResult::failed(u"%1: %2"_s.arg(target.filePath(), outcome.error));
    return {outcome, {target}, false, {}, {}};
}
