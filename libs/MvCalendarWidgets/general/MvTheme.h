// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QPalette>
#include <QString>
#include <QStringList>

#include <optional>

/// The look of the programs: Qt's Fusion style with a light and a dark palette of their own and a small style sheet
/// (resource "styles/studio.qss", keyed by the widgets' "cssstyle" property). Texts have a contrast of 4.5:1 or more
/// against what they stand on. For the GUI thread.
class MVGUIWIDGETS_EXPORT MvTheme
{
public:
    enum class Scheme { System, Light, Dark };

    /// "system", "light", "dark", as in options and settings.
    static QStringList schemeNames();
    /// Nothing for another name.
    static std::optional<Scheme> schemeFromName(const QString &name);
    static QString nameOf(Scheme scheme);

    /// Sets style, palette and style sheet of the QApplication; may be called again to change them. System: as light or
    /// dark as the palette the desktop gave the application before the first call.
    static void apply(Scheme scheme);

    /// Whether the desktop asks for a dark surface. Known at the start only: a later change is not followed.
    static bool isSystemDark();
    static bool isDark(const QPalette &palette);

    static QPalette lightPalette();
    static QPalette darkPalette();
};
