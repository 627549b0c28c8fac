// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QStyledItemDelegate>

/// The date and the name of an entry in a list. The list's rows have no flags, but are not greyed out.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit MvCalendarEventTextDelegate(QObject *parent = nullptr);

    /// Dates as MvCalendarEvent::dateText() has them, with all digits of their year: birthdays are of another century.
    /// Names on one line, and no more of them than a list has room for.
    QString displayText(const QVariant &value, const QLocale &locale) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
