// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <functional>
#include <optional>

class MvColorSelectionButton;
class QCheckBox;
class QColor;
class QComboBox;
class QLineEdit;

/// What several chosen elements have in common, and how fields show it: the value that all of them have, else that they
/// differ. A field that shows the latter takes a new value for all of them like any other.
class MvCommonValue
{
    Q_DECLARE_TR_FUNCTIONS(MvCommonValue)

public:
    /// The value that `get` finds in each of the elements; none when they differ, or when there is no element.
    template <class Element, class Get>
    static auto of(const QList<Element> &elements, const Get &get)
        -> std::optional<std::decay_t<std::invoke_result_t<Get, const Element &>>>
    {
        if (elements.isEmpty())
            return std::nullopt;
        const auto first = std::invoke(get, elements.constFirst());
        const bool isCommon = std::all_of(elements.cbegin(), elements.cend(),
                                          [&](const Element &one) { return std::invoke(get, one) == first; });
        return isCommon ? std::optional(first) : std::nullopt;
    }

    /// What stands in the place of a value where they differ.
    static QString different();

    /// By the data of its rows.
    static void show(QComboBox *box, const std::optional<QVariant> &data);
    static void show(QCheckBox *box, const std::optional<bool> &isOn);
    static void show(MvColorSelectionButton *button, const std::optional<QColor> &color);
    /// The hint stands in an empty field. A text that stands there already is left alone, with its cursor.
    static void show(QLineEdit *line, const std::optional<QString> &text, const QString &hint);
};
