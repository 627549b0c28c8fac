// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCli.h"
#include "MvCore/MvInitializer.h"
#include "MvCore/MvOutOfMemory.h"
#include "MvCore/MvTranslations.h"
#include "MvFoto/MvImageLoader.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

/// Warnings of the libraries, as lines like the program's own.
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool isOfOurs = !context.category || qstrcmp(context.category, "default") == 0;
    if (type == QtDebugMsg || type == QtInfoMsg || (type == QtWarningMsg && !isOfOurs))
        return;
    if (message.startsWith(QLatin1StringView("QStandardPaths:")))
        return;          // about the desktop session, which nothing here needs
    static QString last; // a file that is read twice has no more to say
    if (message == last)
        return;
    last = message;
    std::fprintf(stderr, "mvcalendar: %s\n", message.simplified().toLocal8Bit().constData());
}

/// Pages are painted once each, so little is kept of their photos: what fills a page of A4, which may be on all pages.
/// And large pieces of memory are given back at once, where the system would keep places for the next ones.
void keepMemoryLow()
{
    MvImageLoader::instance().setCacheLimit(48 << 20);
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 1 << 20);
#endif
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // no window is ever opened
    qInstallMessageHandler(printMessage);

    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("mvcalendar"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MV_VERSION));
    MvTranslations::install(MvTranslations::systemLanguage());
    MvOutOfMemory::install(QCoreApplication::applicationName(), MvCliCommand::Failed);
    MvImageLoader::raiseProcessLimit();
    keepMemoryLow();
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);

    QFile standardOutput;
    QFile standardError;
    if (!standardOutput.open(stdout, QIODevice::WriteOnly) || !standardError.open(stderr, QIODevice::WriteOnly))
        return MvCliCommand::Failed;
    QTextStream out(&standardOutput);
    QTextStream err(&standardError);
    const int exitCode = MvCli().run(QCoreApplication::arguments().mid(1), out, err);
    MvInitializer::instance().teardown();
    return exitCode;
}
