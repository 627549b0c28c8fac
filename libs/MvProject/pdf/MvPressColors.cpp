// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPressColors.h"

#include "MvProject/MvPressProfile.h"

#include <QColorSpace>
#include <QHash>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <optional>

#include <lcms2.h>

namespace {

constexpr int inkCount = 4;
constexpr int levels = 256;

struct Closed
{
    void operator()(void *profile) const { cmsCloseProfile(profile); }
};
struct Deleted
{
    void operator()(void *transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, Closed>;
using Transform = std::unique_ptr<void, Deleted>;
using Levels = std::array<double, levels>;

/// The lightness of a colour without hue, from 0 to 1: nobody sees less difference.
std::optional<int> grayOf(QRgb color)
{
    constexpr int invisible = 4;
    const auto [least, most] = std::minmax({qRed(color), qGreen(color), qBlue(color)});
    if (most - least > invisible)
        return std::nullopt;
    return (qRed(color) + qGreen(color) + qBlue(color) + 1) / 3;
}

double luminanceOf(const cmsCIELab &lab)
{
    cmsCIEXYZ xyz;
    cmsLab2XYZ(nullptr, &xyz, &lab);
    return xyz.Y;
}

Levels luminances(cmsHPROFILE from, cmsUInt32Number format, int parts, int part)
{
    const Profile lab(cmsCreateLab4Profile(nullptr));
    const Transform transform(
        cmsCreateTransform(from, format, lab.get(), TYPE_Lab_DBL, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOCACHE));
    Levels found{};
    for (int level = 0; level < levels; ++level) {
        std::array<uchar, inkCount> color{};
        for (int i = 0; i < parts; ++i)
            color[size_t(i)] = part < 0 || i == part ? uchar(level) : 0;
        cmsCIELab seen{};
        cmsDoTransform(transform.get(), color.data(), &seen, 1);
        found[size_t(level)] = luminanceOf(seen);
    }
    return found;
}

} // namespace

struct MvPressColors::Private
{
    Transform colors; // three bytes to four words
    Transform photos; // QRgb to four bytes
    std::array<uchar, levels> blacks{};

    /// How much black is as light as each grey, when paper counts as white and full black as black.
    void findBlacks(cmsHPROFILE screen, cmsHPROFILE press)
    {
        constexpr int black = 3;
        const Levels wanted = luminances(screen, TYPE_RGB_8, 3, -1);
        const Levels printed = luminances(press, TYPE_CMYK_8, inkCount, black);
        const double darkest = printed.back();
        const double range = std::max(1e-6, printed.front() - darkest);
        int ink = levels - 1;
        for (int gray = 0; gray < levels; ++gray) {
            const double target = darkest + wanted[size_t(gray)] / wanted.back() * range;
            const auto distance = [&](int level) { return std::abs(printed[size_t(level)] - target); };
            while (ink > 0 && distance(ink - 1) <= distance(ink))
                --ink;
            blacks[size_t(gray)] = uchar(ink);
        }
        blacks.front() = levels - 1;
        blacks.back() = 0;
    }
};

MvPressColors::MvPressColors(const MvPressProfile &profile)
    : d(new Private)
{
    constexpr cmsUInt32Number flags = cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE;
    constexpr cmsUInt32Number rgbFormat = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TYPE_BGRA_8 : TYPE_ARGB_8;
    const QByteArray content = profile.content();
    const Profile screen(cmsCreate_sRGBProfile());
    const Profile press(cmsOpenProfileFromMem(content.constData(), cmsUInt32Number(content.size())));
    d->colors.reset(
        cmsCreateTransform(screen.get(), TYPE_RGB_8, press.get(), TYPE_CMYK_16, INTENT_RELATIVE_COLORIMETRIC, flags));
    d->photos.reset(cmsCreateTransform(screen.get(), rgbFormat, press.get(), TYPE_CMYK_8,
                                       cmsGetHeaderRenderingIntent(press.get()), flags));
    if (!d->photos) // an intent that the profile names and does not have
        d->photos.reset(
            cmsCreateTransform(screen.get(), rgbFormat, press.get(), TYPE_CMYK_8, INTENT_RELATIVE_COLORIMETRIC, flags));
    d->findBlacks(screen.get(), press.get());
}

MvPressColors::~MvPressColors() = default;

MvPressColors::Inks MvPressColors::inks(QRgb color) const
{
    if (const auto gray = grayOf(color))
        return {{0.0, 0.0, 0.0, d->blacks[size_t(*gray)] / 255.0}};
    const std::array<uchar, 3> parts{uchar(qRed(color)), uchar(qGreen(color)), uchar(qBlue(color))};
    std::array<cmsUInt16Number, inkCount> found{};
    cmsDoTransform(d->colors.get(), parts.data(), found.data(), 1);
    Inks inks;
    std::transform(found.cbegin(), found.cend(), inks.parts.begin(), [](int part) { return part / 65535.0; });
    return inks;
}

QRgb MvPressColors::colorOfType(QRgb color)
{
    constexpr int nearlyBlack = 60;
    constexpr int tint = 24; // between the parts of a colour: too little for a hue in strokes so thin
    constexpr int darkTint = 32;
    const auto [least, most] = std::minmax({qRed(color), qGreen(color), qBlue(color)});
    const int gray = qGray(color);
    if (gray <= nearlyBlack && most - least <= darkTint)
        return qRgb(0, 0, 0);
    return most - least <= tint ? qRgb(gray, gray, gray) : color;
}

QByteArray MvPressColors::photo(const QImage &image) const
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    QByteArray inks(qsizetype(pixels.width()) * pixels.height() * inkCount, Qt::Uninitialized);
    char *row = inks.data();
    for (int y = 0; y < pixels.height(); ++y, row += qsizetype(pixels.width()) * inkCount)
        cmsDoTransform(d->photos.get(), pixels.constScanLine(y), row, cmsUInt32Number(pixels.width()));
    return inks;
}

QByteArray MvPressColors::drawing(const QImage &image) const
{
    const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, std::array<char, inkCount>> known; // such pictures have few colours
    QByteArray all;
    all.reserve(qsizetype(pixels.width()) * pixels.height() * inkCount);
    for (int y = 0; y < pixels.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            auto found = known.constFind(line[x]);
            if (found == known.cend()) {
                std::array<char, inkCount> bytes{};
                const Inks one = inks(line[x]);
                std::transform(one.parts.cbegin(), one.parts.cend(), bytes.begin(),
                               [](double part) { return char(uchar(std::lround(part * 255.0))); });
                found = known.insert(line[x], bytes);
            }
            all.append(found->data(), inkCount);
        }
    }
    return all;
}

QImage MvPressColors::grays(const QImage &image) const
{
    QImage gray = image.convertToFormat(QImage::Format_RGB32).convertToFormat(QImage::Format_Grayscale8);
    for (int y = 0; y < gray.height(); ++y) {
        uchar *line = gray.scanLine(y);
        std::transform(line, line + gray.width(), line, [this](uchar value) { return uchar(255 - d->blacks[value]); });
    }
    gray.setColorSpace({});
    return gray;
}
