// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSimplePerson.h"
#include "MvCore/mvcore_export.h"

#include <QList>

/// The contacts of an address book, in its order.
class MVCORE_EXPORT MvSimplePersonList : public QList<MvSimplePerson>
{
public:
    using QList<MvSimplePerson>::QList;
    MvSimplePersonList() = default;
    virtual ~MvSimplePersonList();
    MvSimplePersonList(const MvSimplePersonList &) = default;
    MvSimplePersonList(MvSimplePersonList &&) noexcept = default;
    MvSimplePersonList &operator=(const MvSimplePersonList &) = default;
    MvSimplePersonList &operator=(MvSimplePersonList &&) noexcept = default;
};
