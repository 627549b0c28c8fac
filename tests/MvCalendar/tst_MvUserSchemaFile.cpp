// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvUserSchemaFile.h"
#include "MvCore/MvFileGuard.h"

using namespace Qt::StringLiterals;

namespace {

using Area = MvUserSchemaFile::Area;

Area area(const QString &id, const QString &color)
{
    QDomDocument document;
    QDomElement element = document.createElement(u"calendararea"_s);
    document.appendChild(element);
    element.setAttribute(u"id"_s, id);
    element.setAttribute(u"color"_s, color);
    return {id, element};
}

/// "1=red 2=blue" and back.
MvUserSchemaFile::Areas areas(const QString &text)
{
    MvUserSchemaFile::Areas list;
    for (const QString &one : text.split(u' ', Qt::SkipEmptyParts))
        list.append(area(one.section(u'=', 0, 0), one.section(u'=', 1)));
    return list;
}

QString text(const MvUserSchemaFile::Areas &list)
{
    QStringList parts;
    for (const Area &one : list)
        parts.append(one.id + u'=' + one.element.attribute(u"color"_s));
    return parts.join(u' ');
}

/// One running program.
class Program : public MvUserSchemaFile
{
public:
    Program()
        : MvUserSchemaFile(u"schemata.xml"_s, u"schemata"_s, [](const QDomElement &element) {
            const QString id = element.attribute(u"id"_s);
            return id.isEmpty() ? std::nullopt : std::optional(area(id, element.attribute(u"color"_s)));
        })
    {
        read();
    }

    Saved keep(const QString &mine)
    {
        return save(areas(mine), [fresh = 90](Area &one) mutable {
            one.id = QString::number(fresh++);
            one.element.setAttribute(u"id"_s, one.id);
        });
    }
};

} // namespace

class tst_MvUserSchemaFile : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void twoPrograms_data() { MvRows<QString, QString, QString, QString>().read(u"schemas-of-two-programs"_s); }
    void twoPrograms();
    void setsAside_data();
    void setsAside();
    void writesUnderItsLockOnly();

private:
    QStringList besides() const { return Program().file().dir().entryList({u"schemata.unlesbar*"_s}, QDir::Files); }
};

void tst_MvUserSchemaFile::cleanup()
{
    QDir(Program().file().absolutePath()).removeRecursively();
}

void tst_MvUserSchemaFile::twoPrograms()
{
    const auto [before, theirs, mine, after] = MvRows<QString, QString, QString, QString>::current();
    QVERIFY(Program().keep(before).isOk());
    Program other;
    Program here;
    QVERIFY(other.keep(theirs).isOk());
    const MvUserSchemaFile::Saved saved = here.keep(mine);
    QCOMPARE(saved.error, QString());
    QCOMPARE(text(saved.areas), after);
    QCOMPARE(text(here.keep(after).areas), after); // and stays so
    QCOMPARE(text(other.keep(theirs).areas).split(u' ').size(),
             after.split(u' ').size()); // the other one lacks nothing
}

void tst_MvUserSchemaFile::setsAside_data()
{
    const MvRows<QByteArray, QString> row; // content, after
    row("cut", QByteArray("<schemata><calendararea id='1'"), u"5=new"_s);
    row("foreign", QByteArray("<layouts/>"), u"5=new"_s);
    row("an id is damaged",
        QByteArray("<schemata><calendararea id='1' color='red'/><calendararea "
                   "color='blue'/></schemata>"),
        u"5=new 1=red"_s);
    row("an id twice",
        QByteArray("<schemata><calendararea id='1' color='red'/><calendararea id='1' "
                   "color='blue'/></schemata>"),
        u"5=new 1=red"_s);
}

void tst_MvUserSchemaFile::setsAside()
{
    const auto [content, after] = MvRows<QByteArray, QString>::current();
    QVERIFY(Program().keep(u"1=red"_s).isOk());
    Program here;
    here.keep(u""_s);
    QVERIFY(MvTestFiles::write(here.file().filePath(), content));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"schemata.xml.*Der alte Stand liegt in"_s));
    QCOMPARE(text(here.keep(u"5=new"_s).areas), after);
    QCOMPARE(MvTestFiles::contentOf(here.file().dir().filePath(besides().value(0))), content);
    here.keep(u"5=new"_s);
    QCOMPARE(besides().size(), 1); // once is enough
}

void tst_MvUserSchemaFile::writesUnderItsLockOnly()
{
    Program here;
    QVERIFY(here.keep(u"1=red"_s).isOk());
    {
        const MvFileGuard other(here.file());
        QVERIFY(!here.keep(u"2=blue"_s).error.isEmpty());
    }
    QCOMPARE(text(here.keep(u"1=red"_s).areas), u"1=red"_s);
}

MV_TEST_MAIN(tst_MvUserSchemaFile)
#include "tst_MvUserSchemaFile.moc"
