// Pairs of times, the plug-in's and a peer's that does the least that could do, measured turn by
// turn in the same run, and what comes of them: a table, and a file to compare with.

#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

// One measured pair; the numbers are medians.
struct Figure {
    std::string name;
    long layers = 0; // 0: does not depend on layers
    double ms = 0, peer_ms = 0;
    double target = 0;  // the ratio that is aimed at; 0: none
    double peak_mb = 0; // of a process that does it once; 0: not measured

    double ratio() const { return peer_ms > 0 ? ms / peer_ms : 0; }
};

// How a pair is made. A turn gives the seconds that it took.
struct Pair {
    std::function<double()> mine, peer;
};

// Something to measure; `prepare` builds what it works on, which lives as long as the pair.
struct Case {
    std::string name;
    long layers;
    int turns; // how often, at least 3
    double target;
    std::function<Pair()> prepare;
    std::function<void()> once; // for the peak of memory; may be empty
};

// All cases, those of each source file.
std::vector<Case> apply_cases(), idle_cases(), panel_cases(), scene_cases();

std::string table_of(const std::vector<Figure>& figures);
std::string json_of(const std::vector<Figure>& figures);

} // namespace bench
