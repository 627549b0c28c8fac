// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoOrder.h"

#include <QImage>

#include <memory>

/// A photo that was asked for: on its way, there, or known to be unreadable. A handle that can be copied.
///
/// As long as somebody holds it, the photo is wanted, and kept; when the last copy is gone before its turn has come, it
/// is not decoded at all. GUI thread.
class MVFOTO_EXPORT MvFotoRequest
{
public:
    /// Of nothing; never done.
    MvFotoRequest() = default;

    bool isDone() const { return d && d->isDone; }
    /// Null until it is done, and when the file cannot be read.
    QImage image() const { return d ? d->image : QImage(); }
    /// Of the photo in its file, in pixels and upright; empty when it was not needed for the order.
    QSize fullSize() const { return d ? d->fullSize : QSize(); }
    /// The state of the file in which it was read; once it is done.
    MvFotoStamp stamp() const { return d ? d->order.stamp.value_or(MvFotoStamp()) : MvFotoStamp(); }

private:
    friend class MvFotoService;
    struct State
    {
        MvFotoOrder order;
        int urgency = 0;
        bool isStarted = false;
        bool isDone = false;
        QImage image = {};
        QSize fullSize = {};
    };
    explicit MvFotoRequest(const std::shared_ptr<State> &state)
        : d(state)
    {}

    std::shared_ptr<State> d;
};
