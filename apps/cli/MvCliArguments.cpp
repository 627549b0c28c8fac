// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCliArguments.h"

#include "MvNearMiss.h"

#include <algorithm>

using namespace Qt::StringLiterals;

MvOutcome MvCliArguments::parse(const QStringList &arguments, const QList<MvCliOption> &options)
{
    m_values.clear();
    QStringList names;
    for (const MvCliOption &option : options)
        names.append(u"--"_s + option.name);

    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString argument = arguments[i] == u"-o"_s ? u"--output"_s : arguments[i];
        const QString name = argument.section(u'=', 0, 0);
        const qsizetype index = names.indexOf(name);
        if (index < 0 && !argument.startsWith(u'-')) {
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
        } else if (i + 1 < arguments.size() && !names.contains(arguments[i + 1].section(u'=', 0, 0))) {
            m_values[option.name].append(arguments[++i]);
        } else {
            return {tr("nach %1 fehlt der Wert: %2").replace(u"%1"_s, name).replace(u"%2"_s, option.value), {}};
        }
    }
    return {};
}
