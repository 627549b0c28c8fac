// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumContentKey.h"
#include "MvProductBase/MvCalendariumHolidayType.h"
#include "MvProductBase/MvImageReference.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QObject>
#include <QStringList>

/// A source of what a day is about: official holidays or personal entries.
///
/// A source that has descriptions of a day without a holiday of any type on it tells of personal entries.
class MVPRODUCTBASE_EXPORT MvAbstractHolidayCache : public QObject
{
    Q_OBJECT

public:
    explicit MvAbstractHolidayCache(QObject *parent = nullptr);
    ~MvAbstractHolidayCache() override;

    /// Whether a holiday of one of the given types falls on the day.
    virtual bool hasHolidayOfType(const MvCalendariumContentKey &key, const MvCalendariumHolidayType &type) = 0;
    /// The texts of the day in the order in which they are printed; none of them is empty.
    virtual QStringList descriptions(const MvCalendariumContentKey &key) = 0;
    /// The image of the day; an empty reference when it has none.
    virtual MvImageReference imageFile(const MvCalendariumContentKey &key) const = 0;
};
