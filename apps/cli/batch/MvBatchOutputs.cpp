// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchOutputs.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// What the placeholders of MvFileNamePattern may become, as an expression and as examples of each form.
struct Placeholder
{
    QChar letter;
    QString shape;
    QStringList examples;
};

const QList<Placeholder> &placeholders()
{
    static const QList<Placeholder> all{
        {u'm', u"(?:\\d\\d(?:-free)?|cover|back)"_s, {u"01"_s, u"12"_s, u"01-free"_s, u"cover"_s, u"back"_s}},
        {u'y', u"\\d{4}"_s, {u"2027"_s}},
        {u'n', u"\\d{2,}"_s, {u"01"_s, u"12"_s, u"2027"_s}},
        {u'r', u"[A-Za-z0-9-]+"_s, {u"BY"_s, u"7"_s}},
        {u'%', u"%"_s, {u"%"_s}}};
    return all;
}

constexpr QChar anyDigit(0xe000); // in what is fixed of a name

const Placeholder *placeholderAt(const QString &name, qsizetype at)
{
    if (name[at] != u'%' || at + 1 >= name.size())
        return nullptr;
    const auto found = std::find_if(placeholders().cbegin(), placeholders().cend(),
                                    [&](const Placeholder &known) { return known.letter == name[at + 1]; });
    return found == placeholders().cend() ? nullptr : &*found;
}

bool areAlike(QChar one, QChar other)
{
    const auto isDigit = [](QChar letter) { return letter == anyDigit || (letter >= u'0' && letter <= u'9'); };
    return one == other || ((one == anyDigit || other == anyDigit) && isDigit(one) && isDigit(other));
}

/// Whether names can be the same as far as both are fixed.
template <typename Iterator>
bool agree(Iterator one, Iterator endOfOne, Iterator other, Iterator endOfOther)
{
    while (one != endOfOne && other != endOfOther && areAlike(*one, *other)) {
        ++one;
        ++other;
    }
    return one == endOfOne || other == endOfOther;
}

} // namespace

QString MvBatchOutputs::folderOf(const QString &pattern)
{
    const QString named = QFileInfo(pattern).path();
    QString &folder = m_folders[named];
    if (folder.isEmpty()) {
        const QString canonical = QFileInfo(named).canonicalFilePath();
        folder = canonical.isEmpty() ? QDir::cleanPath(QFileInfo(named).absoluteFilePath()) : canonical;
    }
    return folder;
}

void MvBatchOutputs::add(int owner, const QString &pattern)
{
    Output output;
    output.owner = owner;
    output.pattern = pattern;
    const QString folder = folderOf(pattern) + u'/';
    const QString name = QFileInfo(pattern).fileName();
    QString shape = QRegularExpression::escape(folder);
    QStringList examples{folder};
    output.beginning = folder;
    bool isLiteral = true;
    bool isFront = true;
    QString core;
    output.front = folder;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const Placeholder *placeholder = placeholderAt(name, i);
        const QStringList texts = placeholder ? placeholder->examples : QStringList{name[i]};
        shape += placeholder ? placeholder->shape : QRegularExpression::escape(name[i]);
        isLiteral = isLiteral && (!placeholder || placeholder->letter == u'%');
        if (isLiteral)
            output.beginning += texts.constFirst();
        const bool isYear = placeholder && placeholder->letter == u'y';
        const bool isOpen = placeholder && !isYear && placeholder->letter != u'%';
        const QString fixed = isYear ? QString(4, anyDigit) : texts.constFirst();
        isFront = isFront && !isOpen;
        if (isFront)
            output.front += fixed;
        core = isOpen || isYear ? QString() : core + fixed;
        output.core = core.size() > output.core.size() ? core : output.core;
        output.back = isOpen ? QString() : output.back + fixed;
        QStringList longer;
        for (const QString &example : std::as_const(examples)) {
            for (const QString &text : texts)
                longer.append(example + text);
        }
        constexpr qsizetype enough = 100;
        examples = longer.mid(0, enough);
        i += placeholder ? 1 : 0;
    }
    output.examples = examples;
    output.shape.setPattern(QRegularExpression::anchoredPattern(shape));
    m_byBeginning[output.beginning].append(int(m_outputs.size()));
    m_outputs.append(output);
}

bool MvBatchOutputs::meet(const Output &one, const Output &other)
{
    const qsizetype same = qMin(one.beginning.size(), other.beginning.size());
    if (!agree(one.back.crbegin(), one.back.crend(), other.back.crbegin(), other.back.crend()) ||
        !agree(one.front.cbegin() + same, one.front.cend(), other.front.cbegin() + same, other.front.cend()))
        return false;
    const auto matches = [](const Output &pattern, const QStringList &examples) {
        return std::any_of(examples.cbegin(), examples.cend(), [&](const QString &example) {
            return example.contains(pattern.core) && pattern.shape.match(example).hasMatch();
        });
    };
    return matches(one, other.examples) || matches(other, one.examples);
}

QList<MvBatchOutputs::Clash> MvBatchOutputs::clashes() const
{
    QList<int> others(m_outputs.size(), -1);
    // names can only meet where the fixed beginning of one is that of the other, or a part of it
    for (int i = 0; i < m_outputs.size(); ++i) {
        const QString &beginning = m_outputs[i].beginning;
        for (qsizetype length = beginning.lastIndexOf(u'/') + 1; length <= beginning.size(); ++length) {
            for (const int other : m_byBeginning.value(beginning.left(length))) {
                const bool isKnown = other <= i && length == beginning.size(); // or it is the same
                if (isKnown || (others[i] >= 0 && others[other] >= 0) || !meet(m_outputs[i], m_outputs[other]))
                    continue;
                others[i] = others[i] < 0 ? other : others[i];
                others[other] = others[other] < 0 ? i : others[other];
            }
        }
    }
    QList<Clash> clashes;
    for (int i = 0; i < m_outputs.size(); ++i) {
        if (others[i] >= 0)
            clashes.append({m_outputs[i].owner, m_outputs[others[i]].owner, m_outputs[i].pattern});
    }
    return clashes;
}
