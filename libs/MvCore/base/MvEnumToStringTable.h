// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// The persistent names of one enumeration, in both directions.
///
/// Reading ignores case and surrounding blanks and knows every inserted name; writing uses the first name inserted
/// for a value. Names that are not in the table read as the default value.
template <class E>
class MvEnumToStringTable
{
public:
    /// Adds a name. A name inserted again takes the new value; a value keeps its first name.
    void insert(const QString &name, E value)
    {
        m_values.insert(name.toLower(), static_cast<qint32>(value));
        if (!m_names.contains(static_cast<qint32>(value)))
            m_names.insert(static_cast<qint32>(value), name);
    }

    void setDefaultValue(E value) { m_defaultValue = static_cast<qint32>(value); }
    E defaultValue() const { return E(m_defaultValue); }
    void setFallbackName(const QString &name) { m_fallbackName = name; }
    bool isEmpty() const { return m_values.isEmpty(); }

    /// The union of all names of a comma-separated text; empty parts count for nothing, unknown ones for the default.
    E decodeCSV(const QString &text) const
    {
        qint32 value = 0;
        const QStringList parts = text.split(u',', Qt::SkipEmptyParts);
        for (const QString &part : parts)
            value |= m_values.value(part.trimmed().toLower(), m_defaultValue);
        return E(value);
    }

    /// The name of the value as a whole; the fallback name (empty) when it has none.
    QString encode(E value) const { return m_names.value(static_cast<qint32>(value), m_fallbackName); }

    /// One name per set bit, lowest bit first; a bit without a name gives the fallback name. Values below 1: empty.
    QStringList encodeAsList(E value) const
    {
        QStringList names;
        const QList<E> bits = splitToBits(value);
        for (const E bit : bits)
            names.append(encode(bit));
        return names;
    }

    /// The names of encodeAsList() joined by ", "; the fallback name when there are none.
    QString encodeCSV(E value) const
    {
        const QStringList names = encodeAsList(value);
        return names.isEmpty() ? m_fallbackName : names.join(QStringLiteral(", "));
    }

    /// The set bits of a value as values of their own, lowest first; empty for values below 1.
    static QList<E> splitToBits(E value)
    {
        QList<E> bits;
        const auto raw = static_cast<qint32>(value);
        for (int bit = 0; raw > 0 && bit < 31; ++bit) {
            if (raw & (1 << bit))
                bits.append(E(1 << bit));
        }
        return bits;
    }

private:
    QHash<QString, qint32> m_values; // by lower-cased name
    QHash<qint32, QString> m_names;
    QString m_fallbackName;
    qint32 m_defaultValue = 0;
};
