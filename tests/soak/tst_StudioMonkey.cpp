// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryListModel.h"
#include "MvCore/MvRequestHandler.h"
#include "MvCore/MvUndoController.h"
#include "MvEntries.h"
#include "MvMonkey.h"
#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectFile.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvStudioFixture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int actionsPerSeed = 1250;
constexpr int actionsPerCheck = 125;
constexpr int seedsPerRun = 8;
constexpr int longestAnswer = 15; // milliseconds until a file or an agreement is there
constexpr int mostAlike = 2;      // windows that one widget keeps for the next time

/// Chooses from a list, agrees half the time, at once or later.
class ScriptedAnswers : public MvRequestHandler
{
public:
    ScriptedAnswers(quint32 seed, const QStringList &files, const QString &folder)
        : m_random(seed)
        , m_files(files)
        , m_folder(folder)
    {}

    void askForFile(const FileRequest &request, QObject *asker, const FileAnswer &answer) override
    {
        QString file = request.mode == FileMode::Save ? m_folder + u"/Einträge.xml"_s
                                                      : m_files.at(int(m_random.bounded(m_files.size())));
        if (m_random.bounded(4) == 0)
            file.clear();
        give(asker, [answer, file] { answer(file); });
    }
    void askYesNo(const QString &, const QString &, QObject *asker, const YesNoAnswer &answer) override
    {
        give(asker, [answer, yes = m_random.bounded(2) == 0] { answer(yes); });
    }
    void report(const QString &, const QString &, QObject *) override {}

private:
    void give(QObject *asker, const std::function<void()> &answer)
    {
        if (m_random.bounded(2) == 0 || !asker)
            answer();
        else
            QTimer::singleShot(int(m_random.bounded(longestAnswer)), asker, answer);
    }

    QRandomGenerator m_random;
    QStringList m_files;
    QString m_folder;
};

QString textOf(const MvCalendarEvent &event)
{
    return u"%1|%2|%3|%4|%5"_s
        .arg(event.dateTime().toString(Qt::ISODate), event.description(), event.uuid().toString(),
             event.imagePath().filePath())
        .arg(event.storedRecurrent());
}

QStringList textsOf(const MvCalendarEventList &events)
{
    QStringList texts;
    for (const MvCalendarEvent &event : events)
        texts.append(textOf(event));
    texts.sort();
    return texts;
}

QByteArray differenceOf(const QStringList &found, const QStringList &expected)
{
    QStringList lines{u"found %1, expected %2"_s.arg(found.size()).arg(expected.size())};
    for (const QString &line : found)
        if (!expected.contains(line))
            lines.append(u"+ "_s + line);
    for (const QString &line : expected)
        if (!found.contains(line))
            lines.append(u"- "_s + line);
    return lines.join(u'\n').toUtf8();
}

QtMessageHandler &testHandler()
{
    static QtMessageHandler handler;
    return handler;
}

/// What the platform without a screen cannot do, and fonts cannot write, would hide the rest.
void dropPlatformMessages(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QStringView said = QStringView(text).trimmed();
    if (!said.startsWith(u"This plugin does not support") && !said.startsWith(u"OpenType support missing"))
        testHandler()(type, context, text);
}

} // namespace

/// Ten thousand things that nobody would do, one after the other, and after each some that must still hold. Other ones
/// come from MV_MONKEY_SEED=<first seed>.
class tst_StudioMonkey : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { testHandler() = qInstallMessageHandler(dropPlatformMessages); }
    void cleanupTestCase();
    void init();
    void cleanup();
    void survives_data();
    void survives();

private:
    MvCalendarEventList createEvents(const QString &foto) const;
    QStringList createFiles() const;
    static MvCalendarDocument createFotoCalendar(const QStringList &files);
    void check();
    void checkEntries();
    void checkUndo();
    void checkPages();
    void checkWindows();
    static QString kept();

    std::unique_ptr<MvStudioFixture> m_studio;
    std::unique_ptr<MvMonkey> m_monkey;
    int m_seeds = 0;
    int m_listsSeen = 0;
};

void tst_StudioMonkey::init()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!.*kaputt)"_s)); // told about files that are broken on purpose
    QApplication::setQuitOnLastWindowClosed(false);
    m_studio = std::make_unique<MvStudioFixture>();
    QVERIFY(QDir::setCurrent(m_studio->path({}))); // for names without a folder
}

void tst_StudioMonkey::cleanup()
{
    MvRequestHandler::install({});
    m_monkey.reset();
    QDir::setCurrent(QDir::rootPath());
    m_studio.reset();
}

MvCalendarEventList tst_StudioMonkey::createEvents(const QString &foto) const
{
    MvCalendarEventList events;
    for (int day = 1; day < 20; ++day)
        events.append(MvEntries::entry(u"Person %1"_s.arg(day), {1980 + day, 1 + day % 12, day},
                                       day % 5 == 0 ? MvFoto(QFileInfo(foto)) : MvFoto(), day % 3 > 0));
    return events;
}

QStringList tst_StudioMonkey::createFiles() const
{
    const auto write = [this](const QString &name, const QByteArray &content) {
        QFile file(m_studio->path(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
        return file.fileName();
    };
    const QString foto = m_studio->path(u"Foto.png"_s);
    const QString upright = m_studio->path(u"Hochkant.jpg"_s);
    MvProjectFixture::writeFoto(foto, {300, 200});
    MvProjectFixture::writeFoto(upright, {90, 160});
    const MvCalendarEventList events = createEvents(foto);
    const QString calendar = m_studio->path(u"Kalender."_s + MvProjectFile::suffix());
    MvProjectFile::write(MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 3), QFileInfo(calendar));
    return {foto,
            upright,
            foto,
            calendar,
            write(u"Termine.xml"_s, MvCalendarEventFile::toBytes(events)),
            write(u"kaputt.xml"_s, MvCalendarEventFile::toBytes(events).chopped(700)),
            write(u"kaputt.png"_s, "\x89PNG\r\n\x1a\nnothing more"),
            write(u"kaputt."_s + MvProjectFile::suffix(), "<calendarproject version=\"1\"><page"),
            write(u"Leute.vcf"_s, "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Anna Ärmel\r\nBDAY:1990-02-28\r\nEND:VCARD\r\n"
                                  "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ben\r\nBDAY:2000-02-29\r\nEND:VCARD\r\n"),
            m_studio->path(u"kaputt, weil nicht da.jpg"_s)};
}

/// With a theme, templates and photos in the tray.
MvCalendarDocument tst_StudioMonkey::createFotoCalendar(const QStringList &files)
{
    MvNewCalendar wanted;
    wanted.themeId = u"ALBUM"_s;
    wanted.range = {QDate(2027, 1, 1), QDate(2027, 12, 31)};
    MvCalendarDocument document = wanted.make();
    MvFotoPool pool;
    for (const QString &path : files.mid(0, 2))
        pool.add({path, {}, {}, {0.5, 0.5}});
    document.setFotoPool(pool);
    return MvFotoDistribution::distribute(document).document;
}

void tst_StudioMonkey::cleanupTestCase()
{
    qInstallMessageHandler(testHandler());
    QVERIFY2(m_listsSeen > 0 || m_seeds < seedsPerRun, "the list of entries was never looked at");
}

void tst_StudioMonkey::survives_data()
{
    const MvRows<quint32> row; // seed
    const quint32 first = qMax(1, qEnvironmentVariableIntValue("MV_MONKEY_SEED"));
    for (quint32 seed = first; seed < first + seedsPerRun; ++seed)
        row(QString::asprintf("seed %u", seed), seed);
}

void tst_StudioMonkey::survives()
{
    const auto [seed] = MvRows<quint32>::current();
    ++m_seeds;
    const QStringList files = createFiles();
    MvRequestHandler::install(std::make_unique<ScriptedAnswers>(seed, files, m_studio->path({})));
    MvCalendarEventRegistry::instance().setOwnEvents(createEvents(files.first())); // the calendar copies them
    if (seed % 2 == 0)
        m_studio->project()->newProject(createFotoCalendar(files));
    m_monkey = std::make_unique<MvMonkey>(m_studio->window(), seed, files, m_studio->path({}));
    int steps = 0; // forth and back
    connect(MvUndoController::instance().stack(), &QUndoStack::indexChanged, m_monkey.get(), [&steps] { ++steps; });
    for (int action = 1; action <= actionsPerSeed; ++action) {
        m_monkey->act();
        if (action % 25 == 0)
            QTest::qWait(5); // timers and threads have their say
        if (action % actionsPerCheck == 0)
            check();
        if (QTest::currentTestFailed())
            return;
    }
    QVERIFY2(steps > 50, "hardly anything was changed");
}

void tst_StudioMonkey::check()
{
    m_monkey->closeOthers();
    QTest::qWait(3 * longestAnswer); // no answer is under way any more
    using Check = void (tst_StudioMonkey::*)();
    for (const Check each :
         {&tst_StudioMonkey::checkEntries, &tst_StudioMonkey::checkUndo, &tst_StudioMonkey::checkEntries,
          &tst_StudioMonkey::checkPages, &tst_StudioMonkey::checkWindows}) {
        if (!QTest::currentTestFailed())
            (this->*each)();
    }
}

/// The user's file and list are of one mind, and table and list of the calendar. Of entries that are the same but for
/// their uuid, reading keeps one.
void tst_StudioMonkey::checkEntries()
{
    const auto &registry = MvCalendarEventRegistry::instance();
    const QStringList list = textsOf(registry.activeEventList());
    MvCalendarEventList different;
    for (const MvCalendarEvent &event : registry.ownEvents())
        if (!different.contains(event))
            different.append(event);
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(registry.calendarEventsDir());
    QVERIFY2(content.isRead() || (content.isMissing && different.isEmpty()), qPrintable(content.error));
    const QStringList inFile = textsOf(content.events);
    QVERIFY2(inFile == textsOf(different), differenceOf(inFile, textsOf(different)).constData());

    // a list that nobody sees follows when it is shown
    for (const auto *view : m_studio->window()->findChildren<QAbstractItemView *>()) {
        const auto *model = qobject_cast<const MvEntryListModel *>(view->model());
        if (!model || !view->isVisible())
            continue;
        ++m_listsSeen;
        QCOMPARE(model->total(), int(list.size()));
        if (model->rowCount() < model->total()) // somebody searches
            continue;
        MvCalendarEventList rows;
        for (int row = 0; row < model->rowCount(); ++row)
            rows.append(model->event(row));
        QVERIFY2(textsOf(rows) == list, differenceOf(textsOf(rows), list).constData());
    }
}

/// Back to the beginning, forth again, and twice over: every state comes back as it was.
void tst_StudioMonkey::checkUndo()
{
    MvUndoController &undo = MvUndoController::instance();
    const int index = undo.stack()->index();
    const MvCalendarDocument document = m_studio->document();
    const auto textsOfBoth = [&registry = MvCalendarEventRegistry::instance()] {
        return textsOf(registry.activeEventList()) + textsOf(registry.ownEvents());
    };
    const QStringList entries = textsOfBoth();
    std::optional<MvCalendarDocument> firstDocument;
    QStringList firstEntries;
    for (int round = 0; round < 2; ++round) {
        while (undo.stack()->canUndo()) {
            undo.undo();
            if (undo.stack()->index() % 20 == 0)
                QCoreApplication::processEvents();
        }
        const QStringList atStart = textsOfBoth();
        if (round == 0) {
            firstDocument = m_studio->document();
            firstEntries = atStart;
        }
        QVERIFY(*firstDocument == m_studio->document());
        QVERIFY2(firstEntries == atStart, differenceOf(atStart, firstEntries).constData());

        while (undo.stack()->index() < index) {
            const int before = undo.stack()->index();
            const QString text = undo.stack()->redoText();
            undo.redo();
            QVERIFY2(undo.stack()->index() == before + 1, qPrintable(u"“%1” does not come back"_s.arg(text)));
        }
        const QStringList redone = textsOfBoth();
        QVERIFY(m_studio->document() == document);
        QVERIFY2(redone == entries, differenceOf(redone, entries).constData());
    }
}

void tst_StudioMonkey::checkPages()
{
    const MvCalendarDocument &document = m_studio->document();
    for (const MvCalendarPage &page : document.pages().mid(0, 24)) {
        const QList<MvPageElement> elements = page.elementsOn(document.format());
        const bool hasCalendarium = std::any_of(elements.begin(), elements.end(),
                                                [](const MvPageElement &one) { return one.calendarium() != nullptr; });
        QVERIFY(!hasCalendarium || !page.record(document.format(), document.range()).isEmpty());
    }
}

/// A window that is kept more often than for the next time, and its actions; empty when there is none.
QString tst_StudioMonkey::kept()
{
    using Kind = std::tuple<const QMetaObject *, const QObject *, QString, QString>;
    std::map<Kind, int> alike;
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        const auto *menu = qobject_cast<const QMenu *>(widget);
        if (++alike[{widget->metaObject(), widget->parent(), widget->objectName(), menu ? menu->title() : QString()}] <=
            mostAlike)
            continue;
        QStringList actions;
        for (const QAction *action : widget->actions())
            actions.append(action->text());
        const char *owner = widget->parent() ? widget->parent()->metaObject()->className() : "nobody";
        return u"%1 of %2: %3"_s.arg(QString::fromLatin1(widget->metaObject()->className()), QString::fromLatin1(owner),
                                     actions.join(u", "_s));
    }
    return {};
}

/// Dialogs are gone when they were closed, and what widgets keep for the next time does not pile up: menus, lists of
/// boxes, docks.
void tst_StudioMonkey::checkWindows()
{
    const auto describe = [] {
        QStringList names;
        for (const QWidget *widget : QApplication::topLevelWidgets())
            names.append(u"%1 %2 “%3” of %4%5"_s.arg(QString::fromLatin1(widget->metaObject()->className()),
                                                     widget->objectName(), widget->windowTitle(),
                                                     widget->parent() ? widget->parent()->objectName() : u"nobody"_s,
                                                     widget->isVisible() ? u" (visible)"_s : QString()));
        names.sort();
        return names.join(u'\n');
    };
    const auto hasDialog = [] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return std::any_of(widgets.begin(), widgets.end(),
                           [](const QWidget *widget) { return qobject_cast<const QDialog *>(widget) != nullptr; });
    };
    m_monkey->closeOthers(); // what was read or written meanwhile may have told its result
    QTRY_VERIFY2(!hasDialog(), qPrintable(describe()));
    QTRY_VERIFY2(kept().isEmpty(), qPrintable(kept())); // menus go when the events that closed them are done
    QVERIFY(m_studio->window()->isVisible());
}

int main(int argc, char **argv)
{
    const QTemporaryDir home; // where dialogs of the library look and write on their own
    qputenv("HOME", home.path().toLocal8Bit());
    return mvRunWidgetTest(argc, argv, []() -> QObject * { return new tst_StudioMonkey; });
}
#include "tst_StudioMonkey.moc"
