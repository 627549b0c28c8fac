// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCli.h"
#include "MvCore/MvBackground.h"
#include "MvCore/MvInitializer.h"
#include "MvCore/MvOutOfMemory.h"
#include "MvCore/MvProcessMemory.h"
#include "MvCore/MvProcessTimeZone.h"
#include "MvCore/MvTranslations.h"
#include "MvFoto/MvImageLoader.h"

#include <QFile>
#include <QGuiApplication>

#include <cstdio>
#include <memory>

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

/// Fonts and pictures are there for pages alone: it takes as long to start them as to print a list.
std::unique_ptr<QCoreApplication> createApplication(const MvCli &program, int &argc, char **argv)
{
    if (program.hasPages({QString::fromLocal8Bit(argc > 1 ? argv[1] : "")}))
        return std::make_unique<QGuiApplication>(argc, argv);
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // no window is ever opened
    MvProcessTimeZone::askOnce();
    qInstallMessageHandler(printMessage);

    const MvCli program;
    const std::unique_ptr<QCoreApplication> application = createApplication(program, argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("mvcalendar"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MV_VERSION));
    MvTranslations::install(MvTranslations::systemLanguage());
    MvOutOfMemory::install(QCoreApplication::applicationName(), MvCliCommand::Failed);
    MvImageLoader::raiseProcessLimit();
    MvProcessMemory::giveBackAtOnce();
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);

    QFile standardOutput;
    QFile standardError;
    if (!standardOutput.open(stdout, QIODevice::WriteOnly) || !standardError.open(stderr, QIODevice::WriteOnly))
        return MvCliCommand::Failed;
    QTextStream out(&standardOutput);
    QTextStream err(&standardError);
    if (qobject_cast<QGuiApplication *>(application.get()) && !MvBackground::keepThreads()) {
        err << "mvcalendar: " << MvBackground::noThreads() << '\n';
        return MvCliCommand::Failed;
    }
    const int exitCode = program.run(QCoreApplication::arguments().mid(1), out, err);
    MvInitializer::instance().teardown();
    return exitCode;
}
