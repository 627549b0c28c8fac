#include "MvStudioTheme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

struct Colors
{
    QColor window;
    QColor base;
    QColor alternate;
    QColor button;
    QColor text;
    QColor weakText;
    QColor highlight;
    QColor highlightedText;
    QColor link;
};

const Colors lightColors{QColor(0xf0f0ef), QColor(0xffffff), QColor(0xf6f6f5), QColor(0xf7f7f6), QColor(0x1f2326),
                         QColor(0x8a8f94), QColor(0x2f6fb0), QColor(0xffffff), QColor(0x1f5f9f)};
const Colors darkColors{QColor(0x2b2d30), QColor(0x1f2123), QColor(0x26282a), QColor(0x36393c), QColor(0xe6e8ea),
                        QColor(0x84898e), QColor(0x3b7cc0), QColor(0xffffff), QColor(0x7ab4ee)};

QPalette paletteOf(const Colors &colors)
{
    QPalette palette(colors.button, colors.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, colors.text);
        palette.setColor(QPalette::Disabled, role, colors.weakText);
    }
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.alternate);
    palette.setColor(QPalette::ToolTipBase, colors.base);
    palette.setColor(QPalette::PlaceholderText, colors.weakText);
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.weakText);
    palette.setColor(QPalette::HighlightedText, colors.highlightedText);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::LinkVisited, colors.link);
    return palette;
}

} // namespace

void MvStudioTheme::apply(MvStudioSettings::Theme theme)
{
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    QApplication::setPalette(palette(theme));
    QToolTip::setPalette(QApplication::palette());
}

QPalette MvStudioTheme::palette(MvStudioSettings::Theme theme)
{
    switch (theme) {
    case MvStudioSettings::Theme::Light:
        return paletteOf(lightColors);
    case MvStudioSettings::Theme::Dark:
        return paletteOf(darkColors);
    case MvStudioSettings::Theme::System:
        break;
    }
    return {};
}
