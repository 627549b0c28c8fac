// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCore/MvInitializer.h"
#include "MvCore/MvTranslations.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

using namespace Qt::StringLiterals;

namespace {

QDomElement element(const QString &xml)
{
    static QList<QDomDocument> documents; // an element does not keep its document
    documents.append(MvXMLLoader::parse(xml.toUtf8()));
    return documents.constLast().documentElement();
}

MvCalendariumLayoutSchema layout(const QString &cells,
                                 const QString &attributes = u"layoutschema='L' type='CALENDAR_ONE_WEEK_PER_ROW'"_s)
{
    return MvCalendariumLayoutSchema(element(u"<calendararea %1>%2</calendararea>"_s.arg(attributes, cells)));
}

QDomElement written(const MvCalendariumAppearance &appearance, bool embedUserSchema = false)
{
    QDomDocument document;
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"calendarium"_s);
    appearance.write(root, embedUserSchema);
    return element(document.toString());
}

} // namespace

class tst_LayoutAndAppearance : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cellDefaults();
    void laterCellReplacesEarlierOne();
    void specialTypesFollowTheirPartners();
    void layoutRoundTrip();
    void suggestionsForNewPages();
    void unknownLayouts();
    void shippedLayouts();
    void namesFollowTheLanguage();
    void userLayoutsAreKept();
    void mistakesInUserLayouts();

    void fontSettings_data();
    void fontSettings();
    void fontSize_data() { MvRows<int, int, int, int, int>().read(u"font-sizes"_s); }
    void fontSize();
    void unknownFontWordsTakeDefaults();
    void metricsDoNotDependOnTheScreen();

    void appearanceRoundTrip();
    void defaultsAreNotWritten();
    void layoutsBringTheirPaperSize();
    void embedsUserSchemata();
    void columnHeaders();
    void borders_data();
    void borders();
    void gridFollowsTheLayout();
    void knowsWhetherDaysAreShown();
};

void tst_LayoutAndAppearance::cellDefaults()
{
    const MvCalendariumLayoutSchema read = layout(u"<cell type='CALENDAR_CELL_TYPE_SUNDAY'/>"_s);
    QCOMPARE(read.textAlignment(CALENDAR_CELL_TYPE_SUNDAY), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(read.cellBorderWidth(CALENDAR_CELL_TYPE_SUNDAY), 2);
    QCOMPARE(read.borderType(CALENDAR_CELL_TYPE_SUNDAY).toInt(), 0);
    QCOMPARE(read.padding(CALENDAR_CELL_TYPE_SUNDAY), QMarginsF());
    QVERIFY(read.allCellsHaveNoBorder());
    QVERIFY(read.cellInfo(CALENDAR_CELL_TYPE_TITLE) == MvCalendariumLayoutCellInfo()); // not stored
}

void tst_LayoutAndAppearance::laterCellReplacesEarlierOne()
{
    const MvCalendariumLayoutSchema read =
        layout(u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bordersize='7' paddingleft='3'/>"
               "<cell type='CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SUNDAY' paddingtop='4.5'/>"_s);
    QCOMPARE(read.cellBorderWidth(CALENDAR_CELL_TYPE_SUNDAY), 2);
    QCOMPARE(read.padding(CALENDAR_CELL_TYPE_SUNDAY), QMarginsF(0, 4.5, 0, 0));
}

void tst_LayoutAndAppearance::specialTypesFollowTheirPartners()
{
    const MvCalendariumLayoutSchema read =
        layout(u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bordersize='5'/>"
               "<cell type='CALENDAR_CELL_TYPE_SATURDAY' bordersize='6'/>"
               "<cell type='CALENDAR_CELL_TYPE_SCHOOL_VACATION' bordersize='9'/>"
               "<cell type='CALENDAR_CELL_TYPE_HEAD_SATURDAY' bordertype='CALENDER_BORDER_TOP'/>"_s);
    QCOMPARE(read.cellBorderWidth(CALENDAR_CELL_TYPE_HOLIDAY), 5);
    QCOMPARE(read.cellBorderWidth(CALENDAR_CELL_TYPE_SCHOOL_VACATION), 9); // its own stays
    QCOMPARE(read.borderType(CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION).toInt(), 4);
    QCOMPARE(read.cellBorderWidth(CALENDAR_CELL_TYPE_HEAD_HOLIDAY), 2); // no partner, default
    QVERIFY(!read.allCellsHaveNoBorder());
}

void tst_LayoutAndAppearance::layoutRoundTrip()
{
    const MvCalendariumLayoutSchema original = layout(
        u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bordersize='3' maxfontsize='12' textalign='AlignLeft|AlignBottom' "
        "bordertype='CALENDAR_BORDER_TOP, CALENDAR_BORDER_LEFT' paddingleft='1.25' paddingtop='-2'>"
        "<font family='Lato' pointsize='9.5' weight='700' italic='true' capitalization='AllUppercase' "
        "letterspacing='6'/></cell>"_s,
        u"schema='USER_7' name='Größe &quot;A&quot;' description_en='Size' type='CALENDAR_YEAR' renderinfo='calendar_render_title'"_s);
    QCOMPARE(original.ID().toString(), u"USER_7"_s); // from the older attribute
    QVERIFY(original.isUserSchema());
    QDomDocument document;
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"calendararea"_s);
    original.write(root);
    const MvCalendariumLayoutSchema read(element(document.toString()));
    QVERIFY(read == original);
    QCOMPARE(read.font(CALENDAR_CELL_TYPE_HOLIDAY).letterSpacing(), 106.0);
    QCOMPARE(read.description(), u"Size"_s); // better than nothing
}

void tst_LayoutAndAppearance::suggestionsForNewPages()
{
    const QString attributes = u"layoutschema='USER_L' type='CALENDAR_ONE_DAY_PER_ROW' columnheaders='Ich$$Du' "
                               "holidayfontpercentage='-30' monthlayout='MONTH_LINE'"_s;
    const MvCalendariumLayoutSchema read = layout(QString(), attributes);
    QDomDocument document;
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"calendararea"_s);
    read.write(root);
    QCOMPARE(MvCalendariumLayoutSchema(element(document.toString())), read);

    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(read);
    QCOMPARE(appearance.countColumns(), 0);
    appearance.adoptLayoutSuggestions();
    QCOMPARE(appearance.columnHeadersList(), (QStringList{u"Ich"_s, u"Du"_s}));
    QCOMPARE(appearance.fontSettings().fontSizePercentageHolidays(), -30);
    QCOMPARE(read.monthLayout().toString(), u"MONTH_LINE"_s);
    QCOMPARE(layout(QString()).suggestedHolidayFontPercentage(), -50);
}

void tst_LayoutAndAppearance::unknownLayouts()
{
    QVERIFY(!MvCalendariumLayoutSchemaRegistry::instance().findSchema(MvCalendariumLayoutSchemaID(u"?"_s)).isValid());
    const QString withMore = u"MONTH_GRID_CLASSIC\" name=\"Monatsraster klassisch"_s; // as it stands in the file
    QVERIFY(!MvCalendariumLayoutSchemaRegistry().findSchema(MvCalendariumLayoutSchemaID(withMore)).isValid());
    QVERIFY(!MvCalendariumLayoutSchemaRegistry::instance().schema(-1).isValid());
    QVERIFY(!layout(QString(), u"type='CALENDAR_YEAR'"_s).isValid()); // no id
    QVERIFY(!MvCalendariumLayoutSchemaID(u"user_1"_s).isUserID());    // case matters
}

void tst_LayoutAndAppearance::shippedLayouts()
{
    const auto &registry = MvCalendariumLayoutSchemaRegistry::instance();
    QVERIFY(registry.schemata().size() >= 6);
    QSet<QString> ids, names;
    for (const MvCalendariumLayoutSchema &schema : registry.schemata()) {
        ids.insert(schema.ID().toString());
        for (const QString &language : MvTranslations::languages()) {
            names.insert(schema.localizedName().text(language));
            QVERIFY2(!schema.localizedName().text(language).isEmpty(), qPrintable(schema.ID().toString()));
            QVERIFY2(!schema.localizedDescription().text(language).isEmpty(), qPrintable(schema.ID().toString()));
        }
        QVERIFY2(schema.calendariumType().isValid(), qPrintable(schema.name()));
        QVERIFY2(schema.renderingInformation().isValid(), qPrintable(schema.name()));
    }
    QCOMPARE(ids.size(), registry.schemata().size());
    QCOMPARE(names.size(), 2 * ids.size()); // told apart, and not the same in both languages
}

void tst_LayoutAndAppearance::namesFollowTheLanguage()
{
    const MvCalendariumLayoutSchema shipped = layout(QString(), u"layoutschema='L' name='Liste' name_en='List'"_s);
    const MvCalendariumLayoutSchema ofUser = layout(QString(), u"layoutschema='USER_1' name='Meine'"_s);
    const auto &colors = MvCalendariumColorSchemaRegistry::instance();
    const MvCalendariumColorSchemaID night(u"NIGHT"_s);
    const auto backToGerman = qScopeGuard([] { MvTranslations::install(u"de"_s); });
    for (const auto &[language, list, dark] :
         {std::tuple{u"de"_s, u"Liste"_s, u"Nacht"_s}, {u"en"_s, u"List"_s, u"Night"_s}}) {
        QVERIFY(MvTranslations::install(language));
        QCOMPARE(shipped.name(), list);
        QCOMPARE(ofUser.name(), u"Meine"_s);
        QCOMPARE(colors.name(night), dark);
        QVERIFY(colors.localizedName(night).isAnyOf(u"nacht"_s) && colors.localizedName(night).isAnyOf(u"NIGHT"_s));
    }
}

void tst_LayoutAndAppearance::userLayoutsAreKept()
{
    MvCalendariumLayoutSchemaRegistry registry;
    QVERIFY(!registry.recordUserSchema(layout(QString()))); // not a user's id
    QVERIFY(registry.recordUserSchema(layout(QString(), u"layoutschema='USER_1' type='CALENDAR_YEAR'"_s)));
    QVERIFY(registry.saveUserSchemaFile());
    const MvCalendariumLayoutSchemaRegistry reread;
    QCOMPARE(reread.findSchema(MvCalendariumLayoutSchemaID(u"USER_1"_s)).calendariumType().toInt(), 32);
    QCOMPARE(reread.schemata().constFirst().ID().toString(), u"USER_1"_s); // users first
    QVERIFY(QFile::remove(MvCalendariumLayoutSchemaRegistry::userSchemaFile()));
}

void tst_LayoutAndAppearance::mistakesInUserLayouts()
{
    const QString path = MvCalendariumLayoutSchemaRegistry::userSchemaFile();
    QVERIFY(MvTestFiles::write(
        path, "<l><calendararea layoutschema='DAY_LIST' name='Mein Monat' type='CALENDAR_YEAR'/>\n"
              "<calendararea layoutschema='USER_1' type='CALENDAR_ONE_WEEK_PER_ROWS'/>\n"
              "<calendararea layoutschema='USER_2' type='CALENDAR_YEAR' renderinfo='calendar_render_nothing, dayz'>\n"
              "<cell type='CALENDAR_CELL_TYPE_SUNDY' bordertype='CALENDAR_BORDER_TOPP'/></calendararea>\n"
              "<calendararea layoutschema='USER_3' type='CALENDAR_YEAR'/>\n"
              "<calendararea layoutschema='USER_3' type='CALENDAR_MONTH_ONLY'/></l>"));
    for (const QString &warning :
         {u":1:\\d+: .*„Mein Monat“.*DAY_LIST"_s, u":2:\\d+: .*USER_1.*_ROWS"_s, u":3:\\d+: .*USER_2.*„dayz“"_s,
          u":4:\\d+: .*USER_2.*_SUNDY"_s, u":4:\\d+: .*USER_2.*_TOPP"_s, u":5:\\d+: .*„USER_3“"_s})
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QRegularExpression::escape(path) + warning));
    MvCalendariumLayoutSchemaRegistry registry;
    QStringList ids;
    for (const MvCalendariumLayoutSchema &schema : registry.schemata())
        ids.append(schema.ID().toString());
    QCOMPARE(ids.mid(0, 2), (QStringList{u"USER_2"_s, u"USER_3"_s}));
    QCOMPARE(ids.count(u"DAY_LIST"_s), 1);
    QVERIFY(!ids.contains(u"USER_1"_s));
    QCOMPARE(registry.schema(1).calendariumType(), MvCalendariumType(CALENDAR_MONTH_ONLY));
    QCOMPARE(registry.defaultSchema().ID().toString(), u"MONTH_GRID_CLASSIC"_s);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(u"Der alte Stand liegt in"_s)); // what was left out is not lost
    QVERIFY(registry.saveUserSchemaFile());
    QVERIFY(QFile::remove(path));
}

void tst_LayoutAndAppearance::fontSettings_data()
{
    const MvRows<QString, int, int> row; // attributes, percentage, holidays
    row("nothing", QString(), 0, -50);
    row("old size in steps of ten", u"fontsize='2'"_s, 20, -50);
    row("the new size wins", u"fontsize='2' fontsize_percentage='-10'"_s, -10, -50);
    row("beyond measure", u"fontsize='2147483647' fontsize_percentage_holiddays='-9999'"_s, 900, -100);
    row("holidays", u"fontsize_percentage_holiddays='-30'"_s, 0, -30);
}

void tst_LayoutAndAppearance::fontSettings()
{
    const auto [attributes, percentage, holidays] = MvRows<QString, int, int>::current();
    const MvCalendariumFontSettings settings(element(u"<e %1/>"_s.arg(attributes)));
    QCOMPARE(settings.fontSizePercentage(), percentage);
    QCOMPARE(settings.fontSizePercentageHolidays(), holidays);
    QCOMPARE(settings.fontName(), u"Lato"_s); // the default family where a page names none
}

void tst_LayoutAndAppearance::fontSize()
{
    const auto [percentage, target, minimum, largest, pixels] = MvRows<int, int, int, int, int>::current();
    MvCalendariumFontSettings settings;
    settings.setFontSizePercentage(percentage);
    settings.setFontSizePercentageHolidays(percentage);
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(layout(u"<cell type='CALENDAR_CELL_TYPE_WEEKDAY' maxfontsize='%1'>"
                                      "<font family='Lato' pointsize='20'/></cell>"_s.arg(largest)));
    appearance.setFontSettings(settings);
    const QFont font = appearance.font(CALENDAR_CELL_TYPE_WEEKDAY, MvSpaceMagnitude(target), minimum);
    QCOMPARE(font.pixelSize(), pixels);
    QCOMPARE(font.family(), u"Lato"_s);
    QCOMPARE(appearance.fontHolidays(CALENDAR_CELL_TYPE_WEEKDAY, MvSpaceMagnitude(target), minimum), font);
}

void tst_LayoutAndAppearance::unknownFontWordsTakeDefaults()
{
    const MvCalendariumFontSettings unknown(
        element(u"<e font-weight='Fett' font-capitalization='Laut' font-letter-spacing='viel'/>"_s));
    QCOMPARE(unknown.weight(), QFont::Normal);
    QCOMPARE(unknown.capitalization(), QFont::MixedCase);
    QCOMPARE(unknown.letterSpacing(), 0.0);
    const MvCalendariumFontSettings known(
        element(u"<e font='X' font-weight='Bold' font-capitalization='SmallCaps' font-letter-spacing='2' "
                "fontsize_percentage='50'/>"_s));
    QFont base(u"Lato"_s, 10);
    base.setWeight(QFont::Light);
    const QFont font = known.font(base, MAGNITUDE_A4, MAGNITUDE_NONE, 6);
    QCOMPARE(font.weight(), QFont::Bold);
    QCOMPARE(font.capitalization(), QFont::SmallCaps);
    QCOMPARE(font.letterSpacing(), 3.0); // grows with the size
    QCOMPARE(font.family(), u"X"_s);
    QCOMPARE(unknown.font(base, MAGNITUDE_A4, MAGNITUDE_NONE, 6).weight(), QFont::Light); // the layout's
}

void tst_LayoutAndAppearance::metricsDoNotDependOnTheScreen()
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(layout(u"<cell type='CALENDAR_CELL_TYPE_SUNDAY'><font family='%1' pointsize='18'/>"
                                      "</cell>"_s.arg(MvBoxFont::family())));
    const QFontMetrics metrics = appearance.fontMetrics(CALENDAR_CELL_TYPE_SUNDAY, MAGNITUDE_NONE, 6);
    QCOMPARE(metrics.height(), 50); // 18 points are 50 pixels at 200 dpi, boxes are one em high
    QCOMPARE(metrics.horizontalAdvance(u"22"_s), 50);
}

void tst_LayoutAndAppearance::appearanceRoundTrip()
{
    MvCalendariumAppearance original;
    original.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_GRID_LINES"_s));
    original.setColorSchemaById(MvCalendariumColorSchemaID(u"NIGHT"_s));
    original.setFontSettings(
        MvCalendariumFontSettings(u"EB Garamond"_s, 10, -40, QFont::Bold, QFont::AllUppercase, 1.5));
    original.setColumnHeaders(QStringList{u"Mama"_s, u"Jörg"_s});
    original.setOffsetMonth(-2);
    original.setShowHolidays(false);
    QVERIFY(original.isValid());
    const MvCalendariumAppearance read(written(original), false, nullptr);
    QVERIFY(read == original);
    QVERIFY(read.layoutSchema() == original.layoutSchema());
    QVERIFY(!read.showHolidays());
}

void tst_LayoutAndAppearance::defaultsAreNotWritten()
{
    const QDomElement root = written(MvCalendariumAppearance());
    for (const QString &absent : {u"offsetmonth"_s, u"extrainformation"_s, u"font-capitalization"_s, u"font-weight"_s,
                                  u"font-letter-spacing"_s})
        QVERIFY2(!root.hasAttribute(absent), qPrintable(absent));
    QCOMPARE(root.attribute(u"fontsize_percentage"_s), u"0"_s);
    QCOMPARE(root.attribute(u"fontsize_percentage_holiddays"_s), u"-50"_s);
    QCOMPARE(root.attribute(u"show_holiday"_s), u"true"_s);
    QCOMPARE(root.attribute(u"optimizedSize"_s), u"a4"_s);
    QVERIFY(!MvCalendariumAppearance(element(u"<e/>"_s), false, nullptr).isValid());
    QCOMPARE(MvCalendariumAppearance(element(u"<e optimizedSize='a2'/>"_s), false, nullptr).optimizedSize().toInt(),
             512);
}

void tst_LayoutAndAppearance::layoutsBringTheirPaperSize()
{
    const MvCalendariumLayoutSchemaID planner(u"YEAR_PLANNER"_s); // is made for A2
    const MvCalendariumLayoutSchemaID grid(u"MONTH_GRID_CLASSIC"_s);
    const auto sizeOf = [](const MvCalendariumAppearance &appearance) {
        return appearance.optimizedSize().encodeCSV();
    };
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(planner);
    QCOMPARE(sizeOf(appearance), u"a2"_s);
    QCOMPARE(appearance.font(CALENDAR_CELL_TYPE_MONTH, MAGNITUDE_A2, 1).pixelSize(), 67); // 24 points at 200 dpi
    QCOMPARE(appearance.font(CALENDAR_CELL_TYPE_MONTH, MAGNITUDE_A4, 1).pixelSize(), 34);
    QCOMPARE(sizeOf(MvCalendariumAppearance(written(appearance), false, nullptr)), u"a2"_s);
    appearance.setLayoutSchemaByID(grid); // says nothing: what came with the planner goes with it
    QCOMPARE(sizeOf(appearance), u"a4"_s);

    // a page that names a size keeps it, whatever its layout says
    const QString page = u"<e layoutschema='%1' optimizedSize='a3'/>"_s;
    QCOMPARE(sizeOf({element(page.arg(planner.toString())), false, nullptr}), u"a3"_s);
    MvCalendariumAppearance ofFile(element(page.arg(grid.toString())), false, nullptr);
    ofFile.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_ONLY"_s));
    QCOMPARE(sizeOf(ofFile), u"a3"_s);
    QCOMPARE(sizeOf({element(u"<e layoutschema='YEAR_PLANNER'/>"_s), false, nullptr}), u"a2"_s);

    MvCalendariumLayoutSchema schema = layout({}, u"layoutschema='L' optimizedSize='a1'"_s);
    QCOMPARE(schema.optimizedSize().encodeCSV(), u"a1"_s);
    QDomDocument document;
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"calendararea"_s);
    schema.write(root);
    QVERIFY(MvCalendariumLayoutSchema(root) == schema);
    QVERIFY(!layout({}, u"layoutschema='L' optimizedSize='letter'"_s).optimizedSize().isValid());
}

void tst_LayoutAndAppearance::embedsUserSchemata()
{
    MvCalendariumAppearance appearance;
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"NIGHT"_s));
    QVERIFY(written(appearance, true).firstChildElement(u"colorschema"_s).isNull()); // a shipped one goes by its id
    appearance.setCellColor(QColor(u"#123456"_s), {MvCalendarCellColorRoleEnum::textcolor, CALENDAR_CELL_TYPE_SUNDAY,
                                                   MvParityLogicEnum::both});
    const QDomElement embedded = written(appearance, true);
    QVERIFY(!embedded.firstChildElement(u"colorschema"_s).isNull());
    QVERIFY(MvCalendariumAppearance(embedded, false, nullptr).colorSchema() == appearance.colorSchema());
    QVERIFY(written(appearance, false).firstChildElement(u"colorschema"_s).isNull());

    const auto registry = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
    const QString id = registry->record(appearance.colorSchema()).toString();
    const QDomElement byId = element(u"<e colorschema='%1'/>"_s.arg(id));
    QVERIFY(MvCalendariumAppearance(byId, false, registry.get()).colorSchema() == appearance.colorSchema());
    QVERIFY(!MvCalendariumAppearance(byId, false, nullptr).colorSchema().isValid());
}

void tst_LayoutAndAppearance::columnHeaders()
{
    MvCalendariumAppearance appearance;
    appearance.setColumnHeaders(u"Mo$$$$Di"_s);
    QCOMPARE(appearance.columnHeadersList(), (QStringList{u"Mo"_s, u"Di"_s}));
    QCOMPARE(appearance.countColumns(), 2);
    appearance.setColumnHeaders(QStringList{u"A"_s, QString(), u"B"_s});
    QCOMPARE(appearance.columnHeaders(), u"A$$$$B"_s);
    for (const QStringList &headers : {QStringList{u"US$"_s, u"B"_s},
                                       {u"$"_s, u"$$"_s, u"$$$"_s},
                                       {u"Papa$$Mama"_s},
                                       {u"$A"_s, u"$\u2060$"_s, u"B$\u2060"_s}}) {
        appearance.setColumnHeaders(headers);
        QCOMPARE(appearance.columnHeadersList(), headers);
    }
}

void tst_LayoutAndAppearance::borders_data()
{
    const MvRows<QString, QString, bool, int, bool> row; // type, cell, grid, sides, painted
    const QString left = u"bordertype='CALENDAR_BORDER_LEFT'"_s;
    row("grid off", u"CALENDAR_ONE_WEEK_PER_ROW"_s, left, false, 0, false);
    row("the layout's sides", u"CALENDAR_ONE_WEEK_PER_ROW"_s, left, true, 1, true);
    row("no borders in the layout: all", u"CALENDAR_YEAR"_s, QString(), true, 15, true);
    row("a kind without borders", u"CALENDAR_MONTH_ONLY"_s, left, true, 1, false);
    row("week columns have none either", u"CALENDAR_ONE_COLUMN_PER_WEEK"_s, left, true, 1, false);
}

void tst_LayoutAndAppearance::borders()
{
    auto [type, cell, grid, sides, painted] = MvRows<QString, QString, bool, int, bool>::current();
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(
        layout(u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' %1/>"_s.arg(cell), u"layoutschema='L' type='%1'"_s.arg(type)));
    MvBorderConfig config;
    config.setIsEnabled(grid);
    appearance.setGridConfig(config);
    QCOMPARE(appearance.borderType(CALENDAR_CELL_TYPE_SUNDAY).toInt(), sides);
    QCOMPARE(appearance.shouldIPaintTheBorder(CALENDAR_CELL_TYPE_SUNDAY), painted);
}

void tst_LayoutAndAppearance::gridFollowsTheLayout()
{
    const QString page = u"<e colorschema='PAPER_WHITE' layoutschema='%1'/>"_s;
    const auto gridIsOn = [&page](const QString &id, bool adapt) {
        return MvCalendariumAppearance(element(page.arg(id)), adapt, nullptr).gridConfig().isEnabled();
    };
    QVERIFY(gridIsOn(u"MONTH_GRID_CLASSIC"_s, true));
    QVERIFY(!gridIsOn(u"MONTH_GRID_SERIF"_s, true)); // has no borders
    QVERIFY(gridIsOn(u"MONTH_GRID_SERIF"_s, false)); // the colour schema's own
}

void tst_LayoutAndAppearance::knowsWhetherDaysAreShown()
{
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_GRID_SERIF"_s));
    QVERIFY(appearance.rendererShowsDays());
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_ONLY"_s));
    QVERIFY(!appearance.rendererShowsDays());
}

MV_TEST_MAIN(tst_LayoutAndAppearance)
#include "tst_LayoutAndAppearance.moc"
