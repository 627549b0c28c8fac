// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

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
template <class... Values>
class MvRows
{
public:
    MvRows() { QTest::addColumn<Row>("row"); }

    void operator()(const char *name, const Values &...values) const { QTest::newRow(name) << Row(values...); }
    void operator()(const QByteArray &name, const Values &...values) const { operator()(name.constData(), values...); }
    void operator()(const QString &name, const Values &...values) const { operator()(name.toUtf8(), values...); }

    static std::tuple<Values...> current()
    {
        return *static_cast<const Row *>(QTest::qData("row", qMetaTypeId<Row>()));
    }

private:
    using Row = std::tuple<Values...>;
};
