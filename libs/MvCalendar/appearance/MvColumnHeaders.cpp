// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvColumnHeaders.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString separator = u"$$"_s;
const QString dollar = u"$\u2060"_s; // one that is no part of a separator

QString joined(const QStringList &headers)
{
    static const QRegularExpression atRisk(u"\\$(?=[$\u2060]|\\z)"_s);
    QStringList parts;
    for (const QString &header : headers)
        parts.append(QString(header).replace(atRisk, dollar));
    return parts.join(separator);
}

} // namespace

MvColumnHeaders::MvColumnHeaders(const QString &text)
    : m_text(text)
    , m_list(text.split(separator, Qt::SkipEmptyParts))
{
    m_list.replaceInStrings(dollar, u"$"_s);
}

MvColumnHeaders::MvColumnHeaders(const QStringList &headers)
    : MvColumnHeaders(joined(headers))
{}
