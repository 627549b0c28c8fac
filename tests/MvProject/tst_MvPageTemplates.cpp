// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvContrast.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarCellColorKey.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvPageTemplateRegistry.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"

#include <QFontDatabase>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

using Binding = MvPageFormat::Binding;

/// Every named paper both ways round, and odd ones; with every binding edge.
QList<MvPageFormat> formats()
{
    QList<MvPageFormat> all;
    for (const QString &name : MvPageFormat::names() + QStringList{u"90x55"_s, u"200x230"_s, u"1000x100"_s}) {
        for (const auto orientation : {MvPageFormat::Orientation::Portrait, MvPageFormat::Orientation::Landscape}) {
            for (const Binding binding : {Binding::None, Binding::Top, Binding::Left, Binding::Right}) {
                MvPageFormat format = MvPageFormat::fromName(name);
                format.setOrientation(orientation);
                format.setBinding(binding);
                format.setBleed(MvPageFormat::printShopBleed);
                all.append(format);
            }
        }
    }
    return all;
}

QRectF grown(const QRectF &rect, double by)
{
    return rect.adjusted(-by, -by, by, by);
}

/// The edges of a photo lie in the bleed or keep the margin.
bool bleedsOrKeepsMargin(const QRectF &rect, const MvPageFormat &format)
{
    const QRectF media = format.mediaRect();
    const double margin = std::min(format.fieldMargin(), 0.25 * std::min(media.width(), media.height())) - 0.01;
    const auto isGood = [margin](double fromMedia, double fromTrim) {
        return std::abs(fromMedia) < 0.01 || fromTrim >= margin;
    };
    const QRectF trim = format.trimRect();
    return isGood(rect.left() - media.left(), rect.left()) && isGood(rect.top() - media.top(), rect.top()) &&
           isGood(media.right() - rect.right(), trim.right() - rect.right()) &&
           isGood(media.bottom() - rect.bottom(), trim.bottom() - rect.bottom());
}

QString faultOf(const QList<MvTemplateSlot> &places, const MvPageFormat &format)
{
    for (qsizetype i = 0; i < places.size(); ++i) {
        const MvPageElement &element = places.at(i).element;
        if (element.rect().width() < 10 || element.rect().height() < 10)
            return element.slot() + u" is nothing"_s;
        if (element.foto() ? !bleedsOrKeepsMargin(element.rect(), format)
                           : !grown(format.fieldRect(), 0.01).contains(element.rect()))
            return element.slot() + u" is outside the field"_s;
        for (const MvTemplateSlot &other : places.first(i)) {
            const bool mayLie = (other.element.foto() && element.isOnFoto());
            if (!mayLie && grown(element.rect(), -0.5).intersects(other.element.rect()))
                return element.slot() + u" overlaps "_s + other.element.slot();
        }
    }
    return {};
}

} // namespace

/// Templates on all papers, themes in all seasons, and what becomes of mistakes in the files of users.
class tst_MvPageTemplates : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void divides_data();
    void divides();
    void turnsIntoStrips();
    void veilsReachTheEdges_data();
    void veilsReachTheEdges();
    void themes_data();
    void themes();
    void themesKeepPhotos();
    void ownFiles_data();
    void ownFiles();
};

void tst_MvPageTemplates::divides_data()
{
    const MvRows<QString> row; // id
    const QList<MvPageTemplate> all = MvPageTemplateRegistry::instance().templates();
    QVERIFY(all.size() >= 24);
    for (const MvPageTemplate &one : all)
        row(one.id(), one.id());
}

void tst_MvPageTemplates::divides()
{
    const auto [id] = MvRows<QString>::current();
    const MvPageTemplate shown = MvPageTemplateRegistry::instance().findTemplate(id);
    QStringList names;
    for (const MvPageFormat &format : formats()) {
        QList<MvTemplateSlot> places = shown.slotsFor(format);
        if (id == u"FREE_FACING" && format.binding() == MvPageFormat::Binding::Top) // bound at its foot: turned over
            for (MvTemplateSlot &place : places) {
                const QRectF rect = place.element.rect();
                const double zone = format.bindingRect().height();
                QVERIFY(place.element.foto() || rect.bottom() <= format.trimSize().height() - zone);
                place.element.setRect(place.element.foto() ? rect : rect.translated(0.0, zone));
            }
        const QString where = u"%1 × %2, bound %3: "_s.arg(format.trimSize().width())
                                  .arg(format.trimSize().height())
                                  .arg(MvPageFormat::bindingName(format.binding()));
        const QString fault = faultOf(places, format);
        QVERIFY2(fault.isEmpty(), qPrintable(where + fault));
        QStringList present;
        for (const MvTemplateSlot &place : places)
            present.append(place.element.slot());
        present.sort();
        QVERIFY2(names.isEmpty() || names == present, qPrintable(where + present.join(u' ')));
        names = present;
    }
}

/// A month has a grid only where it has the height for it, whatever the paper.
void tst_MvPageTemplates::turnsIntoStrips()
{
    const auto layoutOn = [](const QString &id, const QString &paper) {
        MvPageFormat format = MvPageFormat::fromName(paper);
        format.setOrientation(MvPageFormat::Orientation::Landscape);
        for (const MvTemplateSlot &place : MvPageTemplateRegistry::instance().findTemplate(id).slotsFor(format)) {
            if (place.element.calendarium())
                return place.element.calendarium()->layout();
        }
        return u"none"_s;
    };
    QCOMPARE(layoutOn(u"MONTH_ABOVE"_s, u"A4"_s), QString()); // the page's own
    QCOMPARE(layoutOn(u"MONTH_ABOVE"_s, u"90x55"_s), u"ONE_ROW_STRIP"_s);
    QCOMPARE(layoutOn(u"MONTH_PANEL"_s, u"A4"_s), u"DAY_LIST"_s);
    QCOMPARE(layoutOn(u"MONTH_PANEL"_s, u"A6"_s), u"DAY_LIST"_s);
    QCOMPARE(layoutOn(u"MONTH_PANEL"_s, u"140x85"_s), u"MONTH_GRID_BARE"_s); // the month's name stands above it already
}

void tst_MvPageTemplates::veilsReachTheEdges_data()
{
    const MvRows<QString, Qt::Edges> row; // id, edges
    const Qt::Edges foot = Qt::LeftEdge | Qt::RightEdge | Qt::BottomEdge;
    row("a strip is a band", u"MONTH_FULL_STRIP"_s, foot);
    row("a list is a column", u"MONTH_FULL_LIST"_s, (Qt::TopEdge | Qt::RightEdge | Qt::BottomEdge));
    row("a month in a corner is its block", u"MONTH_FULL_CORNER"_s, (Qt::RightEdge | Qt::BottomEdge));
    row("a caption fades out upwards", u"FREE_PHOTO"_s, foot);
}

/// One veil for all that stands together on a photo, without a sliver of photo between it and the trim.
void tst_MvPageTemplates::veilsReachTheEdges()
{
    const auto [id, edges] = MvRows<QString, Qt::Edges>::current();
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"grey.png"_s);
    QVERIFY(MvTestFiles::writeFoto(path, {300, 200}, QColor(120, 120, 120)));
    MvNewCalendar wanted;
    wanted.themeId = u"PAPER"_s;
    const MvCalendarDocument calendar = wanted.make();
    const MvPageFormat format = calendar.format();
    MvCalendarPage page = calendar.pages().at(1);
    page.setTemplate(MvThemeApplication::pageTemplate(u"PAPER"_s, id), format);
    MvFotoElement foto(path);
    foto.setCaption(u"Am See"_s);
    QVERIFY(page.setFoto(0, foto));
    QList<QRectF> veils;
    for (const auto &item : page.record(format, calendar.context()).items(MvPaintRecording::Item::Rect)) {
        if (item.bounds.width() * item.bounds.height() > 0.02 * format.trimSize().width() * format.trimSize().height())
            veils.append(item.bounds);
    }
    QVERIFY(!veils.isEmpty());
    const QRectF media = format.mediaRect();
    const QRectF veil = veils.constFirst();
    QCOMPARE(std::abs(veil.left() - media.left()) < 1.0, edges.testFlag(Qt::LeftEdge));
    QCOMPARE(std::abs(veil.top() - media.top()) < 1.0, edges.testFlag(Qt::TopEdge));
    QCOMPARE(std::abs(veil.right() - media.right()) < 1.0, edges.testFlag(Qt::RightEdge));
    QCOMPARE(std::abs(veil.bottom() - media.bottom()) < 1.0, edges.testFlag(Qt::BottomEdge));
}

void tst_MvPageTemplates::themes_data()
{
    const MvRows<QString> row; // id
    QVERIFY(MvThemeRegistry::instance().themes().size() >= 12);
    for (const QString &id : MvThemeRegistry::instance().ids())
        row(id, id);
}

/// What a theme names is there, every text can be read on what it stands on, captions are smaller than weekdays.
void tst_MvPageTemplates::themes()
{
    const auto [id] = MvRows<QString>::current();
    const MvCalendarTheme theme = MvThemeRegistry::instance().findTheme(id);
    for (const QString &family : theme.fontFamilies())
        QVERIFY2(QFontDatabase::families().contains(family), qPrintable(family));
    for (const auto kind : {MvPageKind::Month, MvPageKind::Cover, MvPageKind::Free, MvPageKind::Back})
        QVERIFY(!theme.templateIds(kind).isEmpty());

    using Role = MvCalendarCellColorRoleEnum;
    for (int month = 1; month <= 12; ++month) {
        const MvCalendariumAppearance look = theme.appearance(MvPageKind::Month, QDate(2027, month, 1));
        QVERIFY(look.isValid());
        const auto color = [&](Role role, const MvCalendarCellType &type, MvParityLogicEnum parity) {
            return look.cellColor(MvCalendarCellColorKey(role, type, parity));
        };
        for (const MvParityLogicEnum parity : {MvParityLogicEnum::even, MvParityLogicEnum::odd}) {
            QColor ground = color(Role::bgcolor, CALENDAR_CELL_TYPE_EMPTY, parity);
            ground = look.isOpaqueColor(ground) ? ground : Qt::white;
            for (const MvCalendarCellTypeEnum type :
                 {CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_MONTH, CALENDAR_CELL_TYPE_YEAR,
                  CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SUNDAY,
                  CALENDAR_CELL_TYPE_HOLIDAY, CALENDAR_CELL_TYPE_SCHOOL_VACATION, CALENDAR_CELL_TYPE_HEAD_WEEKDAY,
                  CALENDAR_CELL_TYPE_HEAD_SATURDAY, CALENDAR_CELL_TYPE_HEAD_SUNDAY, CALENDAR_CELL_TYPE_WEEK_OF_YEAR}) {
                const QColor ink = color(Role::textcolor, type, parity);
                const QColor cell = color(Role::bgcolor, type, parity);
                const QColor beneath = look.isOpaqueColor(cell) ? cell : ground;
                QVERIFY2(MvContrast::ratio(ink, beneath) >= 4.5, qPrintable(MvCalendarCellType(type).encodeCSV()));
            }
        }
        constexpr double onPaper = 0.79; // of a layout's points
        const double heads = look.layoutSchema().font(CALENDAR_CELL_TYPE_HEAD_WEEKDAY).pointSizeF() * onPaper;
        QVERIFY(7.5 * theme.style().texts.value(MvTemplateStyle::Role::Caption).scale <= heads);
    }
}

/// From theme to theme, photos, captions and words of one's own stay with the calendar.
void tst_MvPageTemplates::themesKeepPhotos()
{
    MvNewCalendar wanted;
    wanted.range = MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31));
    wanted.themeId = u"ALBUM"_s;
    MvCalendarDocument document = wanted.make();
    QVERIFY(document.isValid());
    QCOMPARE(document.pages().size(), 14);
    QCOMPARE(document.pages().constFirst().kind(), MvPageKind::Cover);
    QCOMPARE(document.pages().constLast().kind(), MvPageKind::Back);
    int number = 0;
    for (const MvCalendarDocument::FrameId &frame : document.frames()) {
        MvFotoElement foto(u"/fotos/%1.jpg"_s.arg(++number));
        foto.setCaption(u"Bild %1"_s.arg(number));
        document.setFoto(frame, foto);
    }
    const MvCalendarDocument before = document;
    for (const MvCalendarTheme &theme : MvThemeRegistry::instance().themes())
        document = MvThemeApplication::applied(document, theme);
    document = MvThemeApplication::applied(document, MvThemeRegistry::instance().findTheme(u"ALBUM"_s));
    for (const MvCalendarDocument::FrameId &frame : before.frames())
        QCOMPARE(document.foto(frame).caption(), before.foto(frame).caption());
    for (const MvCalendarPage &page : document.pages())
        QVERIFY(page.spareElements().isEmpty());
}

void tst_MvPageTemplates::ownFiles_data()
{
    const MvRows<QString, QByteArray, QString> row; // folder; content; message: empty: it is taken
    const auto page = [](const char *inside) {
        return QByteArray("<t>\n<template id=\"MINE\" kind=\"month\" name=\"Meine\">\n") + inside + "</template></t>";
    };
    const QString templates = u"templates"_s;
    row("right", templates, page("<division><photo slot='a' rows='1-9'/></division>"), QString());
    row("beyond the rows", templates, page("<division><photo slot='a' rows='1-25'/></division>"),
        u"own.xml:3.*MINE.*1-25"_s);
    row("two of a name", templates, page("<division><photo slot='a'/><text slot='a'/></division>"), u"MINE.*slot"_s);
    row("a shape is missing", templates,
        page("<division shapes='landscape square panorama narrow'><photo slot='a'/></division>"), u"MINE.*portrait"_s);
    row("other slots in another shape", templates,
        page("<division shapes='square'><photo slot='b'/></division><division><photo slot='a'/></division>"),
        u"MINE.*square"_s);
    row("a word that nothing knows", templates, page("<division><photo slot='a' bleeds='top'/></division>"),
        u"MINE.*bleeds"_s);
    row("an id that is shipped", templates,
        QByteArray("<t><template id='MONTH_ABOVE' kind='month' name='X'><division><photo slot='a'/></division>"
                   "</template></t>"),
        u"MONTH_ABOVE"_s);
    row("a theme without its layout", u"themes"_s,
        QByteArray("<t><theme id='MINE' name='X'><layouts grid='NOWHERE'/><colors schema='NIGHT'/>"
                   "<pages month='MONTH_ABOVE'/></theme></t>"),
        u"MINE.*NOWHERE"_s);
}

/// Mistakes are told with file and id, and never take a shipped template away.
void tst_MvPageTemplates::ownFiles()
{
    const auto [folder, content, message] = MvRows<QString, QByteArray, QString>::current();
    const QDir own = MvDirectoryConfig::instance().programDataSubDir(folder);
    QVERIFY(MvTestFiles::write(own.filePath(u"own.xml"_s), content));
    if (!message.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(message));
    const bool isThere = folder == u"themes"_s ? MvThemeRegistry().findTheme(u"MINE"_s).isValid()
                                               : MvPageTemplateRegistry().findTemplate(u"MINE"_s).isValid();
    QCOMPARE(isThere, message.isEmpty());
    const MvPageTemplate shipped = MvPageTemplateRegistry::instance().findTemplate(u"MONTH_ABOVE"_s);
    QCOMPARE(MvPageTemplateRegistry::fotoCount(shipped, MvPageFormat::fromName(u"A4"_s)), 1);
    QVERIFY(shipped.name() != u"X"_s);
    QVERIFY(QFile::remove(own.filePath(u"own.xml"_s)));
}

MV_TEST_MAIN(tst_MvPageTemplates)
#include "tst_MvPageTemplates.moc"
