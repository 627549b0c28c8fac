// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFileHints.h"

#include <QDir>
#include <QStringList>

MvFileHints::~MvFileHints()
{
    m_stream.flush();
    const QString file = QDir::toNativeSeparators(m_file);
    const QStringList lines = m_text.split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        m_hints << file << ": " << line << '\n';
}
