// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvTheme.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvGUIWidgets/MvStyle.h"

#include <QApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// The colours of a palette, from which all roles of all groups are made.
struct Colours
{
    QRgb window, base, alternateBase, button;
    QRgb text, quietText, disabledText;
    QRgb light, midlight, mid, dark, shadow;
    QRgb highlight, highlightedText, disabledHighlight;
    QRgb link, visitedLink;
    QRgb toolTip, toolTipText;
};

constexpr Colours lightColours{
    .window = 0xf4f3f1,
    .base = 0xffffff,
    .alternateBase = 0xf7f6f3,
    .button = 0xebe9e6,
    .text = 0x1f2326,
    .quietText = 0x5f6469,
    .disabledText = 0x84878a,
    .light = 0xffffff,
    .midlight = 0xe0ddd8,
    .mid = 0x84807a,
    .dark = 0x8a8680,
    .shadow = 0x4a4744,
    .highlight = 0x1f6a94,
    .highlightedText = 0xffffff,
    .disabledHighlight = 0xd5d8da,
    .link = 0x1a6189,
    .visitedLink = 0x6b4a86,
    .toolTip = 0x2b3034,
    .toolTipText = 0xf2f1ef,
};

constexpr Colours darkColours{
    .window = 0x2a2d30,
    .base = 0x1f2224,
    .alternateBase = 0x25282b,
    .button = 0x383c40,
    .text = 0xe6e4e1,
    .quietText = 0xacb0b4,
    .disabledText = 0x8b9094,
    .light = 0x4c5156,
    .midlight = 0x41464a,
    .mid = 0x868d94,
    .dark = 0x17191b,
    .shadow = 0x0b0c0d,
    .highlight = 0x5aa9d6,
    .highlightedText = 0x0d1418,
    .disabledHighlight = 0x3a3f43,
    .link = 0x7cc0e8,
    .visitedLink = 0xc3a5e0,
    .toolTip = 0x434a50,
    .toolTipText = 0xf2f1ef,
};

QPalette makePalette(const Colours &colours)
{
    const auto colour = [](QRgb rgb) { return QColor::fromRgb(rgb); };
    QPalette palette;
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {
        {QPalette::WindowText, colours.text},
        {QPalette::Button, colours.button},
        {QPalette::Light, colours.light},
        {QPalette::Midlight, colours.midlight},
        {QPalette::Dark, colours.dark},
        {QPalette::Mid, colours.mid},
        {QPalette::Text, colours.text},
        {QPalette::BrightText, colours.highlightedText},
        {QPalette::ButtonText, colours.text},
        {QPalette::Base, colours.base},
        {QPalette::Window, colours.window},
        {QPalette::Shadow, colours.shadow},
        {QPalette::Highlight, colours.highlight},
        {QPalette::HighlightedText, colours.highlightedText},
        {QPalette::Link, colours.link},
        {QPalette::LinkVisited, colours.visitedLink},
        {QPalette::AlternateBase, colours.alternateBase},
        {QPalette::ToolTipBase, colours.toolTip},
        {QPalette::ToolTipText, colours.toolTipText},
        {QPalette::PlaceholderText, colours.quietText},
    };
    for (const auto &[role, rgb] : roles)
        palette.setColor(role, colour(rgb));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText, QPalette::HighlightedText,
          QPalette::Link, QPalette::LinkVisited, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, colour(colours.disabledText));
    palette.setColor(QPalette::Disabled, QPalette::Base, colour(colours.window));
    palette.setColor(QPalette::Disabled, QPalette::AlternateBase, colour(colours.window));
    palette.setColor(QPalette::Disabled, QPalette::Button, colour(colours.window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colour(colours.disabledHighlight));
    return palette;
}

QString styleSheet()
{
    QFile file(MvDirectoryConfig::instance().resource(u"styles/studio.qss"_s).filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll());
}

} // namespace

QStringList MvTheme::schemeNames()
{
    return {u"system"_s, u"light"_s, u"dark"_s};
}

std::optional<MvTheme::Scheme> MvTheme::schemeFromName(const QString &name)
{
    const qsizetype index = schemeNames().indexOf(name.trimmed().toLower());
    return index < 0 ? std::nullopt : std::optional(static_cast<Scheme>(index));
}

QString MvTheme::nameOf(Scheme scheme)
{
    return schemeNames().value(static_cast<int>(scheme));
}

bool MvTheme::isDark(const QPalette &palette)
{
    return palette.color(QPalette::WindowText).lightnessF() > palette.color(QPalette::Window).lightnessF();
}

bool MvTheme::isSystemDark()
{
    static const bool isDarkAtStart = isDark(QGuiApplication::palette());
    return isDarkAtStart;
}

void MvTheme::apply(Scheme scheme)
{
    const bool wantsDark = isSystemDark() ? scheme != Scheme::Light : scheme == Scheme::Dark;
    QApplication::setStyle(new MvStyle);
    QApplication::setPalette(wantsDark ? darkPalette() : lightPalette());
    qApp->setStyleSheet(styleSheet()); // last and each time: it takes its colours from the palette when it is set
}

QPalette MvTheme::lightPalette()
{
    return makePalette(lightColours);
}

QPalette MvTheme::darkPalette()
{
    return makePalette(darkColours);
}
