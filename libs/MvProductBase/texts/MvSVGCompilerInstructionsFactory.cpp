// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvSVGCompilerInstructionsFactory.h"

#include "MvPaint/MvPrintableText.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"
#include "MvProductBase/MvSVGCompilerInstructionsCache.h"

template class MvSingleton<MvSVGCompilerInstructionsFactory>;

using namespace Qt::StringLiterals;

namespace {

using Kind = MvSVGCompilerInstructions::Kind;

// the long date of the language without the name of the weekday: "1. Januar 2027"
QString dateText(const MvLocale &language, const QDate &date)
{
    const QLocale locale = (language.isValid() ? language : MvCalendarWordsRegistry::defaultLanguage()).toQLocale();
    QString format = locale.dateFormat(QLocale::LongFormat).remove("dddd"_L1).trimmed();
    while (format.startsWith(u','))
        format = format.mid(1).trimmed();
    while (format.endsWith(u','))
        format = format.chopped(1).trimmed();
    return locale.toString(date, format);
}

} // namespace

void MvSVGCompilerInstructionsFactory::addHolidayCache(MvAbstractHolidayCache *cache)
{
    m_caches.removeAll(nullptr);
    if (cache && !m_caches.contains(cache))
        m_caches.append(cache);
}

QList<MvAbstractHolidayCache *> MvSVGCompilerInstructionsFactory::holidayCaches() const
{
    QList<MvAbstractHolidayCache *> caches;
    for (const QPointer<MvAbstractHolidayCache> &cache : m_caches) {
        if (cache)
            caches.append(cache);
    }
    return caches;
}

QString MvSVGCompilerInstructionsFactory::text(const QString &pattern, const MvCalendariumContentKey &key) const
{
    return fill(MvSVGCompilerInstructionsCache::instance().instructions(pattern), key, false);
}

QByteArray MvSVGCompilerInstructionsFactory::artwork(const QByteArray &svg, const MvCalendariumContentKey &key) const
{
    const MvSVGCompilerInstructions instructions =
        MvSVGCompilerInstructionsCache::instance().instructions(QString::fromUtf8(svg));
    return instructions.isConstant() ? svg : fill(instructions, key, true).toUtf8();
}

QString MvSVGCompilerInstructionsFactory::fill(const MvSVGCompilerInstructions &instructions,
                                               const MvCalendariumContentKey &key, bool escape) const
{
    QString filled;
    for (const MvSVGCompilerInstructions::Instruction &instruction : instructions.instructions()) {
        if (instruction.kind == Kind::Literal) {
            filled += instruction.text;
        } else if (key.config().isValid()) {
            const QString text = value(instruction.kind, key);
            filled += escape ? text.toHtmlEscaped() : text;
        }
    }
    return filled;
}

QString MvSVGCompilerInstructionsFactory::value(Kind kind, const MvCalendariumContentKey &key) const
{
    const QDate day = key.date();
    const MvLocale language = key.config().language();
    switch (kind) {
    case Kind::Date:
        return dateText(language, day);
    case Kind::Month:
        return MvCalendarWordsRegistry::instance().monthNameLong(language, day.month());
    case Kind::Year:
        return QString::number(day.year());
    case Kind::Week:
        return QString::number(day.weekNumber());
    case Kind::Holidays:
        return descriptions(key, true).join(u", "_s);
    case Kind::Entries:
        return descriptions(key, false).join(u", "_s);
    case Kind::Literal:
        break;
    }
    return {};
}

QStringList MvSVGCompilerInstructionsFactory::descriptions(const MvCalendariumContentKey &key, bool ofHolidays) const
{
    const MvCalendariumHolidayType anyType(HOLIDAY_TYPE_SCHOOL_VACATION | HOLIDAY_TYPE_PUBLIC | HOLIDAY_TYPE_OPTIONAL |
                                           HOLIDAY_TYPE_OBSERVANCE);
    QStringList texts;
    const QList<MvAbstractHolidayCache *> caches = holidayCaches();
    for (MvAbstractHolidayCache *cache : caches) {
        if (cache->hasHolidayOfType(key, anyType) == ofHolidays) // a source of entries never has a holiday
            texts.append(MvPrintableText::onOneLineEach(cache->descriptions(key)));
    }
    return texts;
}
