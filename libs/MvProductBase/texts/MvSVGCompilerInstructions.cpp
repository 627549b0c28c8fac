// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvSVGCompilerInstructions.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = MvSVGCompilerInstructions::Kind;

constexpr qsizetype longestName = 8; // of a placeholder

const QHash<QString, Kind> &placeholders()
{
    static const QHash<QString, Kind> kinds = {
        {u"date"_s, Kind::Date}, {u"month"_s, Kind::Month},       {u"year"_s, Kind::Year},
        {u"week"_s, Kind::Week}, {u"holidays"_s, Kind::Holidays}, {u"entries"_s, Kind::Entries},
    };
    return kinds;
}

} // namespace

MvSVGCompilerInstructions::MvSVGCompilerInstructions(const QString &text)
{
    qsizetype literalStart = 0;
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', open + 1)) {
        // a name is short: artwork may hold many braces, and none of them closes far away
        const QString name = text.mid(open + 1, longestName + 1);
        const qsizetype length = name.indexOf(u'}');
        const Kind kind = length < 0 ? Kind::Literal : placeholders().value(name.first(length), Kind::Literal);
        if (kind == Kind::Literal)
            continue;
        appendLiteral(QStringView(text).mid(literalStart, open - literalStart));
        m_instructions.append({kind, QString()});
        literalStart = open + 1 + length + 1;
    }
    appendLiteral(QStringView(text).mid(literalStart));
}

void MvSVGCompilerInstructions::appendLiteral(QStringView text)
{
    if (!text.isEmpty())
        m_instructions.append({Kind::Literal, text.toString()});
}

bool MvSVGCompilerInstructions::isConstant() const
{
    return std::all_of(m_instructions.cbegin(), m_instructions.cend(),
                       [](const Instruction &instruction) { return instruction.kind == Kind::Literal; });
}
