// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <future>
#include <system_error>
#include <type_traits>

/// Work on a page beside the thread that paints the next one.
class MvPageTask
{
public:
    /// Begins the work in a thread of its own. Where the computer has none to give, as with little memory, it is done
    /// by whoever waits for it. What it throws comes to them, too.
    template <class Work>
    static std::future<std::invoke_result_t<Work>> begin(const Work &work)
    {
        try {
            return std::async(std::launch::async, work);
        } catch (const std::system_error &) {
            return std::async(std::launch::deferred, work);
        }
    }
};
