// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QColor>
#include <QFont>
#include <QString>

/// A text on a page: a title, a caption, a few words. A value.
///
/// It is wrapped and divided in the page's language, set smaller down to 6.5 points where its frame is too small, and
/// only then shortened and reported. It never leaves its frame.
class MVPROJECT_EXPORT MvTextElement
{
public:
    static constexpr double smallestPoints = 4.0;
    static constexpr double largestPoints = 400.0;

    MvTextElement() = default;
    explicit MvTextElement(const QString &text)
        : m_text(text)
    {}

    /// What is printed, with placeholders: `{title}` and `{author}` of the calendar, `{month}` and `{year}` of the
    /// page,
    /// `{caption}` of a photo, `{photos}` all captions of the page. Lines are parted by "\n".
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }
    /// The slot of the photo that `{caption}` means; empty for the page's first photo with a caption.
    QString fotoSlot() const { return m_fotoSlot; }
    void setFotoSlot(const QString &slot) { m_fotoSlot = slot; }

    /// Empty for that of the page's layout.
    QString family() const { return m_family; }
    void setFamily(const QString &family) { m_family = family; }
    /// On a page of A4; other papers follow by the square root of two per step. 4 to 400, clamped.
    double points() const { return m_points; }
    void setPoints(double points);
    QFont::Weight weight() const { return m_weight; }
    void setWeight(QFont::Weight weight) { m_weight = weight; }
    bool isItalic() const { return m_isItalic; }
    void setItalic(bool italic) { m_isItalic = italic; }
    /// All letters are capitals.
    bool hasCapitals() const { return m_hasCapitals; }
    void setCapitals(bool capitals) { m_hasCapitals = capitals; }
    /// Between letters, in percent of the type's size; -20 to 100, clamped.
    double letterSpacing() const { return m_letterSpacing; }
    void setLetterSpacing(double percent);

    /// Invalid for the page's text colour, or for its accent. Kept with 8 bits a channel, as files hold it.
    QColor color() const { return m_color; }
    void setColor(const QColor &color) { m_color = color.isValid() ? QColor::fromRgba(color.rgba()) : QColor(); }
    /// Without a colour of its own the text has that of Sundays.
    bool isAccent() const { return m_isAccent; }
    void setAccent(bool accent) { m_isAccent = accent; }

    /// One horizontal and one vertical flag.
    Qt::Alignment alignment() const { return m_alignment; }
    /// What is missing or contradictory becomes left, and top.
    void setAlignment(Qt::Alignment alignment);

    /// The text stands on a photo: under it lies a veil of the page's ground, as strong as legibility demands.
    bool isOnFoto() const { return m_isOnFoto; }
    void setOnFoto(bool on) { m_isOnFoto = on; }

    bool operator==(const MvTextElement &) const = default;

private:
    QString m_text;
    QString m_fotoSlot;
    QString m_family;
    double m_points = 10.0;
    QFont::Weight m_weight = QFont::Normal;
    bool m_isItalic = false;
    bool m_hasCapitals = false;
    double m_letterSpacing = 0.0;
    QColor m_color;
    bool m_isAccent = false;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignTop;
    bool m_isOnFoto = false;
};
