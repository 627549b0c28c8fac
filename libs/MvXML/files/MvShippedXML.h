// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/MvXMLElement.h"

#include <QByteArrayView>

#include <utility>
#include <vector>

/// Reads the elements of a file that is part of the program: without checks, in a tenth of the time that any file
/// takes. It has elements, attributes, comments and texts between them, in UTF-8, and is known to be in order.
class MvShippedXML
{
public:
    explicit MvShippedXML(QByteArrayView text)
        : m_text(text)
    {}

    /// The next element from here on with all that is in it; a null one before the end of the element around it.
    MvXMLElement next();

private:
    MvXMLElement element();
    QString name();
    QString value();
    /// Nothing at the end: what is not in order after all is read as far as it goes.
    char here() const { return m_at < m_text.size() ? m_text.at(m_at) : '\0'; }
    void skip(QByteArrayView end)
    {
        const qsizetype found = m_text.indexOf(end, m_at);
        m_at = found < 0 ? m_text.size() : found + end.size();
    }

    QByteArrayView m_text;
    qsizetype m_at = 0;
    std::vector<std::pair<QByteArrayView, QString>> m_names; // there are few, and each is there often
};
