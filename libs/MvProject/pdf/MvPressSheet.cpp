// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPressSheet.h"

#include "MvModelBase/MvFontCreator.h"
#include "MvProject/MvPressSettings.h"

#include <QFont>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double gap = 10.0; // beside the bleed, so that no mark is on the page when it is cut badly
constexpr double markLength = 50.0;
constexpr double shortMark = 30.0; // of the bleed
constexpr double slugHeight = 40.0;
constexpr double slugSize = 21.0; // six points
constexpr int slugPixels = 96;    // in which the type is shaped

/// What stands beside a rectangle at the ends of its edges, or of lines within it.
class Beside
{
public:
    Beside(const QRectF &bleed, double length)
        : m_inner(bleed.adjusted(-gap, -gap, gap, gap))
        , m_length(length)
    {}

    void addAtHeight(double y)
    {
        m_lines.append({m_inner.left() - m_length, y, m_inner.left(), y});
        m_lines.append({m_inner.right(), y, m_inner.right() + m_length, y});
    }
    void addAcross(double x)
    {
        m_lines.append({x, m_inner.top() - m_length, x, m_inner.top()});
        m_lines.append({x, m_inner.bottom(), x, m_inner.bottom() + m_length});
    }
    QList<QLineF> atEdgesOf(const QRectF &rect)
    {
        addAtHeight(rect.top());
        addAtHeight(rect.bottom());
        addAcross(rect.left());
        addAcross(rect.right());
        return m_lines;
    }
    QList<QLineF> lines() const { return m_lines; }

private:
    const QRectF m_inner;
    const double m_length;
    QList<QLineF> m_lines;
};

/// A cross in a circle.
void addRegistrationMark(QPainterPath &path, const QPointF &place)
{
    constexpr double arm = MvPressSheet::registrationRadius * 1.6;
    path.addEllipse(place, MvPressSheet::registrationRadius, MvPressSheet::registrationRadius);
    path.moveTo(place - QPointF(arm, 0.0));
    path.lineTo(place + QPointF(arm, 0.0));
    path.moveTo(place - QPointF(0.0, arm));
    path.lineTo(place + QPointF(0.0, arm));
}

} // namespace

MvPressSheet::MvPressSheet(const MvPressSettings &settings, const QRectF &trim, const QRectF &painted,
                           const QRectF &binding)
    : m_trim(trim)
    , m_painted(painted)
    , m_binding(binding)
    , m_hasMarks(settings.hasMarks)
    , m_bleed(painted)
{
    if (painted.right() <= trim.right()) {
        const double bleed = settings.bleed;
        m_bleed = trim.adjusted(-bleed, -bleed, bleed, bleed);
    }
}

QRectF MvPressSheet::sheet() const
{
    if (!m_hasMarks)
        return m_bleed;
    constexpr double side = gap + markLength + gap;
    return m_bleed.adjusted(-side, -side - slugHeight, side, side + slugHeight);
}

QList<QLineF> MvPressSheet::cropMarks() const
{
    return m_hasMarks ? Beside(m_bleed, markLength).atEdgesOf(m_trim) : QList<QLineF>();
}

QList<QLineF> MvPressSheet::bleedMarks() const
{
    return m_hasMarks && m_bleed != m_trim ? Beside(m_bleed, shortMark).atEdgesOf(m_bleed) : QList<QLineF>();
}

QList<QLineF> MvPressSheet::foldMarks() const
{
    if (!m_hasMarks || m_binding.isEmpty())
        return {};
    Beside marks(m_bleed, markLength);
    const bool isAcross = m_binding.width() >= m_trim.width(); // along the upper or the lower edge
    if (isAcross)
        marks.addAtHeight(m_binding.top() <= m_trim.top() ? m_binding.bottom() : m_binding.top());
    else
        marks.addAcross(m_binding.left() <= m_trim.left() ? m_binding.right() : m_binding.left());
    return marks.lines();
}

QList<QPointF> MvPressSheet::registrationMarks() const
{
    constexpr double smallest = 600.0; // of a side with room beside its other marks
    if (!m_hasMarks)
        return {};
    const double away = gap + markLength / 2.0;
    const QPointF middle = m_trim.center();
    QList<QPointF> places;
    if (m_trim.width() >= smallest)
        places += {{middle.x(), m_bleed.top() - away}, {middle.x(), m_bleed.bottom() + away}};
    if (m_trim.height() >= smallest)
        places += {{m_bleed.left() - away, middle.y()}, {m_bleed.right() + away, middle.y()}};
    return places;
}

QPainterPath MvPressSheet::marks() const
{
    QPainterPath path;
    for (const QLineF &line : cropMarks() + bleedMarks()) {
        path.moveTo(line.p1());
        path.lineTo(line.p2());
    }
    for (const QPointF &place : registrationMarks())
        addRegistrationMark(path, place);
    return path;
}

double MvPressSheet::slugScale()
{
    return slugSize / slugPixels;
}

QPointF MvPressSheet::slugPlace() const
{
    return {m_bleed.left(), m_bleed.bottom() + gap + markLength + gap + slugSize};
}

MvTextOutline MvPressSheet::slug(const QString &text) const
{
    if (!m_hasMarks)
        return {};
    const QFont font = MvFontCreator::createMarkFont(slugPixels);
    const double room = m_bleed.width() / slugScale();
    MvTextOutline outline(font, text);
    for (qsizetype length = text.size(); outline.advance() > room && length > 0;) {
        const auto fitting = qsizetype(double(length) * room / outline.advance());
        length = std::min(length - 1, fitting);
        if (length > 0 && text[length - 1].isHighSurrogate())
            --length;
        outline = MvTextOutline(font, text.first(length).trimmed() + u'…');
    }
    return outline;
}
