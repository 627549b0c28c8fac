#include "MvRenderReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

MvRenderReport::MvRenderReport(const MvCalendarDocument &document)
    : m_missingPhotos(document.missingPhotos())
{
    for (int page = 0; page < document.pages().size(); ++page) {
        for (const MvUnfittingText &text : document.unfittingTexts(page))
            m_unfitting.append({page + 1, text});
    }
}

void MvRenderReport::setSkippedEntries(const QFileInfo &file, const QList<MvCalendarEventFile::Skipped> &skipped)
{
    m_entriesFile = file;
    m_skipped = skipped;
}

QString MvRenderReport::toJson() const
{
    QJsonArray skippedEntries;
    for (const MvCalendarEventFile::Skipped &skipped : m_skipped)
        skippedEntries.append(QJsonObject{{u"file"_s, m_entriesFile.filePath()},
                                          {u"line"_s, skipped.line},
                                          {u"name"_s, skipped.name},
                                          {u"reason"_s, skipped.reason}});
    QJsonArray unfitting;
    for (const Entry &entry : m_unfitting) {
        const QRectF &rect = entry.text.rect;
        unfitting.append(QJsonObject{{u"page"_s, entry.page},
                                     {u"date"_s, entry.text.date.toString(Qt::ISODate)},
                                     {u"text"_s, entry.text.text},
                                     {u"rect"_s, QJsonObject{{u"x"_s, rect.x()},
                                                             {u"y"_s, rect.y()},
                                                             {u"width"_s, rect.width()},
                                                             {u"height"_s, rect.height()}}}});
    }
    const QJsonObject report{{u"files"_s, QJsonArray::fromStringList(m_files)},
                             {u"missingPhotos"_s, QJsonArray::fromStringList(m_missingPhotos)},
                             {u"skippedEntries"_s, skippedEntries},
                             {u"unfitting"_s, unfitting}};
    return QString::fromUtf8(QJsonDocument(report).toJson());
}

void MvRenderReport::printHint(QTextStream &hints) const
{
    if (!m_unfitting.isEmpty())
        hints << tr("Texte ohne Platz: %1, der erste am %2; --report json nennt alle")
                     .arg(QString::number(m_unfitting.size()),
                          m_unfitting.constFirst().text.date.toString(u"d.M.yyyy"_s))
              << '\n';
    for (const QString &path : m_missingPhotos)
        hints << tr("Foto fehlt oder ist nicht lesbar: %1").replace(u"%1"_s, path) << '\n';
}
