// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvProductBase/MvAbstractHolidayCache.h"
#include "MvProductBase/MvSVGCompilerInstructions.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QByteArray>
#include <QList>
#include <QPointer>
#include <QStringList>

class MvSVGCompilerInstructionsFactory;
extern template class MVPRODUCTBASE_EXPORT MvSingleton<MvSVGCompilerInstructionsFactory>;

/// Fills the placeholders of text fields and SVG artwork with what a day is about. GUI thread only.
class MVPRODUCTBASE_EXPORT MvSVGCompilerInstructionsFactory : public MvSingleton<MvSVGCompilerInstructionsFactory>
{
public:
    /// Registers a source of holidays or entries; sources are asked in the order of their registration. The caller
    /// keeps it; a deleted source drops out. One that is registered already stays where it is.
    void addHolidayCache(MvAbstractHolidayCache *cache);
    QList<MvAbstractHolidayCache *> holidayCaches() const;

    /// The text for the day, in the language of the day's configuration. Several holidays or entries are joined by
    /// ", ". An invalid day leaves all placeholders empty.
    QString text(const QString &pattern, const MvCalendariumContentKey &key) const;
    /// The same for SVG artwork, as UTF-8: what is filled in is escaped.
    QByteArray artwork(const QByteArray &svg, const MvCalendariumContentKey &key) const;

private:
    QString fill(const MvSVGCompilerInstructions &instructions, const MvCalendariumContentKey &key, bool escape) const;
    QString value(MvSVGCompilerInstructions::Kind kind, const MvCalendariumContentKey &key) const;
    QStringList descriptions(const MvCalendariumContentKey &key, bool ofHolidays) const;

    QList<QPointer<MvAbstractHolidayCache>> m_caches;
};
