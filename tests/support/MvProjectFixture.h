// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"

#include <QColor>
#include <QImage>

/// Documents and photos for the tests of projects.
namespace MvProjectFixture {

inline MvCalendariumAppearance appearance(const QString &layout, const QString &colors = QStringLiteral("PAPER_WHITE"))
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    appearance.adoptLayoutSuggestions();
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(colors));
    return appearance;
}

/// Months of 2027 on A5 landscape.
inline MvCalendarDocument document(const QString &layout, int months = 12)
{
    MvCalendarDocument document;
    document.setRange({QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(months).addDays(-1)});
    document.setAppearance(appearance(layout));
    MvPageFormat format = MvPageFormat::fromName(QStringLiteral("A5"));
    format.setOrientation(MvPageFormat::Orientation::Landscape);
    format.setBleed(30.0);
    document.setFormat(format);
    document.setTitle(QStringLiteral("Familie 2027"));
    return document;
}

inline void setFoto(MvCalendarDocument &document, int page, const MvFotoFrame &foto)
{
    MvCalendarPage changed = document.pages()[page];
    changed.setFotoFrame(foto);
    document.setPage(page, changed);
}

/// Writes a photo of four quarters: red, green above blue, yellow.
inline bool writeFoto(const QString &path, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        const bool isUpper = y < size.height() / 2;
        for (int x = 0; x < size.width(); ++x) {
            const bool isLeft = x < size.width() / 2;
            image.setPixelColor(x, y, isUpper ? (isLeft ? Qt::red : Qt::green) : (isLeft ? Qt::blue : Qt::yellow));
        }
    }
    return image.save(path);
}

} // namespace MvProjectFixture
