// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvCliArguments.h"

#include "plain/MvNearMiss.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const QMap<QChar, QString> &MvCliArguments::shortNames()
{
    static const QMap<QChar, QString> names{{u'c', u"country"_s}, {u'e', u"entries"_s}, {u'f', u"format"_s},
                                            {u'j', u"jobs"_s},    {u'l', u"layout"_s},  {u'o', u"output"_s},
                                            {u'p', u"project"_s}, {u'q', u"quiet"_s},   {u'r', u"region"_s},
                                            {u't', u"theme"_s},   {u'v', u"verbose"_s}, {u'y', u"year"_s}};
    return names;
}

QString MvCliArguments::describe(const QString &name)
{
    const QChar letter = shortNames().key(name);
    return (letter.isNull() ? QString() : u"-%1, "_s.arg(letter)) + u"--"_s + name;
}

QString MvCliArguments::longForm(const QString &argument)
{
    if (argument.size() < 2 || argument[0] != u'-' || !shortNames().contains(argument[1]))
        return argument;
    const QString name = u"--"_s + shortNames().value(argument[1]);
    const QString value = argument.mid(2);
    if (value.isEmpty())
        return name;
    return name + u'=' + (value.startsWith(u'=') ? value.mid(1) : value);
}

void MvCliArguments::set(const QString &name, const QString &value, int line)
{
    m_values[name] = {value};
    m_lines[name] = line;
}

MvOutcome MvCliArguments::parse(const QStringList &arguments, const QList<MvCliOption> &options)
{
    m_values.clear();
    m_lines.clear();
    QStringList names;
    for (const MvCliOption &option : options)
        names.append(u"--"_s + option.name);

    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString argument = longForm(arguments[i]);
        const QString name = argument.section(u'=', 0, 0);
        const qsizetype index = names.indexOf(name);
        if (index < 0 && (!argument.startsWith(u'-') || argument == u"-"_s)) {
            const auto isMissing = [this](const MvCliOption &option) { return option.isOperand && !has(option.name); };
            const auto operand = std::find_if(options.cbegin(), options.cend(), isMissing);
            if (operand == options.cend())
                return {tr("„%1“ gehört zu keiner Option").replace(u"%1"_s, argument), {}};
            m_values[operand->name].append(argument);
            continue;
        }
        if (index < 0)
            return {tr("unbekannte Option %1").replace(u"%1"_s, name) + MvNearMiss::describe(name, names), {}};

        const MvCliOption &option = options[index];
        const bool hasInlineValue = argument.contains(u'=');
        if (option.value.isEmpty() && hasInlineValue)
            return {tr("%1 nimmt keinen Wert").replace(u"%1"_s, name), {}};
        if (has(option.name) && !option.isRepeatable)
            return {tr("%1 ist zweimal angegeben").replace(u"%1"_s, name), {}};
        if (option.value.isEmpty()) {
            m_values[option.name].append(QString());
        } else if (hasInlineValue) {
            m_values[option.name].append(argument.section(u'=', 1));
        } else if (i + 1 < arguments.size() && !names.contains(longForm(arguments[i + 1]).section(u'=', 0, 0))) {
            m_values[option.name].append(arguments[++i]);
        } else {
            return {tr("nach %1 fehlt der Wert: %2").replace(u"%1"_s, name).replace(u"%2"_s, option.value), {}};
        }
    }
    return {};
}
