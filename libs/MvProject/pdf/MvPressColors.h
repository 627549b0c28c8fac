// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QRgb>

#include <array>
#include <memory>

class MvPressProfile;
class QImage;

/// Colours of a screen (sRGB) as inks of a press. What is grey is printed with black alone, as light as it is meant to
/// be: small type of four inks never fits together, and mixed greys turn coloured. Immutable, any thread.
class MvPressColors
{
public:
    /// Cyan, magenta, yellow, black; from 0 to 1.
    struct Inks
    {
        std::array<double, 4> parts{};

        /// In percent of one ink.
        double total() const { return 100.0 * (parts[0] + parts[1] + parts[2] + parts[3]); }
    };

    /// The profile is valid.
    explicit MvPressColors(const MvPressProfile &profile);
    ~MvPressColors();
    MvPressColors(const MvPressColors &) = delete;
    MvPressColors &operator=(const MvPressColors &) = delete;

    Inks inks(QRgb color) const;
    /// What type and thin lines of that colour are printed in, so that they need no plates to meet: pure black for one
    /// so dark that it would only be black with holes, grey for one with a mere tint, else the colour itself.
    static QRgb colorOfType(QRgb color);

    /// Four bytes for each pixel, row by row, as the profile wants photos to be printed. The opacity is ignored.
    QByteArray photo(const QImage &image) const;
    /// The same for a picture of areas, with each colour as inks() has it.
    QByteArray drawing(const QImage &image) const;
    /// A grey picture as one in which the part that is missing to white is that of black ink.
    QImage grays(const QImage &image) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
