// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProgramTest.h"

MvProgramTest::Call MvProgramTest::run(const QString &arguments, const QMap<QString, QString> &environment,
                                       rlim_t memory, const QByteArray &input) const
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto it = environment.cbegin(); it != environment.cend(); ++it)
        variables.insert(it.key(), it.value());
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(m_folder->path());
    if (memory > 0)
        process.setChildProcessModifier(
            [limit = rlimit{memory << 20, memory << 20}] { ::setrlimit(RLIMIT_AS, &limit); });
    process.start(QStringLiteral(MV_PROGRAM), arguments.split(u' ', Qt::SkipEmptyParts));
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, "did not end by itself"};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QByteArray MvProgramTest::entriesFile(const QByteArray &name, const QByteArray &date)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<CalendarEvents>\n"
           "  <CalendarEvent>\n    <Name>" +
           name + "</Name>\n    <DateTime>" + date +
           "T00:00:00</DateTime>\n    <Recurrent>true</Recurrent>\n"
           "    <UUID>{6f1a2a2e-7a53-4f0e-9d55-0d0f6f5b1c01}</UUID>\n  </CalendarEvent>\n</CalendarEvents>\n";
}

QByteArray MvProgramTest::outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() ? process.readAllStandardOutput() : QByteArray();
}
