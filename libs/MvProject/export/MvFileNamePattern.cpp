// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFileNamePattern.h"

#include "MvProject/MvPageSource.h"

#include <QFileInfo>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

QString monthText(const QDate &month, MvPageKind kind)
{
    const QString number = u"%1"_s.arg(month.month(), 2, 10, QChar(u'0'));
    switch (kind) {
    case MvPageKind::Cover:
        return u"cover"_s;
    case MvPageKind::Back:
        return u"back"_s;
    case MvPageKind::Free:
        return number + u"-free"_s;
    case MvPageKind::Month:
        break;
    }
    return number;
}

/// The placeholder's text; a null string for an unknown one.
QString replacement(QChar letter, const QDate &month, int page, MvPageKind kind, const QString &region)
{
    switch (letter.unicode()) {
    case u'm':
        return monthText(month, kind);
    case u'y':
        return u"%1"_s.arg(month.year(), 4, 10, QChar(u'0'));
    case u'n':
        return u"%1"_s.arg(page + 1, 2, 10, QChar(u'0'));
    case u'r':
        return region;
    case u'%':
        return u"%"_s;
    default:
        return {};
    }
}

} // namespace

QString MvFileNamePattern::path(const QDate &month, int page, MvPageKind kind, const QString &region) const
{
    const qsizetype nameStart = m_path.lastIndexOf(u'/') + 1;
    QString result = m_path.left(nameStart);
    for (qsizetype i = nameStart; i < m_path.size(); ++i) {
        const bool isPlaceholder = m_path[i] == u'%' && i + 1 < m_path.size();
        const QString text = isPlaceholder ? replacement(m_path[i + 1], month, page, kind, region) : QString();
        result += text.isNull() ? QString(m_path[i]) : text;
        i += text.isNull() ? 0 : 1;
    }
    return result;
}

QString MvFileNamePattern::pathOfAll(const MvPageSource &pages) const
{
    return path({}, 0, MvPageKind::Month, pages.region);
}

MvFileNamePattern::Paths MvFileNamePattern::paths(const MvPageSource &pages) const
{
    Paths result;
    QString name = QFileInfo(m_path).fileName().remove(u"%%"_s);
    for (const QString &known : {u"%m"_s, u"%y"_s, u"%n"_s, u"%r"_s})
        name.remove(known);
    if (name.contains(u'%')) {
        result.error =
            tr("%1: unbekannter Platzhalter; erlaubt sind %m (Monat), %y (Jahr), %n (Seite), %r (Region) und %% "
               "(Prozentzeichen)")
                .replace(u"%1"_s, m_path);
        return result;
    }

    for (int place = 0; place < pages.pages.size(); ++place)
        result.paths.append(path(pages.pages[place], pages.number(place), pages.kind(place), pages.region));
    if (QSet<QString>(result.paths.cbegin(), result.paths.cend()).size() != result.paths.size()) {
        result.error = tr("%1: bei %2 Seiten braucht der Dateiname einen Platzhalter, der sie unterscheidet: %n "
                          "(Seite), %m (Monat) oder %y-%m")
                           .replace(u"%1"_s, m_path)
                           .replace(u"%2"_s, QString::number(result.paths.size()));
        result.paths.clear();
    }
    return result;
}
