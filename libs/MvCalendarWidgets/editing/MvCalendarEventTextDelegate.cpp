// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventTextDelegate.h"

#include "MvCalendar/MvCalendarEventModel.h"
#include "MvPaint/MvPrintableText.h"

#include <QDate>

using namespace Qt::StringLiterals;

namespace {

constexpr int padding = 16; // left and right together

} // namespace

MvCalendarEventTextDelegate::MvCalendarEventTextDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

QString MvCalendarEventTextDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    if (value.userType() == QMetaType::QDate)
        return MvCalendarEvent::dateText(value.toDate());
    return MvPrintableText::inShort(QStyledItemDelegate::displayText(value, locale));
}

/// Called for every row of the list, so no text is laid out.
QSize MvCalendarEventTextDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool isDate = index.column() == MvCalendarEventModel::DateColumn;
    const int width = isDate ? option.fontMetrics.horizontalAdvance(u"00.00.0000"_s) + padding : padding;
    return {width, 2 * option.fontMetrics.height()};
}

void MvCalendarEventTextDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->state |= QStyle::State_Enabled;
    option->palette.setCurrentColorGroup(option->state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive);
}
