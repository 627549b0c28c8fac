// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchResult.h"

#include <QJsonDocument>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// In the order of the states.
const QStringList &stateNames()
{
    static const QStringList names{u"done"_s,    u"skipped"_s, u"failed"_s,     u"refused"_s,
                                   u"timeout"_s, u"crashed"_s, u"interrupted"_s};
    return names;
}

} // namespace

QJsonObject MvBatchResult::toJson() const
{
    QJsonObject object = facts;
    object.insert(u"line"_s, line);
    object.insert(u"id"_s, id);
    object.insert(u"state"_s, stateNames().at(int(state)));
    object.insert(u"reason"_s, reason);
    return object;
}

QByteArray MvBatchResult::toLine() const
{
    return QJsonDocument(toJson()).toJson(QJsonDocument::Compact) + '\n';
}

std::optional<MvBatchResult> MvBatchResult::fromJson(const QJsonObject &object)
{
    MvBatchResult result;
    result.facts = object;
    const qsizetype state = stateNames().indexOf(result.facts.take(u"state"_s).toString());
    if (state < 0 || !object.contains(u"line"_s))
        return {};
    result.state = State(state);
    result.line = result.facts.take(u"line"_s).toInt();
    result.id = result.facts.take(u"id"_s).toString();
    result.reason = result.facts.take(u"reason"_s).toString();
    return result;
}

std::optional<MvBatchResult> MvBatchResult::fromLine(const QByteArray &line)
{
    const QJsonDocument document = QJsonDocument::fromJson(line);
    return document.isObject() ? fromJson(document.object()) : std::nullopt;
}
