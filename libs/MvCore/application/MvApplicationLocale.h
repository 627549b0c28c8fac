// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QLocale>

class MvApplicationLocale;
extern template class MVCORE_EXPORT MvSingleton<MvApplicationLocale>;

/// The locale of the program's own texts: German unless the program was told otherwise.
class MVCORE_EXPORT MvApplicationLocale : public MvSingleton<MvApplicationLocale>
{
public:
    QLocale locale() const { return m_locale; }
    void setLocale(const QLocale &locale) { m_locale = locale; }

private:
    QLocale m_locale = QLocale(QLocale::German, QLocale::Germany);
};
