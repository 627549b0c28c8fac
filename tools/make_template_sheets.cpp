// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTestHome.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvProductBase/MvCalendariumFeatures.h"
#include "MvProject/MvFotoAim.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvPageTemplateRegistry.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int captionHeight = 22;
constexpr int gap = 14;
const QStringList papers{u"A4 landscape"_s, u"A4"_s, u"square-210"_s, u"panorama landscape"_s, u"panorama"_s};

MvPageFormat formatOf(const QString &paper)
{
    const QStringList words = paper.split(u' ');
    MvPageFormat format = MvPageFormat::fromName(words.constFirst());
    if (words.size() > 1)
        format.setOrientation(MvPageFormat::Orientation::Landscape);
    format.setBleed(MvPageFormat::printShopBleed);
    return format;
}

/// What the sheets show: which pictures, and on which edge they are bound.
struct Scene
{
    QList<MvFotoPoolItem> fotos; // none: empty frames
    MvPageFormat::Binding binding = MvPageFormat::Binding::None;
    QSize cell; // of a page, with its caption
};

MvCalendarDocument documentOf(const MvPageFormat &format, const QString &themeId)
{
    MvNewCalendar calendar;
    calendar.range = MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31));
    calendar.format = format;
    calendar.themeId = themeId;
    calendar.title = u"Unser Jahr am See und in den Bergen"_s;
    calendar.author = u"Familie Wagenknecht-Obermaier"_s;
    const MvCalendariumFeatures shown(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS | FEATURE_SCHOOL_VACATIONS);
    calendar.holidays = MvCalendariumHolidayConfig(MvLocale(u"de_DE"_s), u"BY"_s, shown);
    return calendar.make();
}

/// Fills all frames with the pictures in turn, with captions long and short.
void fill(MvCalendarDocument &document, const QList<MvFotoPoolItem> &fotos)
{
    static const QStringList captions{u"Am Walchensee, kurz nach Sonnenaufgang"_s, u"Omas Garten"_s,
                                      u"Drei Tage Regen, und dann das: der Blick vom Herzogstand bis nach München"_s};
    int next = 0;
    const QList<MvCalendarDocument::FrameId> frames = document.frames();
    for (const MvCalendarDocument::FrameId &frame : frames) {
        MvFotoElement foto = document.foto(frame);
        if (!fotos.isEmpty())
            foto.setPath(fotos.at(next % fotos.size()).path);
        foto.setCaption(captions.at(next % captions.size()));
        document.setFoto(frame, foto);
        ++next;
    }
    for (qsizetype i = 0; i < frames.size() && !fotos.isEmpty(); ++i) {
        const MvCalendarDocument::FrameId &frame = frames.at(i);
        document.setFoto(frame, MvFotoAim::aimed(fotos.at(i % fotos.size()), document.pages().at(frame.page),
                                                 frame.element, document.format()));
    }
}

void drawPage(QPainter &painter, const QRect &place, const MvCalendarDocument &document, int page,
              const QString &caption)
{
    const MvPageFormat format = document.format();
    const QSizeF paper = format.trimSize();
    const double scale =
        std::min((place.width() - gap) / paper.width(), (place.height() - gap - captionHeight) / paper.height());
    painter.save();
    painter.setPen(Qt::white);
    painter.drawText(QRect(place.topLeft(), QSize(place.width() - gap, captionHeight)),
                     Qt::AlignLeft | Qt::AlignVCenter, caption);
    painter.translate(place.topLeft() + QPoint(0, captionHeight));
    painter.scale(scale, scale);
    painter.setClipRect(format.trimRect());
    painter.fillRect(format.trimRect(), Qt::white);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    document.paint(painter, page);
    for (const MvPageElement &element : document.pages().at(page).elementsOn(format)) {
        if (element.foto() && element.foto()->isEmpty()) {
            painter.fillRect(element.rect(), QColor(0x80, 0x90, 0xA0, 0x40));
            painter.setPen(QPen(QColor(0x80, 0x90, 0xA0), 4, Qt::DashLine));
            painter.drawRect(element.rect().adjusted(4, 4, -4, -4));
        }
    }
    painter.fillRect(format.bindingRect(), QColor(0xFF, 0x00, 0x00, 0x30));
    painter.restore();
}

QImage sheet(const QSize &cell, int columns, int rows)
{
    QImage image(cell.width() * columns + gap, cell.height() * rows + gap, QImage::Format_RGB32);
    image.fill(QColor(0x6A, 0x6A, 0x6A));
    return image;
}

QRect place(const QSize &cell, int column, int row)
{
    return {QPoint(gap + column * cell.width(), gap + row * cell.height()), cell};
}

/// A row per paper: cover, January, February with its 28 days, May with its six weeks, back.
void makeThemeSheet(const QString &file, const QString &themeId, const Scene &scene)
{
    QImage image = sheet(scene.cell, 5, int(papers.size()));
    QPainter painter(&image);
    for (int row = 0; row < papers.size(); ++row) {
        MvPageFormat format = formatOf(papers.at(row));
        format.setBinding(scene.binding);
        MvCalendarDocument document = documentOf(format, themeId);
        fill(document, scene.fotos);
        const QList<int> pages{0, 1, 2, 5, int(document.pages().size()) - 1};
        for (int column = 0; column < pages.size(); ++column) {
            const QString name =
                themeId + u", "_s + papers.at(row) + u", "_s + document.pages().value(pages.at(column)).templateId();
            drawPage(painter, place(scene.cell, column, row), document, pages.at(column), name);
        }
    }
    image.save(file);
}

/// All pages of a calendar on one paper, as they would lie on a table.
void makeYearSheet(const QString &file, const QString &themeId, const QString &paper, const Scene &scene)
{
    MvPageFormat format = formatOf(paper);
    format.setBinding(scene.binding);
    MvCalendarDocument document = documentOf(format, themeId);
    fill(document, scene.fotos);
    QImage image = sheet(scene.cell, 5, 3);
    QPainter painter(&image);
    for (int page = 0; page < document.pages().size(); ++page)
        drawPage(painter, place(scene.cell, page % 5, page / 5), document, page, QString());
    image.save(file);
}

/// A row per template, a column per paper, each template in the given theme.
void makeTemplateSheet(const QString &file, const QList<MvPageTemplate> &templates, const QString &themeId,
                       const Scene &scene)
{
    QImage image = sheet(scene.cell, int(papers.size()), int(templates.size()));
    QPainter painter(&image);
    for (int column = 0; column < papers.size(); ++column) {
        MvPageFormat format = formatOf(papers.at(column));
        format.setBinding(scene.binding);
        const MvCalendarDocument usual = documentOf(format, themeId);
        for (int row = 0; row < templates.size(); ++row) {
            const MvPageTemplate &shown = templates.at(row);
            MvCalendarDocument document = usual;
            const int number = shown.kind() == MvPageKind::Cover  ? 0
                               : shown.kind() == MvPageKind::Back ? int(document.pages().size()) - 1
                                                                  : 5;
            MvCalendarPage page = document.pages().at(number);
            page.setTemplate(shown, format);
            document.setPage(number, page);
            fill(document, scene.fotos);
            drawPage(painter, place(scene.cell, column, row), document, number,
                     shown.id() + u", "_s + papers.at(column));
        }
    }
    image.save(file);
}

QList<MvFotoPoolItem> fotosIn(const QString &folder)
{
    return folder.isEmpty() ? QList<MvFotoPoolItem>() : MvFotoPoolIntake::gather({folder}).items;
}

MvPageFormat::Binding bindingOf(const QString &name)
{
    return MvPageFormat::bindingFromName(name);
}

} // namespace

/// Contact sheets for a designer's eye: themes on papers of every shape, all templates on all shapes, and the pages of
/// a year side by side, with pictures or with empty frames. tools/make_template_sheets calls it.
int main(int argc, char **argv)
{
    const MvTestHome home;
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addPositionalArgument(u"folder"_s, u"where the sheets go"_s);
    parser.addOption({u"photos"_s, u"folder with the pictures; without it, frames stay empty"_s, u"folder"_s});
    parser.addOption({u"themes"_s, u"these themes alone, parted by commas"_s, u"ids"_s});
    parser.addOption({u"templates"_s, u"these templates alone, parted by commas; \"none\" for none"_s, u"ids"_s});
    parser.addOption({u"dress"_s, u"the theme of the sheets of templates"_s, u"id"_s, u"PAPER"_s});
    parser.addOption({u"binding"_s, u"none, top, left or right"_s, u"edge"_s, u"none"_s});
    parser.addOption({u"size"_s, u"of a page, in pixels"_s, u"pixels"_s, u"470"_s});
    parser.addOption({u"year"_s, u"all pages of a year on this paper, too"_s, u"paper"_s});
    parser.process(application);
    const QString folder = parser.positionalArguments().value(0);
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return 2;
    const QDir target(folder);
    const int width = qBound(100, parser.value(u"size"_s).toInt(), 4000);
    const Scene scene{fotosIn(parser.value(u"photos"_s)), bindingOf(parser.value(u"binding"_s)),
                      QSize(width, width * 6 / 7)};
    const QString suffix = scene.fotos.isEmpty() ? u"-empty.png"_s : u".png"_s;
    const QStringList themes = parser.isSet(u"themes"_s) ? parser.value(u"themes"_s).split(u',', Qt::SkipEmptyParts)
                                                         : MvThemeRegistry::instance().ids();
    for (const QString &theme : themes) {
        makeThemeSheet(target.filePath(u"theme-"_s + theme + suffix), theme, scene);
        if (parser.isSet(u"year"_s))
            makeYearSheet(target.filePath(u"year-"_s + theme + suffix), theme, parser.value(u"year"_s), scene);
    }
    const QString dress = parser.value(u"dress"_s);
    QList<MvPageTemplate> templates =
        MvPageTemplateRegistry::instance().templates(MvThemeRegistry::instance().findTheme(dress).style());
    if (parser.isSet(u"templates"_s)) {
        const QStringList wanted = parser.value(u"templates"_s).split(u',');
        templates.removeIf([&](const MvPageTemplate &any) { return !wanted.contains(any.id()); });
    }
    constexpr int perSheet = 5;
    for (qsizetype first = 0; first < templates.size(); first += perSheet)
        makeTemplateSheet(target.filePath(u"templates-%1"_s.arg(first / perSheet + 1) + suffix),
                          templates.mid(first, perSheet), dress, scene);
    return 0;
}
