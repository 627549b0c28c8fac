// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvXMLKeywords.h"

#include <QMetaEnum>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

struct AlignmentWord
{
    QString word;
    Qt::Alignment value;
};

// the first word for a value is the one that is written
const QList<AlignmentWord> &alignmentWords()
{
    static const QList<AlignmentWord> words = {
        {u"AlignCenter"_s, Qt::AlignCenter},     {u"AlignLeft"_s, Qt::AlignLeft},
        {u"AlignRight"_s, Qt::AlignRight},       {u"AlignHCenter"_s, Qt::AlignHCenter},
        {u"AlignJustify"_s, Qt::AlignJustify},   {u"AlignTop"_s, Qt::AlignTop},
        {u"AlignBottom"_s, Qt::AlignBottom},     {u"AlignVCenter"_s, Qt::AlignVCenter},
        {u"AlignBaseline"_s, Qt::AlignBaseline},
    };
    return words;
}

template <class E>
E keyValue(const QString &text, E defaultValue)
{
    bool ok = false;
    const int value = QMetaEnum::fromType<E>().keyToValue(text.trimmed().toLatin1().constData(), &ok);
    return ok ? E(value) : defaultValue;
}

template <class E>
QString keyName(E value)
{
    return QString::fromLatin1(QMetaEnum::fromType<E>().valueToKey(int(value)));
}

} // namespace

Qt::Alignment MvXMLKeywords::alignment(const QString &text)
{
    static const QRegularExpression separators(u"[|,\\s]+"_s);
    Qt::Alignment result;
    const QStringList words = text.split(separators, Qt::SkipEmptyParts);
    for (const QString &word : words) {
        for (const AlignmentWord &known : alignmentWords()) {
            if (known.word.compare(word, Qt::CaseInsensitive) == 0)
                result |= known.value;
        }
    }
    return result ? result : Qt::Alignment(Qt::AlignCenter);
}

QString MvXMLKeywords::alignmentText(Qt::Alignment alignment)
{
    QStringList words;
    Qt::Alignment rest = alignment;
    for (const AlignmentWord &known : alignmentWords()) {
        if ((rest & known.value) == known.value) {
            words.append(known.word);
            rest &= ~known.value;
        }
    }
    return words.join(u'|');
}

QFont::Capitalization MvXMLKeywords::capitalization(const QString &text)
{
    return keyValue(text, QFont::MixedCase);
}

QString MvXMLKeywords::capitalizationText(QFont::Capitalization capitalization)
{
    return keyName(capitalization);
}

QFont::Weight MvXMLKeywords::weight(const QString &text)
{
    return keyValue(text, QFont::Normal);
}

QString MvXMLKeywords::weightText(QFont::Weight weight)
{
    return keyName(weight);
}
