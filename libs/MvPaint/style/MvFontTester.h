// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvModelBase/mvmodelbase_export.h"

#include <QStringList>

class MvFontTester;
extern template class MVMODELBASE_EXPORT MvSingleton<MvFontTester>;

/// Which of the installed font families can set the texts of a calendar: Latin text fonts that scale, no symbols.
///
/// The list is made once, when somebody asks for it; belongs to the GUI thread.
class MVMODELBASE_EXPORT MvFontTester : public MvSingleton<MvFontTester>
{
public:
    bool updateWasRun() const { return m_updateWasRun; }
    /// Looks through the installed fonts. Only what the font database knows anyway is asked, and the file of a font is
    /// opened for the few that hold symbols beside letters.
    void updateFonts();
    /// The families found by updateFonts(), by name; empty before that.
    QStringList goodFonts() const { return m_goodFonts; }

    static bool isGoodFont(const QString &family);

private:
    QStringList m_goodFonts;
    bool m_updateWasRun = false;
};
