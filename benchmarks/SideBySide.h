// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

// Prints, behind the usual lines, each pair "subject/ours" and "subject/bare" of one run with the
// ratio of their medians: machines differ, ratios hardly do.
class SideBySideReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                seconds_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                               double(run.iterations));
        }
    }

    void Finalize() override
    {
        std::printf("\n%-34s %14s %14s %8s\n", "median, microseconds", "ours", "bare", "ratio");
        for (const auto& [name, times] : seconds_) {
            const std::string ending = "/ours";
            if (name.size() < ending.size() || !name.ends_with(ending))
                continue;
            const std::string subject = name.substr(0, name.size() - ending.size());
            const auto bare = seconds_.find(subject + "/bare");
            if (bare == seconds_.end())
                continue;
            const double ours = Median(times);
            const double other = Median(bare->second);
            std::printf("%-34s %14.2f %14.2f %8.2f\n", subject.c_str(), ours * 1e6, other * 1e6,
                        ours / other);
        }
    }

private:
    static double Median(std::vector<double> times)
    {
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    }

    std::map<std::string, std::vector<double>> seconds_;
};

// Runs what is registered, as the command line asks for it, and prints the ratios.
inline void RunSideBySide(int& argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    SideBySideReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
