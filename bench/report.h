// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

/// Times in milliseconds, or whatever else was measured again and again.
using Samples = std::vector<double>;

/// The value that `share` (0 to 1) of the samples do not exceed.
[[nodiscard]] inline double percentile(Samples samples, double share)
{
    if (samples.empty())
        return std::nan("");
    std::ranges::sort(samples);
    const double rank = std::ceil(share * static_cast<double>(samples.size()));
    return samples[static_cast<std::size_t>(std::max(rank, 1.0)) - 1];
}

[[nodiscard]] inline double median(const Samples& samples)
{
    return percentile(samples, 0.5);
}

/// Milliseconds of `clock`: CLOCK_MONOTONIC passes for all, CLOCK_PROCESS_CPUTIME_ID
/// only while this process computes, whatever else the machine is busy with.
[[nodiscard]] inline double milliseconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

/// What `action` takes by `clock`.
template <class Action>
[[nodiscard]] double timed(clockid_t clock, Action action)
{
    const double begin = milliseconds(clock);
    action();
    return milliseconds(clock) - begin;
}

/// A number to three digits.
[[nodiscard]] inline std::string number(double value)
{
    const int decimals = value >= 100 ? 0 : value >= 10 ? 1 : value >= 1 ? 2 : 3;
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

/// Prints a line of the table. `judged`, in `unit`, has to stay within `target`;
/// with a `floor` it is their ratio that has to.
inline void printRow(const std::string& what, double judged, const std::string& unit, double target,
                     double floor = 0)
{
    const double compared = floor > 0 ? judged / floor : judged;
    const std::string floorText = floor > 0 ? number(floor) + ' ' + unit : "-";
    const std::string targetText = floor > 0 ? number(target) + " x" : number(target) + ' ' + unit;
    std::printf("| %s | %s %s | %s | %s | %s | %s |\n", what.c_str(), number(judged).c_str(),
                unit.c_str(), floorText.c_str(), floor > 0 ? number(compared).c_str() : "-",
                targetText.c_str(), compared <= target ? "met" : "**missed**");
    std::fflush(stdout);
}
