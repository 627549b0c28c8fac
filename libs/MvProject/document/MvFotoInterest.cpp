// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoInterest.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr double steps = 1000.0;
constexpr int mostAmount = 15; // one digit of a file
constexpr double largestWeight = 100.0;
constexpr double pointSide = 0.02;
constexpr auto digits = "0123456789abcdef"_L1;

double kept(double value)
{
    return std::isfinite(value) ? std::round(value * steps) / steps : 0.0;
}

/// By its edges, so that nothing lies outside the photo.
QRectF kept(const QRectF &rect)
{
    const QRectF inside = rect & QRectF(0.0, 0.0, 1.0, 1.0);
    return {kept(inside.x()), kept(inside.y()), kept(inside.width()), kept(inside.height())};
}

QString thousandths(double value)
{
    return QString::number(std::lround(value * steps));
}

} // namespace

MvFotoInterest::MvFotoInterest(const QList<Part> &wholes, const QSize &grid, const QList<double> &amounts)
{
    for (const Part &part : wholes) {
        const Part whole{kept(part.rect), kept(std::clamp(part.weight, 0.0, largestWeight))};
        if (!whole.rect.isEmpty() && whole.weight > 0.0 && m_wholes.size() < mostWholes)
            m_wholes.append(whole);
    }
    const double most = amounts.isEmpty() ? 0.0 : *std::max_element(amounts.cbegin(), amounts.cend());
    if (grid.isEmpty() || grid.width() > mostCells || grid.height() > mostCells || !(most > 0.0) ||
        amounts.size() != qsizetype(grid.width()) * grid.height())
        return;
    m_grid = grid;
    for (const double amount : amounts)
        m_amounts.append(char(std::lround(mostAmount * std::max(0.0, amount) / most)));
}

MvFotoInterest MvFotoInterest::at(const QPointF &point)
{
    QRectF rect(0.0, 0.0, pointSide, pointSide);
    rect.moveCenter(point);
    return MvFotoInterest({{rect, 1.0}});
}

QList<MvFotoInterest::Part> MvFotoInterest::cells() const
{
    QList<Part> cells;
    const double sum = std::accumulate(m_amounts.cbegin(), m_amounts.cend(), 0.0);
    const double width = 1.0 / std::max(1, m_grid.width());
    const double height = 1.0 / std::max(1, m_grid.height());
    for (qsizetype i = 0; i < m_amounts.size(); ++i) {
        if (m_amounts.at(i) > 0) {
            const qsizetype row = i / m_grid.width();
            const QPointF corner(double(i % m_grid.width()) * width, double(row) * height);
            cells.append({QRectF(corner, QSizeF(width, height)), m_amounts.at(i) / sum});
        }
    }
    return cells;
}

QPointF MvFotoInterest::middle() const
{
    QRectF all;
    for (const Part &whole : m_wholes)
        all |= whole.rect;
    if (!all.isEmpty())
        return all.center();
    QPointF middle;
    const QList<Part> known = cells();
    for (const Part &cell : known)
        middle += cell.weight * cell.rect.center();
    return known.isEmpty() ? QPointF(0.5, 0.5) : middle;
}

/// "x,y,width,height,weight;…" in thousandths for what is to be seen whole, then "columns*rows:" and a digit per cell.
QString MvFotoInterest::toText() const
{
    QStringList parts;
    for (const Part &whole : m_wholes) {
        parts.append(QStringList{thousandths(whole.rect.x()), thousandths(whole.rect.y()),
                                 thousandths(whole.rect.width()), thousandths(whole.rect.height()),
                                 thousandths(whole.weight)}
                         .join(u','));
    }
    if (!m_amounts.isEmpty()) {
        QString grid = u"%1*%2:"_s.arg(m_grid.width()).arg(m_grid.height());
        for (const char amount : m_amounts)
            grid.append(digits.at(amount));
        parts.append(grid);
    }
    return parts.join(u';');
}

MvFotoInterest MvFotoInterest::fromText(const QString &text)
{
    QList<Part> wholes;
    QSize grid;
    QList<double> amounts;
    const QStringList parts = text.left(1 << 14).split(u';', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const qsizetype colon = part.indexOf(u':');
        if (colon < 0) {
            const QStringList numbers = part.split(u',');
            const auto number = [&numbers](int i) { return numbers.value(i).toInt() / steps; };
            wholes.append({{number(0), number(1), number(2), number(3)}, number(4)});
            continue;
        }
        const QStringList sides = part.left(colon).split(u'*');
        grid = QSize(sides.value(0).toInt(), sides.value(1).toInt());
        amounts.clear();
        for (const QChar digit : QStringView(part).mid(colon + 1))
            amounts.append(double(std::max<qsizetype>(0, QString(digits).indexOf(digit))));
    }
    return MvFotoInterest(wholes, grid, amounts);
}
