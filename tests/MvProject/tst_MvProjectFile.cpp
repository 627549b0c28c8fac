// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvFolderTest.h"
#include "MvProject/MvPageTemplateRegistry.h"
#include "MvProject/MvProjectFile.h"
#include "MvProjectFixture.h"
#include "MvRows.h"

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;

class tst_MvProjectFile : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data();
    void roundTrip();
    void roundTripOfAppearances_data();
    void roundTripOfAppearances();
    void versions();
    void writesNothingThatDoesNotOpenAgain();
    void fotosMoveWithTheirFolder();
    void keepsUnknownSchemas();
    void mendsWhatItCan_data();
    void mendsWhatItCan();
    void refuses_data();
    void refuses();
    void namesTheBackup();

private:
    QFileInfo file(const QString &name = u"k.mvcalendar"_s) const { return MvFolderTest::file(name); }
    QFileInfo put(const QByteArray &content) const;
    MvCalendarDocument everythingNew();
};

QFileInfo tst_MvProjectFile::put(const QByteArray &content) const
{
    MvFolderTest::put(u"k.mvcalendar"_s, content);
    return file();
}

void tst_MvProjectFile::roundTrip_data()
{
    const MvRows<MvCalendarDocument> row; // calendar
    MvCalendarDocument plain = document(u"MONTH_GRID_CLASSIC"_s);
    row("plain", plain);

    MvCalendarDocument colorful = document(u"FAMILY_PLANNER"_s, 2);
    MvCalendariumAppearance own = colorful.appearance();
    own.setCellColor(QColor(1, 2, 3, 4),
                     {MvCalendarCellColorRoleEnum::bgcolor, CALENDAR_CELL_TYPE_SUNDAY, MvParityLogicEnum::odd});
    own.setColumnHeaders(QStringList{u"Mäx & \"Co\""_s, u"<b>"_s, u"Zeile\nzwei"_s});
    own.setOffsetMonth(1);
    own.setOverrideShowCalendarWeek(true);
    own.setShowHolidays(false);
    own.setRenderingInformation(own.renderingInformation() | calendar_render_days_of_week_short);
    MvCalendariumFontSettings fonts = own.fontSettings();
    fonts.setFont(u"EB Garamond"_s);
    fonts.setFontSizePercentage(-20);
    own.setFontSettings(fonts);
    colorful.setAppearance(own);
    MvCalendarPage page = colorful.pages()[1];
    MvCalendariumContentConfig content = page.contentConfig();
    content.setHolidayConfig(
        {MvLocale(u"fr_CH"_s), u"ZH"_s, MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_ENTRIES)});
    content.setCalendarWeekHeadlineOption(MvCalendarWeekHeadlineOption(u"Woche"_s));
    content.setCalendarWeekTextOption(MvCalendarWeekTextOption(u"W%1"_s));
    page.setContentConfig(content);
    MvFotoFrame foto(u"/anderswo/Foto mit Ümlaut.jpg"_s, MvFotoFrame::Placement::Right);
    foto.setShare(0.4321);
    foto.setFocus({0.1, 1.0 / 3.0});
    page.setFotoFrame(foto);
    colorful.setPage(1, page);
    colorful.setAuthor(u"Jürgen"_s);
    row("everything changed", colorful);

    MvCalendarDocument years = document(u"MONTH_GRID_CLASSIC"_s, 24);
    setFoto(years, 5, MvFotoFrame(u"/fotos/6.jpg"_s));
    years.setAppearance(appearance(u"YEAR_GRID"_s));
    row("years with a photo in reserve", years);

    MvCalendarDocument mixed = document(u"MONTH_GRID_CLASSIC"_s, 3);
    MvCalendarPage year = mixed.pages()[0];
    year.setAppearance(appearance(u"YEAR_ONLY"_s));
    mixed.setPage(0, year);
    row("a year in front of months", mixed);
    row("elements, pages and pool", everythingNew());
}

/// All that the second version of files knows.
MvCalendarDocument tst_MvProjectFile::everythingNew()
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 3);
    MvPageFormat format = calendar.format();
    format.setBinding(MvPageFormat::Binding::Left);
    format.setBindingZone(95.5);
    format.setSafeMargin(42.0);
    calendar.setFormat(format);
    calendar.setThemeId(u"PAPIER"_s);
    calendar.setEntriesFile(path(u"eintraege.xml"_s));

    MvFotoElement foto(u"/anderswo/Oma & Opa.jpg"_s);
    foto.setFit(MvFotoElement::Fit::Whole);
    foto.setZoom(1.0 / 0.3);
    foto.setFocus({0.1, 1.0 / 3.0});
    foto.setQuarterTurns(3);
    foto.setStraightening(-7.25);
    foto.setBrightness(12);
    foto.setContrast(-50);
    foto.setBorder({12.5, QColor(1, 2, 3)});
    foto.setCaption(u"Ostern „bei“ Oma <1960>\nund Opa"_s);
    MvTextElement text(u"  {title} – Zeile 1\nZeile 2 "_s);
    text.setFotoSlot(u"photo 2"_s);
    text.setFamily(u"EB Garamond"_s);
    text.setPoints(11.3);
    text.setWeight(QFont::DemiBold);
    text.setItalic(true);
    text.setCapitals(true);
    text.setLetterSpacing(7.5);
    text.setColor(QColor::fromHsvF(0.3F, 0.5F, 0.7F, 0.5F));
    text.setAccent(true);
    text.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    text.setOnFoto(true);
    MvCalendariumElement year(u"YEAR_ONLY"_s);
    year.setMonthOffset(-12);
    year.setOnFoto(true);
    year.setMonthLine(false);
    MvPageElement tilted({-30.0, 1.0 / 3.0, 800.0, 600.5}, foto, u"photo 1"_s);
    tilted.setRotation(-1.5);

    MvCalendarPage page = calendar.pages()[1];
    page.setElements({tilted, {{0, 0, 100, 50}, text}, {{5, 5, 7, 7}, year, u"year"_s}});
    page.setSpareElements({{{1, 2, 3, 4}, foto, u"photo 9"_s}});
    page.nameTemplate(MvPageTemplateRegistry::instance().templates().value(0));
    MvPageBackground background{QColor(10, 20, 30, 200)};
    background.setFoto(MvFotoElement(path(u"grund.jpg"_s)));
    background.setVeil(0.35);
    page.setBackground(background);
    calendar.setPage(1, page);
    MvCalendarPage simple = calendar.pages()[2];
    MvFotoFrame frame;
    frame.setFoto(foto);
    frame.setShare(0.6);
    simple.setFotoFrame(frame);
    simple.addElement({{10, 20, 30, 40}, text});
    calendar.setPage(2, simple);
    for (const MvPageKind kind : {MvPageKind::Back, MvPageKind::Cover}) {
        MvCalendarPage other;
        other.setKind(kind);
        other.setElements({{{0, 0, 500, 500}, year}});
        calendar.insertPage(0, other);
    }
    calendar.duplicatePage(1);
    MvFotoPool pool;
    pool.add({u"/anderswo/Oma & Opa.jpg"_s, {4000, 3000}, QDateTime({2026, 4, 5}, {12, 30, 59, 120}), {0.25, 0.75}});
    pool.add({path(u"neu.heic"_s), {}, {}, {0.5, 0.5}});
    calendar.setFotoPool(pool);
    calendar.setRange({{2027, 1, 1}, {2027, 2, 28}}); // the third page is spare
    return calendar;
}

void tst_MvProjectFile::roundTrip()
{
    const auto [calendar] = MvRows<MvCalendarDocument>::current();
    QCOMPARE(MvProjectFile::write(calendar, file()).error, QString());
    const MvProjectFile::Content content = MvProjectFile::read(file());
    QCOMPARE(content.error, QString());
    QCOMPARE(content.notes, QStringList());
    QVERIFY(content.document == calendar);
    for (int page = 0; page < calendar.pages().size(); ++page)
        QCOMPARE(content.document.pages()[page].pageTemplate().isKnown(),
                 calendar.pages()[page].pageTemplate().isKnown());
    const QDir folder = file().absoluteDir();
    QCOMPARE(MvProjectFile::toBytes(content.document, folder), MvProjectFile::toBytes(calendar, folder));
}

void tst_MvProjectFile::roundTripOfAppearances_data()
{
    const MvRows<QString> row; // layout
    for (const MvCalendariumLayoutSchema &layout : MvCalendariumLayoutSchemaRegistry::instance().schemata())
        row(layout.ID().toString(), layout.ID().toString());
}

/// A page for each schema, shipped, kept by the user or the page's own, with each state of the grid and of the
/// switches.
void tst_MvProjectFile::roundTripOfAppearances()
{
    const auto [layout] = MvRows<QString>::current();
    MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    MvCalendariumColorSchema own = registry.defaultSchema();
    own.setGridConfig(
        MvBorderConfig(QColor::fromHsvF(0.1F, 0.2F, 0.3F), MvDistance(4.5), BORDER_POSITION_CENTRED, true));
    MvCalendariumColorSchema kept = own;
    kept.copyColors(CALENDAR_CELL_TYPE_SUNDAY, CALENDAR_CELL_TYPE_WEEKDAY);
    const auto forget = qScopeGuard([&registry, id = registry.record(kept)] { registry.removeId(id); });
    QList<MvCalendariumAppearance> looks;
    for (const MvCalendariumColorSchema &schema : registry.allSchemata() + QList<MvCalendariumColorSchema>{own}) {
        for (const int state : {0, 1, 2}) {
            MvCalendariumAppearance look = appearance(layout).createVariant(schema);
            MvBorderConfig grid = look.gridConfig();
            grid.setIsEnabled(state > 0);
            if (state == 2)
                grid.setColor(Qt::magenta);
            look.setGridConfig(grid);
            look.setShowHolidays(state != 1);
            look.setOverrideShowCalendarWeek(state == 2);
            look.setOffsetMonth(state - 1);
            looks.append(look);
        }
    }
    const int monthsPerPage = 12 / int(document(layout).pages().size());
    MvCalendarDocument calendar = document(layout, int(looks.size()) * monthsPerPage);
    for (int number = 0; number < looks.size(); ++number) {
        MvCalendarPage page = calendar.pages().at(number);
        page.setAppearance(looks.at(number));
        calendar.setPage(number, page);
    }
    QCOMPARE(MvProjectFile::write(calendar, file()).error, QString());
    const MvProjectFile::Content content = MvProjectFile::read(file());
    QCOMPARE(content.notes, QStringList());
    for (int number = 0; number < looks.size(); ++number) {
        const MvCalendariumAppearance read = content.document.pages().at(number).appearance();
        QCOMPARE(read.colorSchema().describeDifference(looks.at(number).colorSchema()),
                 u"MvCalendariumColorSchema: no difference."_s);
    }
    QVERIFY(content.document == calendar);
}

/// What needs nothing new stays readable for older programs.
void tst_MvProjectFile::versions()
{
    const QDir folder(m_folder->path());
    MvCalendarDocument calendar = document(u"DAY_LIST"_s, 2);
    setFoto(calendar, 0, MvFotoFrame(u"/anderswo/Foto.jpg"_s));
    calendar.setRange({{2027, 2, 1}, {2027, 2, 28}});
    QVERIFY(MvProjectFile::toBytes(calendar, folder).contains(" version=\"1\""));
    MvCalendarPage page = calendar.pages()[0];
    page.addElement({{0, 0, 10, 10}, MvTextElement(u"Hallo"_s)});
    calendar.setPage(0, page);
    QVERIFY(MvProjectFile::toBytes(calendar, folder).contains(" version=\"2\""));
}

void tst_MvProjectFile::writesNothingThatDoesNotOpenAgain()
{
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
    QCOMPARE(MvProjectFile::write(calendar, file()).error, QString());
    calendar.setTitle(QString(70'000, u'x'));
    QVERIFY(MvProjectFile::write(calendar, file()).error.contains(u"nicht wieder öffnen"_s));
    QVERIFY(MvProjectFile::read(file()).isOk()); // the state of before
}

void tst_MvProjectFile::fotosMoveWithTheirFolder()
{
    QVERIFY(QDir(m_folder->path()).mkpath(u"alt/fotos"_s));
    MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 2);
    setFoto(calendar, 0, MvFotoFrame(path(u"alt/fotos/oma.png"_s)));
    setFoto(calendar, 1, MvFotoFrame(path(u"neben.png"_s)));
    QCOMPARE(MvProjectFile::write(calendar, file(u"alt/k.mvcalendar"_s)).error, QString());
    QVERIFY(QDir(m_folder->path()).rename(u"alt"_s, u"neu"_s));
    QVERIFY(writeFoto(path(u"neu/fotos/oma.png"_s), {40, 30}));
    const MvProjectFile::Content content = MvProjectFile::read(file(u"neu/k.mvcalendar"_s));
    QCOMPARE(content.document.pages()[0].fotoFrame().path(), path(u"neu/fotos/oma.png"_s));
    // what is missing keeps its path and is told
    QCOMPARE(content.document.missingFotos(), QStringList{path(u"neben.png"_s)});
}

void tst_MvProjectFile::keepsUnknownSchemas()
{
    put("<calendarproject version='1'><paper width='2970' height='2100'/>"
        "<page month='2027-01'>\n<calendarium layoutschema='USER_FEHLT' colorschema='USER_4711'/>"
        "<content language='de_DE'/></page></calendarproject>");
    MvProjectFile::Content content = MvProjectFile::read(file());
    QCOMPARE(content.error, QString());
    QCOMPARE(content.notes.size(), 2);
    QVERIFY2(content.notes.first().contains(u"k.mvcalendar:2:"_s) && content.notes.first().contains(u"USER_FEHLT"_s),
             qPrintable(content.notes.first()));
    QVERIFY(content.document.isValid()); // something stands in for them
    const QDir folder = file().absoluteDir();
    const QByteArray kept = MvProjectFile::toBytes(content.document, folder);
    QVERIFY(kept.contains("\"USER_FEHLT\"") && kept.contains("\"USER_4711\""));

    MvCalendariumAppearance changed = content.document.appearance();
    changed.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"DAY_LIST"_s));
    content.document.setAppearance(changed);
    const QByteArray bytes = MvProjectFile::toBytes(content.document, folder);
    QVERIFY(bytes.contains("\"DAY_LIST\"") && bytes.contains("\"USER_4711\""));
}

void tst_MvProjectFile::mendsWhatItCan_data()
{
    const MvRows<QByteArray, QList<QDate>, QString> row; // inside, pages, note
    const QByteArray paper = "<paper width='2100' height='2970'/>";
    const auto page = [](const QByteArray &month) {
        return "<page month='" + month +
               "'><calendarium layoutschema='DAY_LIST' colorschema='NIGHT'/><content language='de_DE'/></page>";
    };
    const QDate january(2027, 1, 1);
    row("no paper", page("2027-01"), QList<QDate>{january}, u"A4"_s);
    row("paper without end", "<paper width='1e300' height='nan'/>" + page("2027-01"), QList<QDate>{january}, u"A4"_s);
    row("a page without a month", paper + page("gestern") + page("2027-01"), QList<QDate>{january}, u"„gestern“"_s);
    row("a month twice", paper + page("2027-01") + page("2027-01"), QList<QDate>{january}, u"2027-01"_s);
    row("a month in between is missing, order lost", paper + page("2027-03") + page("2027-01"),
        QList<QDate>{january, january.addMonths(1), january.addMonths(2)}, QString());
    row("a page outside", paper + "<range first='2027-01' last='2027-01'/>" + page("2027-01") + page("2030-01"),
        QList<QDate>{january}, u"2030-01"_s);
    row("a range the wrong way round", paper + "<range first='2028-01' last='2027-01'/>" + page("2027-01"),
        QList<QDate>{january}, u"Zeitraum"_s);
    row("a photo nowhere", paper + page("2027-01").replace("</page>", "<photo path='a.jpg'/></page>"),
        QList<QDate>{january}, u"Foto"_s);
    for (const auto &[attribute, taken] : {std::pair("offsetmonth='2147483647'", "1200"),
                                           {"fontsize_percentage='99999'", "900"},
                                           {"fontsize_percentage_holiddays='viel'", "-50"},
                                           {"font-letter-spacing='-1e9'", "-100"}})
        row(attribute, paper + page("2027-01").replace("DAY_LIST'", QByteArray("DAY_LIST' ") + attribute),
            QList<QDate>{january}, QString::fromUtf8(taken));
    row("a template that is not there", paper + page("2027-01").replace("month=", "template='FEHLT' month="),
        QList<QDate>{january}, u"FEHLT"_s);
    row("a share of nine pages",
        paper + page("2027-01").replace("</page>", "<photo path='a.jpg' placement='top' share='9'/></page>"),
        QList<QDate>{january}, u"0.75"_s);
}

void tst_MvProjectFile::mendsWhatItCan()
{
    const auto [inside, pages, note] = MvRows<QByteArray, QList<QDate>, QString>::current();
    const MvProjectFile::Content content =
        MvProjectFile::read(put("<calendarproject version='1'>" + inside + "</calendarproject>"));
    QCOMPARE(content.error, QString());
    QCOMPARE(content.document.pageDates(), pages);
    QVERIFY(content.document.isValid());
    QCOMPARE(content.notes.size(), note.isEmpty() ? 0 : 1);
    QVERIFY2(note.isEmpty() || content.notes.first().contains(note), qPrintable(content.notes.value(0)));
}

void tst_MvProjectFile::refuses_data()
{
    const MvRows<QByteArray, QString> row; // content, says
    row("empty", QByteArray(), u"k.mvcalendar: "_s);
    row("cut off", QByteArray("<calendarproject version='1'>\n<page month='2027-01'>\n"), u".mvcalendar:"_s);
    row("not XML", QByteArray("Das ist ein Brief.\n"), u":1:"_s);
    row("another file", QByteArray("<CalendarEvents/>"), u"„CalendarEvents“"_s);
    row("a newer program", QByteArray("\n\n<calendarproject version='3'/>"), u".mvcalendar:3:"_s);
    row("no pages", QByteArray("<calendarproject version='1'/>"), u"keine Seiten"_s);
    row("ten thousand years",
        QByteArray("<calendarproject><range first='0001-01' last='9999-12'/><page month='2027-01'/></calendarproject>"),
        u"1200"_s);
    row("pages ten thousand years apart",
        QByteArray("<calendarproject><page month='0001-01'><content language='de_DE'/></page><page month='9999-12'>"
                   "<content language='de_DE'/></page></calendarproject>"),
        u"1200"_s);
    row("an entity that grows", QByteArray("<!DOCTYPE x [<!ENTITY a 'aaaa'>]><calendarproject title='&a;'/>"),
        u".mvcalendar:"_s);
    row("a tower of elements", QByteArray("<calendarproject>").repeated(5000), u".mvcalendar:"_s);
}

void tst_MvProjectFile::refuses()
{
    const auto [content, says] = MvRows<QByteArray, QString>::current();
    const MvProjectFile::Content read = MvProjectFile::read(put(content));
    QVERIFY2(read.error.contains(says), qPrintable(read.error));
    QVERIFY(read.error.contains(u"k.mvcalendar"_s));
}

void tst_MvProjectFile::namesTheBackup()
{
    const MvCalendarDocument calendar = document(u"DAY_LIST"_s, 1);
    const QFileInfo twice = file(u"zweimal.mvcalendar"_s);
    QCOMPARE(MvProjectFile::write(calendar, twice).error, QString());
    QCOMPARE(MvProjectFile::write(document(u"DAY_LIST"_s, 2), twice).error, QString());
    MvFolderTest::put(twice.fileName(), "<kaputt");
    const QString error = MvProjectFile::read(twice).error;
    QVERIFY2(error.contains(u"zweimal.mvcalendar~"_s), qPrintable(error));
    QVERIFY(MvProjectFile::read(file(u"zweimal.mvcalendar~"_s)).document == calendar);
}

MV_TEST_MAIN(tst_MvProjectFile)
#include "tst_MvProjectFile.moc"
