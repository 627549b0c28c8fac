// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarCellColorInfo.h"
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumColorCellInfo.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvDayGrounds.h"
#include "MvCalendar/MvUserColorSchemata.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvTranslations.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto background = MvCalendarCellColorRoleEnum::bgcolor;
constexpr auto text = MvCalendarCellColorRoleEnum::textcolor;
constexpr auto even = MvParityLogicEnum::even;
constexpr auto odd = MvParityLogicEnum::odd;
constexpr auto both = MvParityLogicEnum::both;

QDomElement element(const QString &xml)
{
    static QList<QDomDocument> documents; // an element does not keep its document
    documents.append(MvXMLLoader::parse(xml.toUtf8()));
    return documents.constLast().documentElement();
}

MvCalendariumColorSchema schema(const QString &children)
{
    return MvCalendariumColorSchema(element(u"<calendararea>%1</calendararea>"_s.arg(children)));
}

QString hex(const QColor &color)
{
    return color.name(QColor::HexArgb);
}

MvCalendariumColorSchema writtenAndRead(const MvCalendariumColorSchema &original, QDomElement *written = nullptr)
{
    QDomDocument document;
    QDomElement area = MvXMLBuilder::buildRootElement(document, u"calendararea"_s);
    original.write(area, MvCalendariumColorSchemaID(u"X"_s));
    const QDomElement read = element(document.toString());
    if (written)
        *written = read;
    return MvCalendariumColorSchema(read);
}

// What a text of the type may stand on: its own ground; without one the page's, which is that of empty cells, and for
// the name of a weekday in a list that of its day.
QList<QColor> groundsOf(const MvCalendariumColorSchema &schema, const MvCalendarCellType &type,
                        const MvParityLogic &parity)
{
    static const QHash<MvCalendarCellType, MvCalendarCellType> dayOfHead = {
        {CALENDAR_CELL_TYPE_HEAD_WEEKDAY, CALENDAR_CELL_TYPE_WEEKDAY},
        {CALENDAR_CELL_TYPE_HEAD_SATURDAY, CALENDAR_CELL_TYPE_SATURDAY},
        {CALENDAR_CELL_TYPE_HEAD_SUNDAY, CALENDAR_CELL_TYPE_SUNDAY},
        {CALENDAR_CELL_TYPE_HEAD_HOLIDAY, CALENDAR_CELL_TYPE_HOLIDAY},
        {CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION, CALENDAR_CELL_TYPE_SCHOOL_VACATION}};
    const QColor own = schema.cellColor({MvCalendarCellColorRoleEnum::bgcolor, type, parity});
    if (own.alpha() > 0)
        return {own};
    const auto groundOf = [&](const MvCalendarCellType &other) {
        return schema.cellColor({MvCalendarCellColorRoleEnum::bgcolor, other, parity});
    };
    QList<QColor> grounds{groundOf(CALENDAR_CELL_TYPE_EMPTY)};
    if (dayOfHead.contains(type))
        grounds.append(groundOf(dayOfHead.value(type)));
    return grounds;
}

} // namespace

class tst_ColorSchema : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsCells_data();
    void readsCells();
    void grid_data();
    void grid();
    void roundTrip_data();
    void roundTrip();
    void writesOnlyDeviations();

    void registryAliasesDuplicates();
    void registryRenamesOldIds();
    void userFiles_data();
    void userFiles();
    void idsOfEqualColoursAreKept();
    void userSchemata();
    void shippedSchemata();
    void groundsOfDays_data();
    void groundsOfDays();
};

void tst_ColorSchema::readsCells_data()
{
    const MvRows<QString, int, QString, QString> row; // cells, type, evenBackground, oddText
    const QString defaults = u"<celldefault bgcolor='#102030' textcolor='#405060'/>"_s;
    row("one attribute for both parities", u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bgcolor='#ff0000'/>"_s, 8,
        u"#ffff0000"_s, u"#ff000000"_s);
    row("two attributes", u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bgcoloreven='#80ff0000' textcolorodd='blue'/>"_s, 8,
        u"#80ff0000"_s, u"#ff0000ff"_s);
    row("defaults of the schema", defaults, int(CALENDAR_CELL_TYPE_MONTH), u"#ff102030"_s, u"#ff405060"_s);
    row("missing role takes the schema's default",
        defaults + u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bgcolor='#ff0000'/>"_s, 8, u"#ffff0000"_s, u"#ff405060"_s);
    row("several types in one element",
        u"<cell type='CALENDAR_CELL_TYPE_TITLE, CALENDAR_CELL_TYPE_YEAR' bgcolor='#00ff00'/>"_s,
        int(CALENDAR_CELL_TYPE_YEAR), u"#ff00ff00"_s, u"#ff000000"_s);
    row("vacations take the colours of Saturdays", u"<cell type='CALENDAR_CELL_TYPE_SATURDAY' bgcolor='#00ff00'/>"_s,
        int(CALENDAR_CELL_TYPE_SCHOOL_VACATION), u"#ff00ff00"_s, u"#ff000000"_s);
    row("holidays do not", u"<cell type='CALENDAR_CELL_TYPE_SATURDAY' bgcolor='#00ff00'/>"_s,
        int(CALENDAR_CELL_TYPE_HOLIDAY), u"#00000000"_s, u"#ff000000"_s);
    row("heads of vacations those of heads of Saturdays",
        u"<cell type='CALENDAR_CELL_TYPE_HEAD_SATURDAY' bgcolor='#00ff00'/>"_s,
        int(CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION), u"#ff00ff00"_s, u"#ff000000"_s);
    row("heads of holidays those of heads of Sundays",
        u"<cell type='CALENDAR_CELL_TYPE_HEAD_SUNDAY' bgcolor='#00ff00'/>"_s, int(CALENDAR_CELL_TYPE_HEAD_HOLIDAY),
        u"#ff00ff00"_s, u"#ff000000"_s);
    row("no colour at all", u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bgcolor='rot'/>"_s, 8, u"#00000000"_s,
        u"#ff000000"_s);
}

void tst_ColorSchema::readsCells()
{
    const auto [cells, type, evenBackground, oddText] = MvRows<QString, int, QString, QString>::current();
    const MvCalendariumColorSchema read = schema(cells);
    QVERIFY(read.isValid());
    QCOMPARE(hex(read.cellColor({background, MvCalendarCellType(type), even})), evenBackground);
    QCOMPARE(hex(read.cellColor({text, MvCalendarCellType(type), odd})), oddText);
    QCOMPARE(read.cellColors().usedCellTypes(), MvCalendarCellType::allTypes());
    QCOMPARE(read.cellColor({background, MvCalendarCellType(type), both}), QColor(Qt::transparent)); // not a single key
}

void tst_ColorSchema::grid_data()
{
    const MvRows<QString, QString, bool, QString> row; // attributes, children, enabled, color
    const QString border = u"<border enabled='%1' color='#112233' width='3'/>"_s;
    const QString cell = u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' %1/>"_s;
    row("border", QString(), border.arg(u"true"_s), true, u"#ff112233"_s);
    row("a disabled border is the default one", QString(), border.arg(u"false"_s), false, u"#ff000000"_s);
    row("nothing", QString(), QString(), false, u"#ff000000"_s);
    row("old colour", u"gridcolor='#aabbcc'"_s, QString(), true, u"#ffaabbcc"_s);
    row("old transparent colour", u"gridcolor='transparent'"_s, QString(), false, u"#00000000"_s);
    row("switched off by the user", u"gridcolor='#aabbcc' userGridVisible='false'"_s, QString(), false, u"#ffaabbcc"_s);
    row("recoloured by the user", u"gridcolor='#aabbcc' userGridColor='#010203'"_s, QString(), true, u"#ff010203"_s);
    row("guessed from the cells", QString(), cell.arg(u"bordercolor='#445566'"_s), true, u"#ff445566"_s);
    row("chromatic backgrounds never had a grid", u"gridcolor='#aabbcc'"_s, cell.arg(u"bgcolor='#ff0000'"_s), false,
        u"#ff000000"_s);
}

void tst_ColorSchema::grid()
{
    const auto [attributes, children, enabled, color] = MvRows<QString, QString, bool, QString>::current();
    const MvBorderConfig read =
        MvCalendariumColorSchema(element(u"<calendararea %1>%2</calendararea>"_s.arg(attributes, children)))
            .gridConfig();
    QCOMPARE(read.isEnabled(), enabled);
    QCOMPARE(hex(read.color()), color);
}

void tst_ColorSchema::roundTrip_data()
{
    const MvRows<QString> row; // cells
    row("empty", QString());
    row("alternating weeks",
        u"<cell type='CALENDAR_CELL_TYPE_WEEKDAY' bgcoloreven='#eeeeee' bgcolorodd='#00ffffff'/>"_s);
    // without a cell of its own, the holiday would come back with Sunday's colours
    row("holiday in default colours, Sunday not",
        u"<cell type='CALENDAR_CELL_TYPE_SUNDAY' bgcolor='#ff0000'/><cell type='CALENDAR_CELL_TYPE_HOLIDAY'/>"_s);
    row("translucent with a border",
        u"<border color='#80112233' width='1.5' position='inside'/><celldefault bgcolor='#40ffffff'/>"_s);
}

void tst_ColorSchema::roundTrip()
{
    const auto [cells] = MvRows<QString>::current();
    MvCalendariumColorSchema original = schema(cells);
    if (original.gridConfig().isEnabled()) { // as a chooser of colours may give them
        MvBorderConfig grid = original.gridConfig();
        grid.setColor(QColor::fromHsvF(0.1F, 0.2F, 0.3F));
        grid.setWidth(MvDistance(1e9));
        original.setGridConfig(grid);
    }
    const MvCalendariumColorSchema read = writtenAndRead(original);
    QCOMPARE(read.describeDifference(original), u"MvCalendariumColorSchema: no difference."_s);
    QVERIFY(read == original);
    QCOMPARE(read.hashValue(), original.hashValue());
}

void tst_ColorSchema::writesOnlyDeviations()
{
    MvCalendariumColorSchema original = schema(u"<celldefault bgcolor='#ffffff' textcolor='#222222'/>"_s);
    original.setCellColor(QColor(u"#ff0000"_s), {text, CALENDAR_CELL_TYPE_SUNDAY, both});
    QDomElement written;
    writtenAndRead(original, &written);
    QCOMPARE(written.attribute(u"colorschema"_s), u"X"_s);
    QCOMPARE(written.firstChildElement(u"celldefault"_s).attribute(u"bgcolor"_s), u"#ffffff"_s);
    const QDomElement cell = written.firstChildElement(u"cell"_s);
    QCOMPARE(cell.attribute(u"type"_s), u"CALENDAR_CELL_TYPE_SUNDAY"_s);
    QCOMPARE(cell.attribute(u"textcolor"_s), u"#ff0000"_s);
    QVERIFY(!cell.hasAttribute(u"bgcolor"_s));
    // the holiday kept the default colours although Sunday, from which it would be made, has not
    QCOMPARE(cell.nextSiblingElement(u"cell"_s).attribute(u"type"_s), u"CALENDAR_CELL_TYPE_HOLIDAY"_s);
    QVERIFY(cell.nextSiblingElement(u"cell"_s).nextSiblingElement(u"cell"_s).isNull());
}

void tst_ColorSchema::registryAliasesDuplicates()
{
    const auto registry = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
    QTest::ignoreMessage(QtWarningMsg, "Duplicate schema found, aliassed A by B");
    registry->read(element(u"<s><calendararea colorschema='A' name='Eins'/><calendararea colorschema='B'/>"
                           "<calendararea name='ohne Kennung'/>"
                           "<calendararea schema='C'><celldefault bgcolor='red'/></calendararea></s>"_s),
                   SCHEMA_VISIBILITY_OFFERED);
    QCOMPARE(registry->allSchemata().size(), 2);
    const MvCalendariumColorSchema first = registry->findSchema(MvCalendariumColorSchemaID(u"A"_s));
    QVERIFY(first.isValid());
    QVERIFY(first == registry->findSchema(MvCalendariumColorSchemaID(u"B"_s)));
    QCOMPARE(registry->id(first), MvCalendariumColorSchemaID(u"A"_s));
    QCOMPARE(registry->name(MvCalendariumColorSchemaID(u"A"_s)), u"Eins"_s);
    QVERIFY(!registry->findSchema(MvCalendariumColorSchemaID(u"D"_s)).isValid());
    QCOMPARE(registry->visibility(first), MvCalendariumColorSchemaVisibility(SCHEMA_VISIBILITY_OFFERED));
    QCOMPARE(registry->visibility(MvCalendariumColorSchema()),
             MvCalendariumColorSchemaVisibility(SCHEMA_VISIBILITY_UNKNOWN));
}

void tst_ColorSchema::registryRenamesOldIds()
{
    MvCalendariumColorSchemaID id;
    id.read(element(u"<e colorschema='WHITE'/>"_s));
    QCOMPARE(id.toString(), u"PAPER_WHITE"_s);
    QVERIFY(MvCalendariumColorSchemaRegistry::instance().contains(id));
}

void tst_ColorSchema::userFiles_data()
{
    // offered: beside the shipped ones; hidden: an id, and the one that is not offered then
    const MvRows<QString, QStringList, QStringList, QString> row;
    const QString red = u"<calendararea colorschema='%1' name='%2'><celldefault bgcolor='#ff0000'/></calendararea>"_s;
    const QString blue = u"<calendararea colorschema='%1' name='%2'><celldefault bgcolor='#0000ff'/></calendararea>"_s;
    const QString file = u"colors.xml:%1:\\d+: .*"_s;
    row("a shipped id", red.arg(u"PAPER_WHITE"_s, u"Mein Weiß"_s),
        QStringList{file.arg(1) + u"„Mein Weiß“.*PAPER_WHITE.*„Papierweiß“"_s}, QStringList(),
        u"PAPER_WHITE PAPER_WHITE"_s);
    row("an id twice", red.arg(u"USER_1"_s, u"Rot"_s) + u'\n' + blue.arg(u"USER_1"_s, u"Blau"_s),
        QStringList{file.arg(1) + u"„Rot“.*USER_1.*„Blau“"_s}, QStringList{u"USER_1"_s}, u"USER_1 USER_1"_s);
    row("a shipped schema under an id of one's own", u"NIGHT"_s,
        QStringList{u"Duplicate schema found, aliassed USER_77 by NIGHT"_s}, QStringList(), u"USER_77 NIGHT"_s);
    row("typing errors",
        u"\n<calendararea colorschema='USER_3'><cell type='CALENDAR_CELL_TYPE_SUNDY'/>\n"
        "<cell type='CALENDAR_CELL_TYPE_SUNDAY' textcolorodd='rott'/></calendararea>"_s,
        QStringList{file.arg(2) + u"USER_3.*CALENDAR_CELL_TYPE_SUNDY"_s, file.arg(3) + u"USER_3.*rott"_s},
        QStringList{u"USER_3"_s}, u"USER_3 USER_3"_s);
}

void tst_ColorSchema::userFiles()
{
    auto [areas, warnings, offered, hidden] = MvRows<QString, QStringList, QStringList, QString>::current();
    const QFileInfo shipped(u":/mvcalendar/schemas/calendar_schema.xml"_s);
    const auto plain = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
    plain->read(shipped, SCHEMA_VISIBILITY_OFFERED);
    if (plain->contains(MvCalendariumColorSchemaID(areas))) { // a copy of that one
        QDomDocument document;
        QDomElement area = MvXMLBuilder::buildRootElement(document, u"calendararea"_s);
        plain->findSchema(MvCalendariumColorSchemaID(areas)).write(area, MvCalendariumColorSchemaID(u"USER_77"_s));
        areas = document.toString();
    }
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"colors.xml"_s);
    QVERIFY(MvTestFiles::write(file, (u"<s>"_s + areas + u"</s>"_s).toUtf8()));
    for (const QString &warning : warnings)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning));
    const auto registry = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
    registry->read(QFileInfo(file), SCHEMA_VISIBILITY_OFFERED);
    registry->read(shipped, SCHEMA_VISIBILITY_OFFERED);
    const auto ids = [](const QList<MvCalendariumColorSchemaID> &list) {
        QSet<QString> texts;
        for (const MvCalendariumColorSchemaID &id : list)
            texts.insert(id.toString());
        return texts;
    };
    QCOMPARE(ids(registry->schemaIds()), ids(plain->schemaIds()) + QSet(offered.cbegin(), offered.cend()));
    QCOMPARE(registry->visibleSchemata().size(), plain->schemaIds().size() + offered.size());
    QCOMPARE(registry->id(registry->defaultSchema()).toString(), u"PAPER_WHITE"_s);
    QVERIFY(registry->defaultSchema() == plain->defaultSchema());
    QCOMPARE(registry->name(MvCalendariumColorSchemaID(u"NIGHT"_s)), u"Nacht"_s);
    const MvCalendariumColorSchemaID other(hidden.section(u' ', 1));
    registry->setIgnoreSchema(MvCalendariumColorSchemaID(hidden.section(u' ', 0, 0)));
    QVERIFY(registry->isIgnoredSchema(other));
    QVERIFY(!registry->visibleSchemata().contains(registry->findSchema(other)));
    registry->unsetIgnoreSchema(other);
    QVERIFY(registry->visibleSchemata().contains(registry->findSchema(other)));
}

void tst_ColorSchema::idsOfEqualColoursAreKept()
{
    auto &registry = MvCalendariumColorSchemaRegistry::instance();
    const MvCalendariumColorSchemaID night(u"NIGHT"_s);
    const MvCalendariumColorSchemaID id = registry.recordSchemaUniquely(registry.findSchema(night));
    QVERIFY(registry.saveSystemUserSchemata());
    const auto reread = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
    reread->read(MvCalendariumColorSchemaRegistry::systemUserSchemaFile(), SCHEMA_VISIBILITY_OFFERED);
    QVERIFY(reread->findSchema(id) == registry.findSchema(night));
    registry.removeId(id);
    QVERIFY(!registry.contains(id) && registry.contains(night));
    QVERIFY(registry.saveSystemUserSchemata());
}

/// Kept, renamed and removed on disk as in the registry; what cannot be saved is not done at all.
void tst_ColorSchema::userSchemata()
{
    auto &registry = MvCalendariumColorSchemaRegistry::instance();
    const QList<MvCalendariumColorSchemaID> shipped = registry.schemaIds();
    MvCalendariumColorSchema mine = schema(u"<celldefault bgcolor='#123456'/>"_s);
    MvBorderConfig grid(Qt::red, MvDistance(3.0), BORDER_POSITION_CENTRED, false);
    mine.setGridConfig(grid);
    for (const QString &name : {QString(), u" \n "_s, u"nacht"_s, u"Night"_s, u"OFFICE_RED"_s, QString(99, u'x')})
        QVERIFY2(!MvUserColorSchemata::keep(mine, name).isOk(), qPrintable(name));
    QVERIFY(!MvUserColorSchemata::keep(registry.defaultSchema(), u"Neu"_s).isOk()); // exists
    const MvUserColorSchemata::Result kept = MvUserColorSchemata::keep(mine, u" Unser\nBlau"_s);
    QCOMPARE(kept.error, QString());
    QCOMPARE(registry.name(kept.id), u"Unser Blau"_s);
    QCOMPARE(registry.idWhateverTheGrid(mine), kept.id);
    const auto onDisk = [] {
        auto reread = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
        reread->read(MvCalendariumColorSchemaRegistry::systemUserSchemaFile(), SCHEMA_VISIBILITY_OFFERED);
        return reread;
    };
    QCOMPARE(onDisk()->findSchema(kept.id).gridConfig().color(), QColor(Qt::red));
    {
        const MvFileGuard otherProgram(MvCalendariumColorSchemaRegistry::systemUserSchemaFile());
        const QList<MvCalendariumColorSchemaID> before = registry.schemaIds();
        QVERIFY(!MvUserColorSchemata::keep(schema(u"<celldefault bgcolor='#654321'/>"_s), u"Grün"_s).isOk());
        QVERIFY(!MvUserColorSchemata::rename(kept.id, u"Grün"_s).isOk());
        QVERIFY(!MvUserColorSchemata::remove(kept.id).isOk());
        QVERIFY(!MvUserColorSchemata::reset().isOk());
        QCOMPARE(registry.schemaIds(), before);
        QCOMPARE(registry.name(kept.id), u"Unser Blau"_s);
    }
    QVERIFY(MvUserColorSchemata::rename(kept.id, u"unser blau"_s).isOk());
    QCOMPARE(onDisk()->name(kept.id), u"unser blau"_s);
    QVERIFY(MvUserColorSchemata::remove(kept.id).isOk());
    QVERIFY(!onDisk()->contains(kept.id));
    QVERIFY(MvUserColorSchemata::keep(mine, u"Blau"_s).isOk());
    registry.setIgnoreSchema(shipped.constLast());
    QVERIFY(MvUserColorSchemata::reset().isOk());
    QCOMPARE(registry.schemaIds(), shipped);
    QVERIFY(onDisk()->schemaIds().isEmpty() && registry.hiddenSchemata().isEmpty());
}

void tst_ColorSchema::shippedSchemata()
{
    const auto &registry = MvCalendariumColorSchemaRegistry::instance();
    QVERIFY(registry.allSchemata().size() >= 6);
    for (const MvCalendariumColorSchemaID &id : registry.schemaIds()) {
        for (const QString &language : MvTranslations::languages())
            QVERIFY2(!registry.localizedName(id).text(language).isEmpty(), qPrintable(id.toString()));
        const MvCalendariumColorSchema shipped = registry.findSchema(id);
        QVERIFY(writtenAndRead(shipped) == shipped);
        for (const MvCalendarCellType &type : MvCalendarCellType::allTypes().singleTypes()) {
            const bool isLarge =
                type == CALENDAR_CELL_TYPE_TITLE || type == CALENDAR_CELL_TYPE_MONTH || type == CALENDAR_CELL_TYPE_YEAR;
            for (const MvParityLogicEnum parity : {even, odd}) {
                for (const QColor &ground : groundsOf(shipped, type, parity)) {
                    MvCalendariumColorCellInfo cell;
                    cell.setBackgroundColor(ground, true);
                    cell.setFontColor(shipped.cellColor({text, type, parity}), true);
                    const double found = cell.cellContrast(Qt::white, true);
                    QVERIFY2(found >= (isLarge ? 3.0 : 4.5),
                             qPrintable(u"%1 %2: %3"_s.arg(id.toString(), type.encode()).arg(found)));
                }
            }
        }
    }
}

void tst_ColorSchema::groundsOfDays_data()
{
    // nearest: by hand, from the formula of the contrast
    const MvRows<QList<QColor>, QColor, QColor> row;
    const QColor white = Qt::white;
    const QColor black = Qt::black;
    const QColor none;
    row("no page", QList<QColor>(), QColor(Qt::yellow), QColor(Qt::yellow));
    row("dark on white", QList<QColor>{white}, QColor(0x1F6FB2), QColor(0x1F6FB2));
    row("grey on white", QList<QColor>{white}, QColor(0x808080), QColor(0x767676)); // 4.54 : 1
    row("blue on black", QList<QColor>{black}, QColor(0x0000C0), QColor(0x5C5CFF));
    row("light and dark", QList<QColor>{white, QColor(0x404040)}, QColor(0x777777), none);
}

/// Of a schema that lets the paper through.
void tst_ColorSchema::groundsOfDays()
{
    const auto [papers, color, nearest] = MvRows<QList<QColor>, QColor, QColor>::current();
    MvCalendariumColorSchema clear;
    clear.setCellColor(Qt::transparent, {background, MvCalendarCellType::allTypes(), both});
    MvCalendariumAppearance appearance;
    appearance.setColorSchema(clear);
    MvDayGrounds grounds;
    for (const QColor &paper : papers)
        grounds.add(appearance, paper);
    const QColor found = grounds.nearestReadable(color);
    QCOMPARE(found.isValid(), nearest.isValid());
    if (!nearest.isValid())
        return;
    constexpr int step = 4; // of 255: lightness is tried by hundredths
    QVERIFY2(std::abs(found.lightness() - nearest.lightness()) <= step, qPrintable(hex(found)));
    QVERIFY(std::abs(found.hslHue() - color.hslHue()) <= 1);
    QVERIFY(grounds.contrast(found) >= MvDayGrounds::readableContrast || papers.isEmpty());
    QCOMPARE(grounds.unreadableOn(color).isEmpty(), found == color);
}

MV_TEST_MAIN(tst_ColorSchema)
#include "tst_ColorSchema.moc"
