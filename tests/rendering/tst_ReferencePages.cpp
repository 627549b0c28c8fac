// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvPrintedPage.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvProjectFile.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostExamples = 8; // of a page's differences
const QString heading = u"== "_s;

bool isYear(const QString &layout)
{
    return layout.contains(u"YEAR"_s);
}

/// The pages of a layout that stand in its file: together they have all that a page can have.
QList<MvPageChoice> pagesOf(const QString &layout, const QString &foto)
{
    MvPageChoice plain;
    plain.layout = layout;
    plain.paper = u"A4 landscape"_s;
    plain.place = u"none"_s;
    plain.language = MvLocale(u"de_DE"_s);
    plain.region = u"BY"_s;
    plain.entries = MvPageChoice::None;
    plain.month = isYear(layout) ? QDate(2027, 1, 1) : QDate(2027, 3, 1); // five weeks, with Easter
    plain.colors = u"OFFICE_RED"_s;

    MvPageChoice full = plain;
    full.paper = u"A4"_s;
    full.place = u"top"_s;
    full.foto = foto;
    full.share = 0.45;
    full.entries = MvPageChoice::Fotos;
    full.month = QDate(2026, 8, 1); // six weeks
    full.hasGrid = true;
    full.colors = u"SLATE"_s; // tells alternate weeks apart

    MvPageChoice narrow = plain;
    narrow.paper = u"A5"_s;
    narrow.place = u"right"_s;
    narrow.foto = foto;
    narrow.share = 0.65;
    narrow.language = MvLocale(u"fr_CH"_s);
    narrow.region = u"GE"_s;
    narrow.month = QDate(2027, 2, 1); // four weeks
    narrow.hasWeeks = false;
    narrow.hasGrid = false;
    return isYear(layout) ? QList<MvPageChoice>{plain, full} : QList<MvPageChoice>{plain, full, narrow};
}

QString describe(const QString &layout, const QString &foto)
{
    QString text;
    for (const MvPageChoice &choice : pagesOf(layout, foto)) {
        const QString grid = choice.hasGrid.has_value() ? (*choice.hasGrid ? u", grid"_s : u", no grid"_s) : QString();
        text += heading + choice.describe() + grid + u", "_s + choice.colors + u'\n';
        text += MvPrintedPage(choice, MvBoxFont::family()).describe();
    }
    return text;
}

QFileInfoList olderFiles()
{
    return QDir(QStringLiteral(MV_TEST_DATA "/version1")).entryInfoList({u"*.mvcalendar"_s}, QDir::Files, QDir::Name);
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void write(const QString &path, const QString &text)
{
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
        qFatal("cannot write %s", qPrintable(path));
}

/// The lines, and behind each rectangle of a fill its colour.
QStringList withFills(QStringList lines)
{
    QString fill;
    for (QString &line : lines) {
        if (line.startsWith(u"    "_s))
            line += fill;
        else
            fill = line.mid(line.indexOf(u" fill "_s));
    }
    return lines;
}

/// The lines of one that the other lacks, with their numbers; each counts as often as it is there.
QStringList missingIn(const QStringList &lines, const QStringList &other)
{
    QStringList missing;
    QHash<QString, int> rest;
    for (const QString &line : other)
        ++rest[line];
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (rest[lines.at(i)]-- <= 0)
            missing.append(u"%1: %2"_s.arg(i + 1).arg(lines.at(i).trimmed()));
    }
    return missing;
}

/// What a person needs to see the difference: by page, its first items with their lines in it.
QString difference(const QStringList &expected, const QStringList &actual)
{
    const auto page = [](const QStringList &lines, const QString &title) {
        const qsizetype first = lines.indexOf(title);
        qsizetype end = first + 1;
        while (end < lines.size() && !lines.at(end).startsWith(heading))
            ++end;
        return first < 0 ? QStringList() : withFills(lines.mid(first, end - first));
    };
    const auto some = [](const QString &what, const QStringList &lines) {
        QString text = lines.isEmpty() ? QString() : u"    %1 (%2):\n"_s.arg(what).arg(lines.size());
        for (const QString &line : lines.mid(0, mostExamples))
            text += u"        "_s + line + u'\n';
        return text;
    };
    QStringList titles = expected.filter(QRegularExpression(u'^' + heading));
    for (const QString &title : actual.filter(QRegularExpression(u'^' + heading))) {
        if (!titles.contains(title))
            titles.append(title);
    }
    QString text;
    for (const QString &title : std::as_const(titles)) {
        const QStringList before = page(expected, title);
        const QStringList after = page(actual, title);
        if (before == after)
            continue;
        text += title + u'\n';
        const QString items =
            some(u"expected"_s, missingIn(before, after)) + some(u"painted"_s, missingIn(after, before));
        text += items.isEmpty() ? u"    the same items in another order\n"_s : items;
    }
    return text;
}

} // namespace

/// Every layout as it is printed, and the pages of older project files, item by item, against the text files in
/// tests/rendering/reference. A page that is
/// meant to look otherwise is taken over by tools/accept_pages.
///
///     MV_ACCEPT_PAGES=1    writes the files instead of comparing with them
class tst_ReferencePages : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void filesAreThoseOfTheLayouts();
    void page_data();
    void page();
    void olderFile_data();
    void olderFile();

private:
    void compare(const QString &name, const QString &actual) const;

    QTemporaryDir m_folder;
    QString m_foto;
};

void tst_ReferencePages::initTestCase()
{
    QImage image(90, 50, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    m_foto = m_folder.filePath(u"photo.png"_s);
    QVERIFY(image.save(m_foto));
}

void tst_ReferencePages::filesAreThoseOfTheLayouts()
{
    QStringList expected = MvPageChoice::layouts();
    expected.replaceInStrings(QRegularExpression(u"$"_s), u".txt"_s);
    expected.sort();
    if (!qEnvironmentVariableIsEmpty("MV_ACCEPT_PAGES")) {
        for (const QString &file : QDir(QStringLiteral(MV_REFERENCE)).entryList(QDir::Files)) {
            if (!expected.contains(file))
                QVERIFY(QDir(QStringLiteral(MV_REFERENCE)).remove(file));
        }
        return;
    }
    QCOMPARE(QDir(QStringLiteral(MV_REFERENCE)).entryList(QDir::Files, QDir::Name), expected);
    QCOMPARE(QDir(QStringLiteral(MV_REFERENCE "/version1")).entryList(QDir::Files).size(), olderFiles().size());
}

void tst_ReferencePages::page_data()
{
    const MvRows<QString> row; // layout
    for (const QString &layout : MvPageChoice::layouts())
        row(layout, layout);
}

void tst_ReferencePages::page()
{
    const auto [layout] = MvRows<QString>::current();
    compare(layout, describe(layout, m_foto));
}

void tst_ReferencePages::olderFile_data()
{
    const MvRows<QString> row; // path
    for (const QFileInfo &file : olderFiles())
        row(file.baseName(), file.filePath());
}

/// What older programs have written looks as it did, and is written back as they read it.
void tst_ReferencePages::olderFile()
{
    const auto [path] = MvRows<QString>::current();
    QVERIFY(MvBoxFont::family() == u"MvBox"_s); // which the files name
    const MvProjectFile::Content content = MvProjectFile::read(QFileInfo(path));
    QCOMPARE(content.error, QString());
    const MvCalendarDocument &document = content.document;
    QString text;
    for (int page = 0; page < document.pages().size(); ++page) {
        MvPaintRecorder recorder(nullptr);
        QPainter painter(&recorder);
        MvRenderingRule(MvRenderingRule::Print).encodeInto(painter);
        document.paint(painter, page);
        painter.end();
        text += heading + u"page %1\n"_s.arg(page + 1) + recorder.recording().describe();
    }
    compare(u"version1/"_s + QFileInfo(path).baseName(), text);
    QVERIFY(MvProjectFile::toBytes(document, QFileInfo(path).dir()).contains(R"(version="1")"));
}

void tst_ReferencePages::compare(const QString &name, const QString &actual) const
{
    const QString file = QStringLiteral(MV_REFERENCE "/") + name + u".txt"_s;
    if (!qEnvironmentVariableIsEmpty("MV_ACCEPT_PAGES")) {
        write(file, actual);
        return;
    }
    const QString expected = contentOf(file);
    const QString changed = QStringLiteral(MV_CHANGED_PAGES "/") + name + u".txt"_s;
    QFile::remove(changed);
    if (actual == expected)
        return;
    write(changed, actual);
    const QString message = difference(expected.split(u'\n'), actual.split(u'\n'));
    std::fputs(qPrintable(message), stdout); // longer than what QtTest shows of a failure
    QFAIL(qPrintable(u"see above, or diff -u %1 %2; tools/accept_pages takes the page over"_s.arg(file, changed)));
}

MV_TEST_MAIN(tst_ReferencePages)
#include "tst_ReferencePages.moc"
