// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <algorithm>
#include <ctime>
#include <functional>
#include <utility>
#include <vector>

/// Pieces of work that are done in turns, so that whatever else the computer does falls on all of them alike. What
/// counts is the processors' time of the process, of all its threads, and of the rounds the median.
class MvBenchTurns
{
public:
    /// A piece of work, and what has to be done before it each time, which does not count.
    struct Work
    {
        template <class Function>
        Work(Function function, std::function<void()> preparation = {}) // NOLINT: a function is a piece of work
            : run(std::move(function))
            , prepare(std::move(preparation))
        {}

        std::function<void()> run;
        std::function<void()> prepare;
    };

    explicit MvBenchTurns(int rounds = 15)
        : m_rounds(rounds)
    {}

    /// Median milliseconds of each piece, in their order. A first round, which fills caches, does not count.
    std::vector<double> measure(const std::vector<Work> &works) const
    {
        std::vector<std::vector<double>> times(works.size());
        for (int round = -1; round < m_rounds; ++round) {
            for (size_t i = 0; i < works.size(); ++i) {
                if (works[i].prepare)
                    works[i].prepare();
                const double before = now();
                works[i].run();
                if (round >= 0)
                    times[i].push_back(now() - before);
            }
        }
        std::vector<double> medians;
        for (std::vector<double> &each : times) {
            std::nth_element(each.begin(), each.begin() + each.size() / 2, each.end());
            medians.push_back(each[each.size() / 2]);
        }
        return medians;
    }

private:
    static double now()
    {
        timespec time = {};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }

    int m_rounds;
};
