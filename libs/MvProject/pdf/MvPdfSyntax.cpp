// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfSyntax.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

void MvPdfSyntax::append(QByteArray &out, double value, int decimals)
{
    constexpr double largest = 1e8; // hundredths of a point: more than 300 metres; fits with ten decimals
    static constexpr std::array<qint64, 11> powers{1,       10,       100,       1000,       10000,      100000,
                                                   1000000, 10000000, 100000000, 1000000000, 10000000000};
    std::array<char, 32> digits{};
    // what is painted without end or at no place at all, ends far outside of any page
    const double known = std::isnan(value) ? 0.0 : std::clamp(value, -largest, largest);
    qint64 scaled = std::llround(known * double(powers[size_t(decimals)]));
    if (scaled < 0) {
        out += '-';
        scaled = -scaled;
    }
    const qint64 whole = scaled / powers[size_t(decimals)];
    qint64 fraction = scaled % powers[size_t(decimals)];
    if (whole != 0 || fraction == 0) {
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), whole);
        out.append(digits.data(), end.ptr - digits.data());
    }
    if (fraction == 0)
        return;
    int places = decimals;
    for (; fraction % 10 == 0; --places)
        fraction /= 10;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), fraction);
    out += '.';
    out.append(places - (end.ptr - digits.data()), '0');
    out.append(digits.data(), end.ptr - digits.data());
}

void MvPdfSyntax::append(QByteArray &out, const QPointF &point, int decimals)
{
    append(out, point.x(), decimals);
    out += ' ';
    append(out, point.y(), decimals);
    out += ' ';
}

QByteArray MvPdfSyntax::number(double value, int decimals)
{
    QByteArray out;
    append(out, value, decimals);
    return out;
}

QByteArray MvPdfSyntax::string(const QByteArray &bytes)
{
    QByteArray out("(");
    for (const char c : bytes) {
        if (c == '(' || c == ')' || c == '\\')
            out += '\\';
        if (c == '\r') // alone, it would be read as the end of a line
            out += "\\r";
        else
            out += c;
    }
    return out + ')';
}

QByteArray MvPdfSyntax::text(const QString &text)
{
    const bool isPlain =
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() >= 0x20 && c.unicode() < 0x7f; });
    return isPlain ? string(text.toLatin1()) : "<FEFF" + utf16(text) + '>';
}

QByteArray MvPdfSyntax::utf16(QStringView text)
{
    QByteArray bytes;
    for (const QChar c : text) {
        bytes += char(c.unicode() >> 8);
        bytes += char(c.unicode() & 0xff);
    }
    return bytes.toHex().toUpper();
}
