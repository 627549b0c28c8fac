// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvProject/MvCalendarTheme.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

class MvThemeRegistry;
extern template class MVPROJECT_EXPORT MvSingleton<MvThemeRegistry>;

/// All themes: the shipped ones of `themes/*.xml`, then those of the same folder in the user's data folder. One of the
/// user's with the id of another one is left out with a warning; so is one with a mistake.
class MVPROJECT_EXPORT MvThemeRegistry : public MvSingleton<MvThemeRegistry>
{
    Q_DECLARE_TR_FUNCTIONS(MvThemeRegistry)

public:
    /// Reads the files; asks for layouts, colours and templates.
    MvThemeRegistry();

    /// In the order of the files, shipped ones first.
    const QList<MvCalendarTheme> &themes() const { return m_themes; }
    QStringList ids() const;
    /// The theme of an id; an invalid one when there is none.
    MvCalendarTheme findTheme(const QString &id) const;
    /// What a new calendar begins with: the first shipped one. An invalid theme when nothing is shipped.
    MvCalendarTheme defaultTheme() const { return m_themes.value(0); }

private:
    QList<MvCalendarTheme> m_themes;
};
