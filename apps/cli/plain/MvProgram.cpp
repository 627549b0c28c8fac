// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvProgram.h"

#include "MvCore/MvInitializer.h"
#include "MvCore/MvOutOfMemory.h"
#include "MvCore/MvProcessMemory.h"
#include "MvCore/MvProcessTimeZone.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvCore/MvTranslations.h"
#include "plain/MvCli.h"

#include <QFile>
#include <QMutex>

#include <cstdio>

namespace {

/// Warnings of the libraries, as lines like the program's own; from any thread.
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isOfOurs = !context.category || qstrcmp(context.category, "default") == 0;
    if (type == QtDebugMsg || type == QtInfoMsg || (type == QtWarningMsg && !isOfOurs))
        return;
    if (MvProgram::isNoise(message))
        return;
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    static QString last; // a file that is read twice has no more to say
    if (message == last)
        return;
    last = message;
    std::fprintf(stderr, "mvcalendar: %s\n", message.simplified().toLocal8Bit().constData());
}

} // namespace

void MvProgram::prepare()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // no window is ever opened
    MvProcessTimeZone::askOnce();
    qInstallMessageHandler(printMessage);
}

bool MvProgram::isNoise(const QString &warning)
{
    return warning.startsWith(QLatin1StringView("QStandardPaths:")) ||
           warning.trimmed().startsWith(QLatin1StringView("OpenType support missing"));
}

QStringList MvProgram::arguments(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int MvProgram::run(const MvCli &cli)
{
    QCoreApplication::setApplicationName(QStringLiteral("mvcalendar"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MV_VERSION));
    MvTranslations::install(MvTranslations::systemLanguage());
    MvOutOfMemory::install(QCoreApplication::applicationName(), MvCliCommand::Failed);
    MvProcessMemory::giveBackAtOnce();
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);

    QFile standardOutput;
    QFile standardError;
    if (!standardOutput.open(stdout, QIODevice::WriteOnly) || !standardError.open(stderr, QIODevice::WriteOnly))
        return MvCliCommand::Failed;
    QTextStream out(&standardOutput);
    QTextStream err(&standardError);
    const int exitCode = cli.run(QCoreApplication::arguments().mid(1), out, err);
    MvInitializer::instance().teardown();
    return exitCode;
}
