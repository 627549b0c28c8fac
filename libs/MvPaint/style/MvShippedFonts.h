// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

class QFont;

/// The fonts that come with the library: those of `resources/fonts`, in the faces that layouts and themes are made
/// with.
///
/// A page is measured and divided by its letters, so it looks alike on two computers only if both have the same fonts.
/// Those that ship stand before fonts of the same name that a computer has; other families, and faces that do not ship
/// (a semi-bold Lato, say), are the computer's.
class MvShippedFonts
{
public:
    /// Makes all known to the program that are not yet. With a QGuiApplication, as the next two; one thread at a time.
    static void registerAll();
    /// Makes the face known that has the font's family, weight and slant, and no other. Gives its file; none when it
    /// does not ship, cannot be used, or when a folder of resources stands in for those that are part of the program.
    static QByteArray registerFace(const QFont &font);
    /// Has Qt look anew at what fonts the computer has; those that ship stay before them.
    static void refreshOthers();
    /// Whether a family ships in any face.
    static bool hasFamily(const QString &family);
};
