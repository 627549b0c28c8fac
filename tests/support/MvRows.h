// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvRowsFile.h"

#include <QtTest>

#include <tuple>

/// The rows of a data-driven test, each some values of these types:
///
///     const MvRows<QString, int> row; // text, its lines
///     row("one word", u"Juni"_s, 1);
///
/// and in the test
///
///     const auto [text, lines] = MvRows<QString, int>::current();
///
/// Long tables of plain values stand in a file of tests/data/rows.
template <class... Values>
class MvRows
{
public:
    MvRows() { QTest::addColumn<Row>("row"); }

    void operator()(const char *name, const Values &...values) const { QTest::newRow(name) << Row(values...); }
    void operator()(const QByteArray &name, const Values &...values) const { operator()(name.constData(), values...); }
    void operator()(const QString &name, const Values &...values) const { operator()(name.toUtf8(), values...); }

    /// The rows of tests/data/rows/<name>.txt.
    void read(const QString &name) const
    {
        const QList<QStringList> lines = MvRowsFile::lines(name, sizeof...(Values));
        QVERIFY2(!lines.isEmpty(), qPrintable(name));
        for (const QStringList &fields : lines)
            add(fields, std::index_sequence_for<Values...>());
    }

    static std::tuple<Values...> current()
    {
        return *static_cast<const Row *>(QTest::qData("row", qMetaTypeId<Row>()));
    }

private:
    using Row = std::tuple<Values...>;

    template <size_t... Index>
    void add(const QStringList &fields, std::index_sequence<Index...>) const
    {
        operator()(fields.first(), MvRowsFile::value<Values>(fields.at(Index + 1))...);
    }
};
