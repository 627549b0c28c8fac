// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

/// Finds the texts that lines of a page are parts of, though they are divided, shortened, joined by commas or printed
/// in other cases.
class MvPdfWholeTexts
{
public:
    MvPdfWholeTexts() = default;
    explicit MvPdfWholeTexts(const QStringList &texts);

    const QStringList &texts() const { return m_texts; }

    /// The number of the text that the line goes on with, -1 for none. A line with several gives the first of them.
    int add(const QString &line);

    bool isPainted(int text) const { return m_isPainted.value(text); }
    /// Whether a line had several.
    bool hasJoinedLines() const { return m_hasJoinedLines; }

private:
    int begin(const QString &letters) const;

    QStringList m_texts;
    QStringList m_rest; // letters that no line had yet
    QList<bool> m_isPainted;
    int m_last = -1;
    bool m_hasJoinedLines = false;
};
