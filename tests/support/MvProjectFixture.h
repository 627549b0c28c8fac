// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageTemplateRegistry.h"

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

/// Two columns of photos, a title above and a caption below them, a calendarium; as many photos as asked for.
inline MvPageTemplate pageTemplate(const QString &id, int fotos, double border = 0.0)
{
    const auto divide = [fotos, border](const MvPageFormat &format) {
        const QRectF field = format.fieldRect();
        const double row = field.height() / 4.0;
        MvFotoElement foto;
        foto.setBorder({border, Qt::white});
        MvTextElement title(QStringLiteral("{title}"));
        title.setPoints(24.0);
        QList<MvTemplateSlot> found = {
            {{{field.left(), field.top(), field.width(), row}, title, QStringLiteral("title")}}};
        for (int i = 0; i < fotos; ++i) {
            const double width = field.width() / fotos;
            found.append({{{field.left() + i * width, field.top() + row, width, row},
                           foto,
                           QStringLiteral("photo %1").arg(i + 1)}});
        }
        found.append({{{field.left(), field.top() + 2 * row, field.width(), 0.4 * row},
                       MvTextElement(QStringLiteral("{caption}")),
                       QStringLiteral("caption")}});
        found.append({{{field.left(), field.top() + 2.5 * row, field.width(), 1.5 * row},
                       MvCalendariumElement(),
                       QStringLiteral("calendarium")}});
        return found;
    };
    return {id, MvPageKind::Month, id, QString(), divide};
}

/// A calendar as it is after so many steps of somebody who gathers photos, puts them into frames, and changes templates
/// and titles: equal for equal numbers, different for others. Its photos need not exist.
inline MvCalendarDocument album(int step)
{
    MvCalendarDocument calendar = document(QStringLiteral("MONTH_GRID_CLASSIC"), 3);
    calendar.setTitle(QStringLiteral("Stand %1").arg(step));
    QList<MvFotoPoolItem> items;
    for (int number = 0; number <= step % 17; ++number)
        items.append({QStringLiteral("/fotos/%1-%2.jpg").arg(step % 5).arg(number),
                      {6000, 4000 + step},
                      QDateTime(QDate(2026, 1, 1).addDays(number), QTime(12, 0), Qt::UTC),
                      {0.5, 0.25}});
    MvFotoPool pool;
    pool.add(items);
    calendar.setFotoPool(pool);
    const QList<MvPageTemplate> templates = MvPageTemplateRegistry::instance().templates(MvPageKind::Month);
    for (int number = 0; number < calendar.pages().size() && !templates.isEmpty(); ++number) {
        MvCalendarPage page = calendar.pages()[number];
        page.setTemplate(templates[(step + number) % templates.size()], calendar.format());
        for (int element = 0, foto = 0; element < page.elements().size(); ++element) {
            if (page.elements()[element].foto())
                page.setFoto(element, MvFotoElement(pool.items()[foto++ % pool.size()].path));
        }
        calendar.setPage(number, page);
    }
    return calendar;
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
