// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvModelBase/mvmodelbase_export.h"

#include <QByteArray>
#include <QString>

#include <functional>

class QFont;
class QRawFont;

/// Which fonts the program knows: usually all from its start on, those that ship and those of the computer.
///
/// A program that does nothing but write pages spends as long on that as on a month's page, and most pages have two or
/// three faces that ship. It may leave it to this class: then every font that pages are made with comes here before it
/// is measured, and every text before it is shaped. A face that ships is made known alone; with the first font or
/// character that is none of those, everything is as usual. So pages look the same in both ways.
class MVMODELBASE_EXPORT MvFontSupply
{
public:
    /// Fonts are made known when they are asked for. To be called before the QGuiApplication is there, by a program
    /// that neither uses nor offers fonts but by this library; others would miss those of the computer.
    static void makeOnDemand();

    /// Makes the fonts that ship known, once, unless they are on demand. Without a QGuiApplication there is nothing
    /// to make them known to: the call does nothing and counts for nothing. GUI thread.
    static void start();

    /// Called before a font's measures are taken. Safe to use from several threads, as the others.
    static void provide(const QFont &font);
    /// Called before a text is shaped: other fonts may have to step in for characters that this one lacks.
    static void provide(const QFont &font, const QString &text);
    /// The file of a face that was made known alone; empty when the font may be another one of that name.
    static QByteArray fileOf(const QRawFont &font);
    /// Makes everything known, for what is painted without coming here.
    static void provideAll();
    /// Calls whenever fonts have come or gone, so that what was known of texts may be wrong now; not when fonts become
    /// known on demand, which changes no text. For the program's whole run; without a QGuiApplication nothing happens.
    static void whenFontsChange(const std::function<void()> &forget);
    /// Whether there is a family of that name; for those that ship nothing is made known.
    static bool hasFamily(const QString &family);
};
