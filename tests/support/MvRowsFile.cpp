// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRowsFile.h"

#include "MvTestFiles.h"

#include <QRegularExpression>

QList<QStringList> MvRowsFile::lines(const QString &name, qsizetype values)
{
    static const QRegularExpression bar(QStringLiteral(" \\|(?= |$)"));
    const QByteArray content = MvTestFiles::contentOf(QStringLiteral(MV_TEST_DATA "/rows/%1.txt").arg(name));
    QList<QStringList> rows;
    for (const QString &line : QString::fromUtf8(content).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#'))
            continue;
        QStringList fields = line.split(bar);
        for (QString &field : fields) {
            field = field.trimmed();
            if (field.size() > 1 && field.startsWith(u'"') && field.endsWith(u'"'))
                field = field.mid(1).chopped(1);
        }
        if (fields.size() == values)
            fields.prepend(fields.first());
        if (fields.size() != values + 1)
            return {};
        rows.append(fields);
    }
    return rows;
}
