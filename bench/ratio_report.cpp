#include "ratio_report.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace quorix::bench {
namespace {

struct Pair {
    std::string name;
    double goal = 0;
    std::vector<double> own, peer;  // nanoseconds a round
};

std::vector<Pair>& Pairs() {
    static std::vector<Pair> pairs;
    return pairs;
}

constexpr std::string_view kOwn = "/own/", kPeer = "/peer/";
constexpr double kSecondsPerRound = 0.04;

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Collects the times under the names of the pairs.
class PairReporter : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            const std::string& name = run.run_name.function_name;
            for (Pair& pair : Pairs()) {
                if (name.starts_with(pair.name + std::string(kOwn)))
                    pair.own.push_back(run.GetAdjustedRealTime());
                if (name.starts_with(pair.name + std::string(kPeer)))
                    pair.peer.push_back(run.GetAdjustedRealTime());
            }
        }
    }

    void Finalize() override {
        std::printf("%-28s %12s %12s %8s %8s\n", "", "own ns", "peer ns", "ratio", "goal");
        for (const Pair& pair : Pairs()) {
            if (pair.own.empty() || pair.peer.empty()) continue;
            const double own = Median(pair.own), peer = Median(pair.peer), ratio = own / peer;
            const bool missed = pair.goal > 0 && ratio > pair.goal;
            goalMissed_ = goalMissed_ || missed;
            std::printf("%-28s %12.1f %12.1f %8.2f %8.2f%s\n", pair.name.c_str(), own, peer, ratio, pair.goal,
                        missed ? "  missed" : "");
        }
    }

    [[nodiscard]] bool GoalMissed() const { return goalMissed_; }

  private:
    bool goalMissed_ = false;
};

}  // namespace

void RegisterPair(const std::string& name, Body own, Body peer, double goal) {
    Pairs().push_back({name, goal, {}, {}});
    for (int round = 0; round < kRounds; ++round) {
        const auto add = [&](std::string_view side, const Body& body) {
            const std::string fullName = name + std::string(side) + std::to_string(round);
            benchmark::RegisterBenchmark(fullName.c_str(), body)->MinTime(kSecondsPerRound);
        };
        add(kOwn, own);
        add(kPeer, peer);
    }
}

int RunPairs(int argc, char** argv) {
    const auto check = std::find(argv + 1, argv + argc, std::string_view("--check"));
    const bool isCheck = check != argv + argc;
    if (isCheck) argc = static_cast<int>(std::remove(argv + 1, argv + argc, *check) - argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    PairReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return isCheck && reporter.GoalMissed() ? 2 : 0;
}

}  // namespace quorix::bench
