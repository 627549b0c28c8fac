// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchJob.h"

#include "MvProductBase/MvDateRange.h"
#include "MvRenderCommand.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Options of "render" that are about the call, not the calendar, or would make it depend on who calls.
const QStringList &strangers()
{
    static const QStringList names{u"format"_s, u"my-entries"_s, u"no-config"_s, u"quiet"_s, u"report"_s, u"verbose"_s};
    return names;
}

/// As it was written: the numbers of orders can be longer than a double has digits.
QString numberText(const QJsonValue &value)
{
    const qint64 whole = value.toInteger();
    return double(whole) == value.toDouble() ? QString::number(whole)
                                             : QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
}

/// The value as words of a call; nothing for one that cannot be an option's.
QStringList words(const QString &name, const QJsonValue &value)
{
    const QString option = u"--"_s + name;
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? QStringList{option} : QStringList();
    case QJsonValue::Double:
        return {option + u'=' + numberText(value)};
    case QJsonValue::String:
        return {option + u'=' + value.toString()};
    case QJsonValue::Array: {
        QStringList all;
        for (const auto &one : value.toArray())
            all += words(name, one);
        return all;
    }
    default:
        return {};
    }
}

bool isOption(const QJsonValue &value)
{
    if (!value.isArray())
        return !value.isObject() && !value.isUndefined();
    const QJsonArray all = value.toArray();
    return std::all_of(all.cbegin(), all.cend(),
                       [](const QJsonValue &one) { return one.isString() || one.isDouble(); });
}

} // namespace

MvBatchJob MvBatchJob::fromLine(const QByteArray &text, int line)
{
    MvBatchJob job;
    job.line = line;
    QJsonParseError parsed;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parsed);
    if (parsed.error != QJsonParseError::NoError)
        job.error = tr("kein gültiges JSON ab Zeichen %1 (%2)")
                        .replace(u"%1"_s, QString::number(parsed.offset + 1))
                        .replace(u"%2"_s, parsed.errorString());
    else if (!document.isObject())
        job.error = tr("jede Zeile muss ein JSON-Objekt sein, {\"year\": 2027, \"output\": \"kalender.pdf\"}");
    if (!job.error.isEmpty())
        return job;
    job.options = document.object();
    job.readId();
    for (auto option = job.options.constBegin(); job.error.isEmpty() && option != job.options.constEnd(); ++option) {
        if (!isOption(option.value()))
            job.error =
                tr("„%1“: erlaubt sind Text, Zahl, true, false und Listen davon").replace(u"%1"_s, option.key());
    }
    if (!job.error.isEmpty())
        return job;
    const Call call = job.call();
    job.error = call.error;
    if (call.isOk())
        job.completeYear(call.arguments);
    return job;
}

void MvBatchJob::readId()
{
    const QJsonValue value = options.take(u"id"_s);
    if (value.isDouble())
        id = numberText(value);
    else if (value.isString() || value.isUndefined() || value.isNull())
        id = value.toString();
    else
        error = tr("„id“: erlaubt sind Text und Zahl");
}

/// The usual year is another one next year, and a calendar that was made would pass for one that is to be made.
void MvBatchJob::completeYear(const MvCliArguments &given)
{
    const QStringList deciding{u"year"_s, u"from"_s, u"project"_s};
    if (std::none_of(deciding.cbegin(), deciding.cend(), [&](const QString &name) { return given.has(name); }))
        options.insert(u"year"_s, MvDateRange::createDefaultCalendarStart().year());
}

MvBatchJob::Call MvBatchJob::call() const
{
    static const QList<MvCliOption> known = MvRenderCommand().options(); // many lines ask
    Call call;
    QStringList all;
    for (auto option = options.constBegin(); option != options.constEnd(); ++option)
        all += words(option.key(), option.value());
    call.error = call.arguments.parse(all, known).error;
    if (!call.isOk())
        return call;
    for (const QString &name : strangers()) {
        if (call.arguments.has(name))
            call.error = tr("--%1 gibt es in einem Stapel nicht").arg(name);
    }
    if (!call.arguments.has(u"output"_s))
        call.error = tr("es fehlt „output“, der Name der Datei");
    for (const QString &name : {u"output"_s, u"entries"_s}) {
        if (call.arguments.values(name).contains(u"-"_s))
            call.error = tr("„%1“: in einem Stapel sind nur Dateien erlaubt").arg(name);
    }
    return call;
}

QString MvBatchJob::name() const
{
    return id.isEmpty() ? outputs().value(0) : id;
}
