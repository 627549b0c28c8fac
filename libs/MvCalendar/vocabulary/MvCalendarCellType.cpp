// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarCellType.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

#include <QCoreApplication>

#include <array>

template class MvEnumWrapper<MvCalendarCellTypeEnum>;

using namespace Qt::StringLiterals;

namespace {

constexpr int allBits = 0xFFFFF;

struct Entry
{
    const char *name;
    MvCalendarCellTypeEnum type;
    const char *description; // null for a second name
};

constexpr std::array entries = {
    Entry{"CALENDAR_CELL_TYPE_TITLE", CALENDAR_CELL_TYPE_TITLE, QT_TRANSLATE_NOOP("MvCalendarCellType", "Titel")},
    Entry{"CALENDAR_CELL_TYPE_WEEKDAY", CALENDAR_CELL_TYPE_WEEKDAY, QT_TRANSLATE_NOOP("MvCalendarCellType", "Werktag")},
    Entry{"CALENDAR_CELL_TYPE_SATURDAY", CALENDAR_CELL_TYPE_SATURDAY,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Samstag")},
    Entry{"CALENDAR_CELL_TYPE_SUNDAY", CALENDAR_CELL_TYPE_SUNDAY, QT_TRANSLATE_NOOP("MvCalendarCellType", "Sonntag")},
    Entry{"CALENDAR_CELL_TYPE_SPECIAL_DAY", CALENDAR_CELL_TYPE_SPECIAL_DAY,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Besonderer Tag")},
    Entry{"CALENDAR_CELL_TYPE_COMMENT", CALENDAR_CELL_TYPE_COMMENT,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Kommentar")},
    Entry{"CALENDAR_CELL_TYPE_EMPTY", CALENDAR_CELL_TYPE_EMPTY, QT_TRANSLATE_NOOP("MvCalendarCellType", "Leer")},
    Entry{"CALENDAR_CELL_TYPE_EXTRA_INFORMATION", CALENDAR_CELL_TYPE_EXTRA_INFORMATION,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Extra Information")},
    Entry{"CALENDAR_CELL_TYPE_HEAD_WEEKDAY", CALENDAR_CELL_TYPE_HEAD_WEEKDAY,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Überschrift Werktag")},
    Entry{"CALENDAR_CELL_TYPE_HEAD_SATURDAY", CALENDAR_CELL_TYPE_HEAD_SATURDAY,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Überschrift Samstag")},
    Entry{"CALENDAR_CELL_TYPE_HEAD_SUNDAY", CALENDAR_CELL_TYPE_HEAD_SUNDAY,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Überschrift Sonntag")},
    Entry{"CALENDAR_CELL_TYPE_TOPLINE", CALENDAR_CELL_TYPE_TOPLINE,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Überschrift sonstige")},
    Entry{"CALENDAR_CELL_TYPE_HEAD_EMPTY", CALENDAR_CELL_TYPE_HEAD_EMPTY, nullptr},
    Entry{"CALENDAR_CELL_TYPE_DAY_OF_WEEK", CALENDAR_CELL_TYPE_DAY_OF_WEEK,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Wochentag")},
    Entry{"CALENDAR_CELL_TYPE_WEEK_OF_YEAR", CALENDAR_CELL_TYPE_WEEK_OF_YEAR,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Kalenderwoche")},
    Entry{"CALENDAR_CELL_TYPE_MONTH", CALENDAR_CELL_TYPE_MONTH, QT_TRANSLATE_NOOP("MvCalendarCellType", "Monat")},
    Entry{"CALENDAR_CELL_TYPE_YEAR", CALENDAR_CELL_TYPE_YEAR, QT_TRANSLATE_NOOP("MvCalendarCellType", "Jahr")},
    Entry{"CALENDAR_CELL_TYPE_HOLIDAY", CALENDAR_CELL_TYPE_HOLIDAY,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Feiertag")},
    Entry{"CALENDAR_CELL_TYPE_HEAD_HOLIDAY", CALENDAR_CELL_TYPE_HEAD_HOLIDAY,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Überschrift Feiertag")},
    Entry{"CALENDAR_CELL_TYPE_SCHOOL_VACATION", CALENDAR_CELL_TYPE_SCHOOL_VACATION,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Schulferien")},
    Entry{"CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION", CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION,
          QT_TRANSLATE_NOOP("MvCalendarCellType", "Überschrift Schulferien")},
};

} // namespace

void MvCalendarCellType::fillTable(Table *table) const
{
    for (const Entry &entry : entries)
        table->insert(QString::fromLatin1(entry.name), entry.type);
}

MvCalendarCellType::MvCalendarCellType(const QList<MvCalendarCellType> &types)
{
    for (const MvCalendarCellType &type : types)
        *this |= type;
}

MvCalendarCellType MvCalendarCellType::allTypes()
{
    return MvCalendarCellType(allBits);
}

QList<MvCalendarCellType> MvCalendarCellType::singleTypes() const
{
    const QList<MvCalendarCellTypeEnum> bits = Table::splitToBits(value());
    return {bits.cbegin(), bits.cend()};
}

void MvCalendarCellType::fromXML(const QDomElement &element)
{
    decode(MvXMLParser::textAttribute(element, u"type"_s));
}

void MvCalendarCellType::toXML(QDomElement &element) const
{
    MvXMLBuilder::addAttribute(element, u"type"_s, encode());
}

MvCalendarCellType MvCalendarCellType::synthetizingSource() const
{
    switch (value()) {
    case CALENDAR_CELL_TYPE_HOLIDAY:
        return CALENDAR_CELL_TYPE_SUNDAY;
    case CALENDAR_CELL_TYPE_HEAD_HOLIDAY:
        return CALENDAR_CELL_TYPE_HEAD_SUNDAY;
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
        return CALENDAR_CELL_TYPE_SATURDAY;
    case CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION:
        return CALENDAR_CELL_TYPE_HEAD_SATURDAY;
    default:
        return {};
    }
}

void MvCalendarCellType::expandToInvisibleCells(const MvCalendarCellType &visible)
{
    const auto expand = [this, &visible](MvCalendarCellTypeEnum trigger, const QList<MvCalendarCellType> &list) {
        possiblyExpand(trigger, list, visible);
    };
    // each rule works on the result of those before it
    expand(CALENDAR_CELL_TYPE_WEEKDAY,
           {CALENDAR_CELL_TYPE_HEAD_WEEKDAY, CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SUNDAY});
    expand(CALENDAR_CELL_TYPE_SATURDAY, {CALENDAR_CELL_TYPE_HEAD_SATURDAY, CALENDAR_CELL_TYPE_SCHOOL_VACATION});
    expand(CALENDAR_CELL_TYPE_SUNDAY, {CALENDAR_CELL_TYPE_HEAD_SUNDAY, CALENDAR_CELL_TYPE_HOLIDAY});
    expand(CALENDAR_CELL_TYPE_HEAD_WEEKDAY,
           {CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_TOPLINE, CALENDAR_CELL_TYPE_WEEK_OF_YEAR});
    expand(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, {CALENDAR_CELL_TYPE_MONTH, CALENDAR_CELL_TYPE_YEAR,
                                             CALENDAR_CELL_TYPE_DAY_OF_WEEK, CALENDAR_CELL_TYPE_WEEK_OF_YEAR});
    expand(CALENDAR_CELL_TYPE_HEAD_SATURDAY, {CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION});
    expand(CALENDAR_CELL_TYPE_HEAD_SUNDAY, {CALENDAR_CELL_TYPE_HEAD_HOLIDAY});
}

void MvCalendarCellType::possiblyExpand(const MvCalendarCellType &trigger, const QList<MvCalendarCellType> &list,
                                        const MvCalendarCellType &visible)
{
    if (!hasAnyOf(trigger))
        return;
    for (const MvCalendarCellType &type : list) {
        if (!hasAnyOf(type) && !visible.hasAnyOf(type))
            expandTo(type);
    }
}

QString MvCalendarCellType::description() const
{
    return descriptionHash().value(*this);
}

const QHash<MvCalendarCellType, QString> &MvCalendarCellType::descriptionHash()
{
    static const QHash<MvCalendarCellType, QString> descriptions = [] {
        QHash<MvCalendarCellType, QString> hash;
        for (const Entry &entry : entries) {
            if (entry.description)
                hash.insert(entry.type, QCoreApplication::translate("MvCalendarCellType", entry.description));
        }
        return hash;
    }();
    return descriptions;
}
