// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvLogger.h"

#include <QLoggingCategory>

template class MvSingleton<MvLogger>;

namespace {
Q_LOGGING_CATEGORY(actionLog, "mv.action", QtCriticalMsg)
}

void MvLogger::legacyLog(const QString &line)
{
    QString oneLine = line;
    oneLine.replace(u'\n', u' ').replace(u'\r', u' ');
    const Sink &sink = instance().m_sink;
    if (sink)
        sink(oneLine);
    else
        qCInfo(actionLog).noquote() << oneLine;
}

void MvLogger::setSink(Sink sink)
{
    m_sink = std::move(sink);
}
