// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfWholeTexts.h"

namespace {

/// Without what comes and goes where texts are divided, joined or shortened.
QString lettersOf(const QString &text)
{
    QString letters;
    for (const QChar c : text) {
        const bool isLetter = !c.isSpace() && c != u'-' && c != QChar(0x2010) && c != u',' && c != QChar(0x2026) &&
                              c.category() != QChar::Other_Format;
        if (isLetter)
            letters += c;
    }
    return letters.toCaseFolded();
}

} // namespace

MvPdfWholeTexts::MvPdfWholeTexts(const QStringList &texts)
    : m_texts(texts)
    , m_isPainted(texts.size())
{
    for (const QString &text : texts)
        m_rest.append(lettersOf(text));
}

/// The text that the letters go on with, alone or with those after it.
int MvPdfWholeTexts::begin(const QString &letters) const
{
    const auto fits = [&](qsizetype first) {
        QStringView left(letters);
        for (qsizetype text = first; text < m_rest.size(); ++text) {
            if (QStringView(m_rest[text]).startsWith(left))
                return !m_rest[text].isEmpty();
            if (m_rest[text].isEmpty() || !left.startsWith(m_rest[text]))
                return false;
            left = left.mid(m_rest[text].size());
        }
        return false;
    };
    if (m_last >= 0 && fits(m_last))
        return m_last;
    for (int text = 0; text < m_rest.size(); ++text) {
        if (fits(text))
            return text;
    }
    return -1;
}

int MvPdfWholeTexts::add(const QString &line)
{
    const QString letters = lettersOf(line);
    const int first = letters.isEmpty() ? m_last : begin(letters); // an ellipsis belongs to what is before it
    if (first < 0)
        return -1;
    m_isPainted[first] = true;
    m_last = first;
    for (qsizetype left = letters.size(); left > 0; ++m_last) {
        const qsizetype taken = std::min(left, m_rest[m_last].size());
        m_rest[m_last].remove(0, taken);
        left -= taken;
        if (left == 0)
            break;
        m_hasJoinedLines = true;
        m_isPainted[m_last + 1] = true;
    }
    return first;
}
