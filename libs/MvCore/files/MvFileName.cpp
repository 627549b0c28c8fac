// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvFileName.h"

#include "MvCore/MvStringHelper.h"

using namespace Qt::StringLiterals;

QString MvFileName::cleaned(const QString &text)
{
    QString name;
    for (const QChar c : MvStringHelper::simplifiedName(text)) {
        const bool isRefused = u"/\\:*?\"<>|"_s.contains(c) || (!c.isPrint() && !c.isSurrogate());
        name.append(isRefused ? u'-' : c);
    }
    while (name.startsWith(u'.')) // nothing like ".." either
        name.remove(0, 1);
    return MvStringHelper::beginning(name, longest).trimmed();
}
