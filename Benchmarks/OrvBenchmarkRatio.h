#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/**
 * @brief Console reporter that also keeps each benchmark's median and fastest CPU time over its
 * repetitions, so that a run can print how our path compares with its anchor measured in the same
 * process. CPU time, because the machine is shared and these runs are single-threaded.
 */
class FOrvRatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& Runs) override
    {
        ConsoleReporter::ReportRuns(Runs);
        for (const Run& Each : Runs)
        {
            if (Each.run_type == Run::RT_Aggregate && !Each.error_occurred &&
                (Each.aggregate_name == "median" || Each.aggregate_name == "min"))
            {
                Times[Each.run_name.str()][Each.aggregate_name] =
                    Each.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(Each.time_unit) * 1e3;
            }
        }
    }

    /** Adds the "min" statistic that PrintRatios reads beside the median; use with ->Apply. */
    static void AddMinimum(benchmark::internal::Benchmark* Benchmark)
    {
        Benchmark->ComputeStatistics("min", [](const std::vector<double>& Values)
                                     { return *std::min_element(Values.begin(), Values.end()); });
    }

    /**
     * Prints "ours / anchor" for every benchmark named OursPrefix + Suffix that has AnchorPrefix + Suffix:
     * by median (the figure to quote) and by fastest repetition (the least disturbed by other processes).
     */
    void PrintRatios(const std::string& OursPrefix, const std::string& AnchorPrefix, double Target) const
    {
        std::printf("\n%-36s %10s %10s %8s %8s %8s\n", "case (CPU time)", "ours ms", "anchor ms", "ratio",
                    "min/min", "target");
        for (const auto& [Name, Ours] : Times)
        {
            const auto Anchor =
                Times.find(AnchorPrefix + Name.substr(std::min(Name.size(), OursPrefix.size())));
            if (Name.rfind(OursPrefix, 0) != 0 || Anchor == Times.end())
            {
                continue;
            }
            const double Ratio = Ours.at("median") / Anchor->second.at("median");
            std::printf("%-36s %10.3f %10.3f %8.3f %8.3f %8s\n", Name.c_str(), Ours.at("median"),
                        Anchor->second.at("median"), Ratio, Ours.at("min") / Anchor->second.at("min"),
                        Ratio <= Target ? "met" : "MISSED");
        }
    }

    /**
     * The command line with this project's defaults in front (flags given override them): nine
     * repetitions, randomly interleaved so that ours and the anchor share the machine's load alike.
     */
    static std::vector<char*> Arguments(int Argc, char** Argv)
    {
        static char Repetitions[] = "--benchmark_repetitions=9";
        static char Interleaving[] = "--benchmark_enable_random_interleaving=true";
        static char AggregatesOnly[] = "--benchmark_report_aggregates_only=true";
        std::vector<char*> Out = {Argv[0], Repetitions, Interleaving, AggregatesOnly};
        Out.insert(Out.end(), Argv + 1, Argv + Argc);
        Out.push_back(nullptr);
        return Out;
    }

private:
    std::map<std::string, std::map<std::string, double>> Times; ///< milliseconds by name, then statistic
};
