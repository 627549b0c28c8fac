// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCompletion.h"

#include "MvProductBase/MvCalendariumHolidayCalculator.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/MvPressProfile.h"
#include "MvProject/MvThemeRegistry.h"
#include "MvSchemaNames.h"
#include "plain/MvCliValues.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QList<MvCompletion::Candidate> schemata(MvSchemaNames::Kind kind)
{
    QList<MvCompletion::Candidate> found;
    for (const MvSchemaNames::Schema &schema : MvSchemaNames::schemata(kind))
        found.append({schema.id, schema.name});
    return found;
}

/// The country that the words name, the usual one if none.
MvLocale countryIn(const QStringList &words)
{
    QStringList said;
    for (qsizetype i = 0; i + 1 < words.size(); ++i) {
        if (words[i] == u"--country"_s || words[i] == u"-c"_s)
            said = {words[i], words[i + 1]};
    }
    MvCliArguments arguments;
    arguments.parse(said, {MvCliCommand::countryOption()});
    return MvCliValues(arguments).country();
}

/// Options and their values apart, whether they were typed as one word, or taken apart by the shell: "--country=A" and
/// "--country", "=", "A" are "--country", "A". What the last word begins with beside the value is the prefix.
QStringList apart(const QStringList &typed, QString &prefix)
{
    QStringList words;
    for (const QString &word : typed) {
        const QString whole = MvCliArguments::longForm(word);
        prefix.clear();
        if (word == u"="_s) {
            if (&word == &typed.constLast())
                words.append(QString());
        } else if (whole.startsWith(u"--"_s) && whole.contains(u'=')) {
            words += {whole.section(u'=', 0, 0), whole.section(u'=', 1)};
            prefix = word.chopped(words.constLast().size());
        } else {
            words.append(word);
        }
    }
    return words;
}

} // namespace

QList<MvCompletion::Candidate> MvCompletion::candidates(const QStringList &words) const
{
    QList<Candidate> found;
    if (words.size() <= 1 || (words.size() == 2 && words.constFirst() == u"help"_s)) {
        for (const auto &command : m_commands)
            found.append({command->name(), command->summary()});
        return found;
    }
    const auto command = std::find_if(m_commands.cbegin(), m_commands.cend(),
                                      [&](const auto &known) { return known->name() == words.constFirst(); });
    if (command == m_commands.cend())
        return {};
    const QList<MvCliOption> options = (*command)->options() + MvCliCommand::commonOptions();
    const QString before = words.size() > 2 ? words[words.size() - 2] : QString();
    for (const MvCliOption &option : options) {
        const bool isNamed = before == u"--"_s + option.name ||
                             (!before.isEmpty() && MvCliArguments::describe(option.name).startsWith(before + u','));
        if (isNamed && !option.value.isEmpty())
            return valuesOf(option, words);
    }
    const auto isAction = [](const MvCliOption &option) { return option.isOperand && option.value.contains(u'|'); };
    const auto action = std::find_if(options.cbegin(), options.cend(), isAction);
    if (words.size() == 2 && !words.constLast().startsWith(u'-') && action != options.cend())
        return valuesOf(*action, words);
    return words.constLast().startsWith(u'-') || words.constLast().isEmpty() ? optionsOf(options, words) : found;
}

QList<MvCompletion::Candidate> MvCompletion::optionsOf(const QList<MvCliOption> &options, const QStringList &words)
{
    QList<Candidate> found;
    for (const MvCliOption &option : options) {
        if (option.isRepeatable || !words.contains(u"--"_s + option.name))
            found.append({u"--"_s + option.name, option.help});
    }
    return found;
}

QList<MvCompletion::Candidate> MvCompletion::valuesOf(const MvCliOption &option, const QStringList &words)
{
    QList<Candidate> found;
    if (option.name == u"layout"_s)
        return schemata(MvSchemaNames::Kind::Layouts);
    if (option.name == u"colors"_s)
        return schemata(MvSchemaNames::Kind::Colors);
    if (option.name == u"theme"_s) {
        for (const MvCalendarTheme &theme : MvThemeRegistry::instance().themes())
            found.append({theme.id(), theme.name()});
    } else if (option.name == u"page"_s || option.name == u"tiles"_s || option.name == u"sheet"_s) {
        for (const QString &name : MvPageFormat::names())
            found.append({name, {}});
    } else if (option.name == u"press"_s) {
        for (const QString &name : MvPressProfile::names())
            found.append({name, {}});
    } else if (option.value.contains(u'|')) {
        for (const QString &word : option.value.split(u'|'))
            found.append({word.trimmed(), {}});
    } else {
        return places(option.name, words);
    }
    return found;
}

QList<MvCompletion::Candidate> MvCompletion::places(const QString &option, const QStringList &words)
{
    QList<Candidate> found;
    const MvCalendariumHolidayCalculator &calculator = MvCalendariumHolidayCalculator::instance();
    if (option == u"country"_s) {
        for (const MvLocale &locale : calculator.availableLanguages()) {
            const auto isSame = [&](const Candidate &known) { return known.text == locale.country(); };
            if (std::none_of(found.cbegin(), found.cend(), isSame))
                found.append({locale.country(), locale.visibleName().section(u" ("_s, 0, 0)});
        }
    } else if (option == u"region"_s) {
        const MvLocale country = countryIn(words);
        for (const QString &code : calculator.availableProvinces(country))
            found.append({code, calculator.provinceName(country, code)});
    } else if (option == u"language"_s) {
        const QString country = countryIn(words).country();
        for (const MvLocale &locale : calculator.availableLanguages()) {
            if (locale.country() == country)
                found.append({locale.language(), locale.visibleName()});
        }
    }
    return found;
}

void MvCompletion::print(const QStringList &words, QTextStream &out) const
{
    QString prefix;
    const QStringList all = apart(words, prefix);
    const QString typed = all.isEmpty() ? QString() : all.constLast();
    for (const Candidate &candidate : candidates(all)) {
        if (candidate.text.startsWith(typed, Qt::CaseInsensitive))
            out << prefix << candidate.text << '\t' << candidate.help << '\n';
    }
}
