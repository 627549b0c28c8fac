// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPrintedPage.h"
#include "MvTestHome.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int cellWidth = 640;
constexpr int cellHeight = 560;
constexpr int captionHeight = 24;
constexpr int gap = 12;

/// One page, as large as its place allows, with its description above it.
void draw(QPainter &painter, const QPoint &corner, const MvPageChoice &choice)
{
    const MvPrintedPage page(choice, QString());
    const QSizeF paper = page.format().trimSize();
    const double scale = std::min(cellWidth / paper.width(), cellHeight / paper.height());
    painter.setPen(Qt::white);
    painter.drawText(QRect(corner, QSize(cellWidth, captionHeight)), Qt::AlignLeft | Qt::AlignVCenter,
                     choice.describe().section(u", "_s, 1) + u", %1 not whole"_s.arg(page.unfitting.size()));
    painter.drawImage(corner + QPoint(0, captionHeight), page.picture(scale));
}

/// Rows of choices, every one in each place that a photo can have.
QImage sheet(const QList<MvPageChoice> &rows)
{
    const QList<QPair<QString, double>> places{
        {u"none"_s, 0.55}, {u"top"_s, 0.55}, {u"left"_s, 0.55}, {u"right"_s, 0.75}};
    const QSize cell(cellWidth + gap, cellHeight + captionHeight + gap);
    QImage image(cell.width() * int(places.size()) + gap, cell.height() * int(rows.size()) + gap, QImage::Format_RGB32);
    image.fill(QColor(0x77, 0x77, 0x77));
    QPainter painter(&image);
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < places.size(); ++column) {
            MvPageChoice choice = rows.at(row);
            choice.place = places.at(column).first;
            choice.share = places.at(column).second;
            draw(painter, {gap + column * cell.width(), gap + row * cell.height()}, choice);
        }
    }
    return image;
}

/// The entries of a family of five, with groups, repetitions, ages and days away.
void makeFamilySheet(const QDir &folder, const MvPageChoice &usual)
{
    MvCalendarEventRegistry::instance().setEvents(
        MvCalendarEventFile::read(QFileInfo(QStringLiteral(MV_SAMPLES "/familie.xml"))).events);
    QList<MvPageChoice> family;
    for (const QString &paper : {u"A4 landscape"_s, u"A4"_s, u"A3 landscape"_s, u"A3"_s}) {
        family << usual;
        family.last().paper = paper;
        family.last().entries = MvPageChoice::Own;
    }
    sheet(family).save(folder.filePath(usual.layout + u"-family.png"_s));
}

void makeSheets(const QDir &folder, const MvPageChoice &usual)
{
    makeFamilySheet(folder, usual);
    QList<MvPageChoice> papers, fonts, languages;
    for (const QString &paper : {u"A6"_s, u"A5 landscape"_s, u"A4 landscape"_s, u"A3"_s, u"210x99"_s, u"90x55"_s}) {
        papers << usual;
        papers.last().paper = paper;
    }
    for (const int font : MvPageChoice::fonts()) {
        for (const MvPageChoice::Entries entries : {MvPageChoice::Many, MvPageChoice::Fotos}) {
            fonts << usual;
            fonts.last().font = font;
            fonts.last().entries = entries;
        }
    }
    for (const QString &language :
         {u"en_GB"_s, u"fr_CH"_s, u"it_IT"_s, u"pl_PL"_s, u"fi_FI"_s, u"hu_HU"_s, u"el_GR"_s, u"bg_BG"_s, u"pt_PT"_s}) {
        languages << usual;
        languages.last().language = MvLocale(language);
        languages.last().region.clear();
        languages.last().paper = u"A5"_s;
        languages.last().entries = MvPageChoice::Long;
    }
    sheet(papers).save(folder.filePath(usual.layout + u"-papers.png"_s));
    sheet(fonts).save(folder.filePath(usual.layout + u"-fonts.png"_s));
    sheet(languages).save(folder.filePath(usual.layout + u"-languages.png"_s));
}

} // namespace

/// Contact sheets of every layout for a designer's eye: a family's dates, papers, fonts with many texts and photos, and
/// languages, each beside photos in all places. `--family`: that sheet alone.
///
///     make_page_sheets FOLDER [--family] [LAYOUT...]
int main(int argc, char **argv)
{
    const MvTestHome home;
    const QGuiApplication application(argc, argv);
    QStringList arguments = QGuiApplication::arguments();
    const bool isFamilyAlone = arguments.removeAll(u"--family"_s) > 0;
    if (arguments.size() < 2 || !QDir().mkpath(arguments.at(1)))
        return 2;
    MvPageChoice usual;
    usual.paper = u"A4 landscape"_s;
    usual.language = MvLocale(u"de_DE"_s);
    usual.region = u"BY"_s;
    usual.month = QDate(2027, 5, 1);
    usual.foto = QStringLiteral(MV_SAMPLES "/bergsee.jpg");
    for (const QString &layout : arguments.size() > 2 ? arguments.mid(2) : MvPageChoice::layouts()) {
        usual.layout = layout;
        if (isFamilyAlone)
            makeFamilySheet(QDir(arguments.at(1)), usual);
        else
            makeSheets(QDir(arguments.at(1)), usual);
    }
    return 0;
}
