// SPDX-License-Identifier: MIT
#include "Measurement.h"

#include "LargeAlbum.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

double Median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double MillisecondsOf(const Action::Part& work, LargeAlbum& album)
{
    const auto start = std::chrono::steady_clock::now();
    work(album);
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

} // namespace

// Ours and the bare engine take turns, so that a busy machine slows them alike.
Measurement::Times Measurement::Measure(const Action& action, LargeAlbum& album) const
{
    std::vector<double> ours;
    std::vector<double> bare;
    for (int i = 0; i < repetitions_; ++i) {
        action.prepare(album);
        ours.push_back(MillisecondsOf(action.work, album));
        if (!action.bare)
            continue;
        action.prepare(album);
        bare.push_back(MillisecondsOf(action.bare, album));
    }
    return {Median(ours), bare.empty() ? 0 : Median(bare)};
}

void Measurement::Run(const std::vector<Action>& actions, LargeAlbum& album,
                      const std::string& named)
{
    for (const Action& action : actions) {
        if (action.name.find(named) == std::string::npos)
            continue;
        if (std::find(names_.begin(), names_.end(), action.name) == names_.end())
            names_.push_back(action.name);
        const Times times = Measure(action, album);
        times_[action.name][album.CountPictures()] = times;
        std::printf("%9d  %-58s %10.2f ms", album.CountPictures(), action.name.c_str(), times.ours);
        if (times.bare > 0)
            std::printf(" %10.2f ms bare", times.bare);
        std::printf("\n");
        std::fflush(stdout);
    }
}

void Measurement::Print() const
{
    std::printf("\n%-58s  milliseconds by size, growth, ratio to bare\n", "");
    for (const std::string& name : names_) {
        std::printf("%-58s", name.c_str());
        std::string growth;
        double before = 0;
        double ratio = 0;
        for (const auto& [size, times] : times_.at(name)) {
            std::printf(" %9.2f", times.ours);
            char text[32];
            std::snprintf(text, sizeof text, " x%-5.1f", times.ours / before);
            growth += before > 0 ? text : "";
            before = times.ours;
            ratio = times.bare > 0 ? times.ours / times.bare : 0;
        }
        std::printf("  %-14s", growth.c_str());
        if (ratio > 0)
            std::printf(" %5.2f", ratio);
        std::printf("\n");
    }
}
