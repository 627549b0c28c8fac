// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvEnumToStringTable.h"

#include <QMutex>

#include <atomic>

/// A 32-bit enumeration value (for most enumerations a set of flags) that knows its persistent names.
///
/// A class per enumeration derives from the wrapper and fills the name table. The table exists once per process and is
/// immutable once published; any thread may encode and decode. Hidden visibility needs one exported instantiation per
/// enumeration, declared before the deriving class: `extern template class X_EXPORT MvEnumWrapper<E>;`.
template <class E>
class MvEnumWrapper
{
public:
    using Enum = E;
    using Table = MvEnumToStringTable<E>;

    MvEnumWrapper() = default;
    MvEnumWrapper(E value) // implicit: an enumerator is a value of its class
        : m_value(static_cast<qint32>(value))
    {}
    virtual ~MvEnumWrapper() = default;
    MvEnumWrapper(const MvEnumWrapper &) = default;
    MvEnumWrapper(MvEnumWrapper &&) noexcept = default;
    MvEnumWrapper &operator=(const MvEnumWrapper &) = default;
    MvEnumWrapper &operator=(MvEnumWrapper &&) noexcept = default;

    E value() const { return E(m_value); }
    qint32 toInt() const { return m_value; }

    virtual bool operator<(const MvEnumWrapper &other) const { return m_value < other.m_value; }
    virtual bool operator<=(const MvEnumWrapper &other) const { return m_value <= other.m_value; }
    virtual bool operator>(const MvEnumWrapper &other) const { return m_value > other.m_value; }
    virtual bool operator==(const MvEnumWrapper &other) const { return m_value == other.m_value; }
    virtual bool operator==(E other) const { return m_value == static_cast<qint32>(other); }
    virtual bool operator!=(const MvEnumWrapper &other) const { return m_value != other.m_value; }
    virtual bool operator!=(E other) const { return m_value != static_cast<qint32>(other); }

    virtual MvEnumWrapper &operator|=(const MvEnumWrapper &other) { return *this |= other.value(); }
    virtual MvEnumWrapper &operator|=(E other)
    {
        m_value |= static_cast<qint32>(other);
        return *this;
    }
    virtual MvEnumWrapper &operator&=(const MvEnumWrapper &other) { return *this &= other.value(); }
    virtual MvEnumWrapper &operator&=(E other)
    {
        m_value &= static_cast<qint32>(other);
        return *this;
    }
    virtual MvEnumWrapper operator&(const MvEnumWrapper &other) const { return E(m_value & other.m_value); }
    virtual MvEnumWrapper operator|(const MvEnumWrapper &other) const { return E(m_value | other.m_value); }

    /// Removes the bits of the other value.
    virtual void exclude(const MvEnumWrapper &other) { exclude(other.value()); }
    virtual void exclude(E other) { m_value &= ~static_cast<qint32>(other); }
    /// Adds the bits of the other value; both forms go through the raw one, which a subclass may override.
    virtual void expandTo(const MvEnumWrapper &other) { expandTo(other.value()); }
    virtual void expandTo(E other) { m_value |= static_cast<qint32>(other); }
    /// Keeps only the bits of the other value.
    virtual void reduceTo(E other) { m_value &= static_cast<qint32>(other); }
    virtual E reducedTo(E other) const { return E(m_value & static_cast<qint32>(other)); }

    /// True for every value but 0.
    virtual bool isValid() const { return m_value != 0; }

    /// Fills the name table of the enumeration; called once per process.
    virtual void fillTable(Table *) const {}

    /// The shared name table of the enumeration.
    const Table *enumToStringTable() const;

    /// The name of the value as a whole; empty when it has none.
    QString encode() const { return enumToStringTable()->encode(value()); }
    /// The names of all bits, separated by ", ".
    QString encodeCSV() const { return enumToStringTable()->encodeCSV(value()); }

    /// True when both values share a bit.
    bool hasAnyOf(const MvEnumWrapper &other) const { return (m_value & other.m_value) != 0; }

protected:
    /// Decodes a comma-separated list of names. Only for the body of a deriving constructor: before that, the object
    /// does not know its names.
    void decode(const QString &text) { m_value = static_cast<qint32>(enumToStringTable()->decodeCSV(text)); }

private:
    qint32 m_value = 0;
};

template <class E>
const typename MvEnumWrapper<E>::Table *MvEnumWrapper<E>::enumToStringTable() const
{
    static std::atomic<Table *> published = nullptr;
    static QMutex mutex;
    static const Table nameless;

    if (const Table *table = published.load(std::memory_order_acquire))
        return table;
    QMutexLocker lock(&mutex);
    if (const Table *table = published.load(std::memory_order_acquire))
        return table;
    auto *table = new Table;
    fillTable(table);
    if (table->isEmpty()) { // a bare wrapper, such as the result of |, does not know the names
        delete table;
        return &nameless;
    }
    published.store(table, std::memory_order_release);
    return table;
}

template <class E>
size_t qHash(const MvEnumWrapper<E> &value, size_t seed = 0)
{
    return qHash(value.toInt(), seed);
}

/// The constructors and assignment-compatible conversions that every enumeration class has.
#define MV_ENUM_WRAPPER(Class, EnumType)                                                                               \
public:                                                                                                                \
    Class() = default;                                                                                                 \
    Class(EnumType value)                                                                                              \
        : MvEnumWrapper<EnumType>(value)                                                                               \
    {}                                                                                                                 \
    Class(const MvEnumWrapper<EnumType> &value)                                                                        \
        : MvEnumWrapper<EnumType>(value)                                                                               \
    {}                                                                                                                 \
    explicit Class(int value)                                                                                          \
        : MvEnumWrapper<EnumType>(EnumType(value))                                                                     \
    {}                                                                                                                 \
    explicit Class(const QString &names)                                                                               \
    {                                                                                                                  \
        decode(names);                                                                                                 \
    }                                                                                                                  \
    void fillTable(MvEnumToStringTable<EnumType> *table) const override;
