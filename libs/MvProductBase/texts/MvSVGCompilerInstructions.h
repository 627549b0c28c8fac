// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/mvproductbase_export.h"

#include <QList>
#include <QString>
#include <QStringView>

/// A text with placeholders, taken apart once so that it can be filled for many days.
///
/// Placeholders: {date}, {month}, {year}, {week}, {holidays}, {entries}. Any other word in braces stays as it is.
class MVPRODUCTBASE_EXPORT MvSVGCompilerInstructions
{
public:
    enum class Kind { Literal, Date, Month, Year, Week, Holidays, Entries };
    struct Instruction
    {
        Kind kind = Kind::Literal;
        QString text; // of a literal

        bool operator==(const Instruction &) const = default;
    };

    MvSVGCompilerInstructions() = default;
    explicit MvSVGCompilerInstructions(const QString &text);

    const QList<Instruction> &instructions() const { return m_instructions; }
    /// True when the text is the same for every day.
    bool isConstant() const;

private:
    void appendLiteral(QStringView text);

    QList<Instruction> m_instructions;
};
