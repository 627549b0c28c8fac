// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRenderTargets.h"

#include "MvInterruption.h"
#include "MvPressOptions.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPictureExporter.h"
#include "MvProject/MvSheetPlan.h"
#include "MvSheetOptions.h"
#include "plain/MvCliValues.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualDpi = 300;
constexpr int mostJobs = 64;
const QString standardOutput = u"-"_s;

/// Tells a person who asked for it how far the pages are.
class Progress : public MvExportObserver
{
public:
    Progress(const QString &name, QTextStream *stream)
        : m_name(name)
        , m_stream(stream)
    {}

    void pagesDone(int done, int total) override
    {
        if (m_stream) {
            *m_stream
                << MvRenderTargets::tr("%1: Seite %2 von %3").arg(m_name, QString::number(done), QString::number(total))
                << '\n';
            m_stream->flush();
        }
    }
    bool isCancelled() const override { return MvInterruption::isAsked(); }

private:
    QString m_name;
    QTextStream *m_stream;
};

} // namespace

QList<MvCliOption> MvRenderTargets::options()
{
    return MvPressOptions::options() + MvSheetOptions::options() +
           QList<MvCliOption>{
               {u"dpi"_s, tr("ZAHL"), tr("Punkte je Zoll der Bilder (300)")},
               {u"jobs"_s, tr("ZAHL"), tr("so viele Seiten zugleich (je Kern eine, höchstens vier)")},
               {u"overwrite"_s,
                {},
                tr("Dateien ersetzen, die es schon gibt (so, wenn nichts anderes eingestellt ist)")},
               {u"no-overwrite"_s, {}, tr("nichts ersetzen: gibt es eine der Dateien schon, wird keine geschrieben")},
               {u"format"_s, u"pdf|html|png|jpg|tif|svg"_s, tr("was -o - ausgibt (pdf)")},
               {u"output"_s, tr("DATEI"),
                tr(".pdf, .html, oder .png, .jpg, .tif und .svg je Seite; %m Monat, %y Jahr, %n Seite, %r Region, auch "
                   "für ein "
                   ".pdf je Seite; - ist die Standardausgabe; mehrfach erlaubt"),
                true}};
}

MvRenderTargets::MvRenderTargets(MvCliValues &values, const MvCliArguments &arguments)
    : m_dpi(values.number(u"dpi"_s, MvPictureExporter::minimumDpi, MvPictureExporter::maximumDpi, usualDpi))
    , m_replaces(!values.has(u"no-overwrite"_s))
    , m_press(MvPressOptions::settings(values, arguments))
    , m_sheets(MvSheetOptions::settings(values, arguments))
{
    m_jobs = values.number(u"jobs"_s, 1, mostJobs, 0);
    const QString format = values.choice(u"format"_s, {u"pdf"_s, u"html"_s, u"png"_s, u"jpg"_s, u"tif"_s, u"svg"_s});
    values.exclude(u"overwrite"_s, u"no-overwrite"_s);
    QStringList paths = arguments.values(u"output"_s);
    m_name = paths.value(0);
    if (paths.isEmpty())
        values.setError(tr("es fehlt -o DATEI; erlaubt sind Namen auf .pdf, .html, .png, .jpg, .tif oder .svg, und -"));
    if (paths.contains(standardOutput)) {
        if (paths.size() > 1)
            values.setError(tr("-o - steht allein: die Standardausgabe kann nur eine Datei sein"));
        values.exclude(u"output"_s, u"report"_s);
        m_name = tr("Standardausgabe");
        m_isStandardOutput = true;
        paths = {QDir::temp().filePath(u"kalender."_s + format)};
    } else if (values.has(u"format"_s)) {
        values.setError(tr("--format sagt, was -o - ausgibt; bei einer Datei sagt es ihr Name"));
    }
    for (const QString &path : std::as_const(paths))
        m_targets.append(target(path));
    const bool isAsked = m_press.isForPress() && arguments.line(u"press"_s) == 0; // not only set for all calls
    const bool hasPdf =
        std::any_of(m_targets.cbegin(), m_targets.cend(), [](const auto &target) { return target.isPdf(); });
    if (m_sheets.areSheets() && !hasPdf)
        values.setError(tr("--%1 legt die Seiten eines PDF auf Blätter; %2 ist keines")
                            .replace(u"%2"_s, m_name)
                            .replace(u"%1"_s, values.has(u"tiles"_s) ? u"tiles"_s : u"n-up"_s));
    if (isAsked && !hasPdf)
        values.setError(tr("--press macht ein PDF für die Druckerei; %1 ist keines").replace(u"%1"_s, m_name));
}

MvExportTarget MvRenderTargets::target(const QString &path) const
{
    MvExportTarget target(path, MvExportTarget::Pdf::OneOfEachPage);
    target.setJobs(m_jobs);
    target.setPress(m_press);
    target.setSheets(m_sheets);
    return target;
}

MvCliCommand::Result MvRenderTargets::check(const MvPageSource &pages) const
{
    if (isStandardOutput() && isatty(STDOUT_FILENO))
        return {MvCliCommand::Misused, tr("-o -: was herauskommt, liest kein Mensch; leiten Sie es in eine Datei")};
    if (isStandardOutput() && m_targets.constFirst().files(pages).paths.size() != 1)
        return {MvCliCommand::Misused,
                tr("-o -: %1 Seiten sind ebenso viele Bilder; wählen Sie eine mit --pages, oder --format pdf")
                    .arg(pages.pages.size())};
    for (const MvExportTarget &target : m_targets)
        for (const MvOutcome &checked : {MvOutcome(target.files(pages)), target.checkSheets(pages)})
            if (!checked.isOk())
                return {MvCliCommand::Misused, checked.error};
    for (const MvExportTarget &target : m_targets) {
        if (const MvOutcome place = target.checkPlace(); !place.isOk())
            return {MvCliCommand::Failed, place.error};
        if (const MvOutcome size = target.checkSize(pages.format, m_dpi); !size.isOk())
            return {MvCliCommand::Failed, u"%1: %2"_s.arg(isStandardOutput() ? m_name : target.path(), size.error)};
        const QStringList files = target.files(pages).paths;
        for (const QString &file : files) {
            if (!m_replaces && !isStandardOutput() && QFile::exists(file))
                return {MvCliCommand::Failed, tr("%1 gibt es schon; --overwrite ersetzt es").replace(u"%1"_s, file)};
        }
    }
    if (const QString path = writtenTwice(pages); !path.isEmpty())
        return {MvCliCommand::Misused, tr("%1 würde zweimal geschrieben").arg(path)};
    return {};
}

/// A file that two targets would write, in whatever way they name it; empty when there is none.
QString MvRenderTargets::writtenTwice(const MvPageSource &pages) const
{
    QSet<QString> known;
    for (const MvExportTarget &target : m_targets) {
        const QStringList files = target.files(pages).paths;
        for (const QString &file : files) {
            const QFileInfo info(file);
            const QString whole = QFileInfo(info.path()).canonicalFilePath() + u'/' + info.fileName();
            if (known.contains(whole))
                return file;
            known.insert(whole);
        }
    }
    return {};
}

void MvRenderTargets::hintAtSheets(const MvPageSource &pages, QTextStream &hints) const
{
    if (m_sheets.areSheets())
        hints << MvSheetPlan(m_sheets, pages.format.trimSize(), int(pages.pages.size())).description() << '\n';
}

MvExportResult MvRenderTargets::write(const MvPageSource &pages, const MvCliCommand::Streams &streams) const
{
    if (isStandardOutput())
        return writeToStandardOutput(pages, streams);
    MvExportResult all;
    for (const MvExportTarget &target : m_targets) {
        Progress progress(target.path(), streams.progress);
        const MvExportResult one = target.write(pages, m_dpi, &progress);
        all.files += one.files;
        all.missingFotos += one.missingFotos;
        if (all.inks.isEmpty()) // those of another file are the same
            all.inks = one.inks;
        all.error = one.error;
        all.isCancelled = one.isCancelled;
        if (!all.isOk())
            break;
    }
    return all;
}

/// By way of a file. Nothing is left behind when a signal ends the program, or whoever reads goes away.
MvExportResult MvRenderTargets::writeToStandardOutput(const MvPageSource &pages,
                                                      const MvCliCommand::Streams &streams) const
{
    MvInterruption::watch(MvInterruption::Again::EndsTheProgram);
    QTemporaryDir folder;
    const QString name = QFileInfo(m_targets.constFirst().path()).fileName();
    Progress progress(m_name, streams.progress);
    MvExportResult result = folder.isValid() ? target(folder.filePath(name)).write(pages, m_dpi, &progress)
                                             : MvExportResult::failed(folder.errorString());
    QFile file(result.files.value(0).filePath());
    if (result.isOk() && !file.open(QIODevice::ReadOnly))
        result.error = file.errorString();
    folder.remove();
    MvInterruption::endWatch();
    if (result.isOk())
        result.error = copy(file, streams.out).error;
    return result;
}

MvOutcome MvRenderTargets::copy(QFile &source, QTextStream &out)
{
    out.flush();
    QIODevice *device = out.device();
    while (device && !source.atEnd()) {
        constexpr qint64 portion = 1 << 20;
        const QByteArray bytes = source.read(portion);
        if (bytes.isEmpty() || device->write(bytes) != bytes.size())
            device = nullptr;
    }
    if (auto *written = qobject_cast<QFileDevice *>(device); !written || !written->flush())
        return {tr("die Ausgabe lässt sich nicht schreiben"), {}};
    return {};
}
