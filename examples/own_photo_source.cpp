// SPDX-License-Identifier: LGPL-2.1-or-later
// Paints a month whose entries and portraits come from the program itself: own_photo_source PICTURE.png
// Here the portraits are drawn; they might as well come from a database or the net.
#include "MvCalendar/MvCalendarEventListSource.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvCore/MvInitializer.h"
#include "MvFoto/MvFotoSource.h"
#include "MvProject/MvCalendarDocument.h"

#include <QGuiApplication>
#include <QPainter>

#include <cstdio>

namespace {

/// Asked for a picture by a name and a size in pixels while a page is painted.
class Portraits : public MvFotoSource
{
public:
    QImage scaled(const QFileInfo &file, const QSize &bounds) override
    {
        std::printf("portrait of %s\n", qPrintable(file.fileName()));
        QImage portrait(QSize(1, 1).scaled(bounds, Qt::KeepAspectRatio), QImage::Format_RGB32);
        portrait.fill(QColor(0x6b, 0x8e, 0xae));
        QPainter painter(&portrait);
        painter.setPen(Qt::white);
        QFont font = painter.font();
        font.setPixelSize(std::max(1, portrait.height() / 2));
        painter.setFont(font);
        painter.drawText(portrait.rect(), Qt::AlignCenter, file.fileName().left(1));
        return portrait;
    }
};

/// The birthdays of the program; each has a portrait under its name.
class Family : public MvCalendarEventListSource
{
public:
    using MvCalendarEventListSource::MvCalendarEventListSource;

    MvImageReference imageFile(const MvCalendariumContentKey &key) const override
    {
        const QStringList names = descriptions(key);
        return names.isEmpty() ? MvImageReference() : MvImageReference{names.first(), QSize(600, 600)};
    }

    QImage eventImage(const MvCalendariumContentKey &key, const QSize &bounds, MvFotoSource &fotos) const override
    {
        const QStringList names = descriptions(key);
        return names.isEmpty() ? QImage() : fotos.scaled(QFileInfo(names.first()), bounds);
    }
};

MvCalendarEvent birthday(const QString &name, const QDate &date)
{
    return {name, date.startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime::currentDateTime()};
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: own_photo_source PICTURE.png\n");
        return 2;
    }
    const QGuiApplication application(argc, argv);
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);

    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(QStringLiteral("MONTH_GRID_CLASSIC")));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(QStringLiteral("WARM_PAPER")));
    MvCalendarDocument calendar;
    calendar.setAppearance(appearance);
    calendar.setRange(MvDateRange(QDate(2027, 3, 1), QDate(2027, 3, 31)));
    calendar.setHolidayConfig(MvCalendariumHolidayConfig(MvLocale(QStringLiteral("de_DE")), QString(),
                                                         MvCalendariumFeatures(FEATURE_ENTRIES)));

    const Family family(MvCalendarEventList{birthday(QStringLiteral("Erika"), QDate(1949, 3, 5)),
                                            birthday(QStringLiteral("Ben"), QDate(2019, 3, 18))});
    Portraits portraits;
    MvRenderingSources sources;
    sources.entries = &family;
    sources.fotos = &portraits;

    const double pixelsPerUnit = 0.5; // a unit is a tenth of a millimetre
    QImage picture((calendar.format().trimSize() * pixelsPerUnit).toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerUnit, pixelsPerUnit);
    calendar.paint(painter, 0, sources);
    painter.end();
    return picture.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
