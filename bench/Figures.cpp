#include "bench/Figures.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdio>

namespace bench {

namespace {

template <typename... Values>
void print(std::string& out, const char* format, Values... values) {
    char line[256];
    const int length = std::snprintf(line, sizeof line, format, values...);
    out.append(line, static_cast<std::size_t>(std::clamp<int>(length, 0, sizeof line - 1)));
}

std::string number(const char* format, double value) {
    std::string text;
    if (value > 0) print(text, format, value);
    return text;
}

constexpr long few = 10000, many = 100000;

// What ten times as many layers cost.
double growth(double at_few, double at_many) {
    return at_few > 0 ? at_many / at_few : 0;
}

struct Growth {
    std::string name;
    double mine, peer;
};

std::vector<Growth> growths(const std::vector<Figure>& figures) {
    std::vector<Growth> all;
    for (const Figure& a : figures)
        for (const Figure& b : figures)
            if (a.name == b.name && a.layers == few && b.layers == many && a.ms > 0)
                all.push_back({a.name, growth(a.ms, b.ms), growth(a.peer_ms, b.peer_ms)});
    return all;
}

} // namespace

std::string table_of(const std::vector<Figure>& figures) {
    std::string out;
    print(out, "\n%-32s %8s %12s %12s %7s %7s %9s\n", "", "layers", "ms", "peer ms", "ratio",
          "at most", "peak MB");
    for (const Figure& it : figures)
        print(out, "%-32s %8s %12s %12s %7s %7s %9s%s\n", it.name.c_str(),
              it.layers ? std::to_string(it.layers).c_str() : "", number("%.4f", it.ms).c_str(),
              number("%.4f", it.peer_ms).c_str(), number("%.2f", it.ratio()).c_str(),
              number("%.2f", it.target).c_str(), number("%.1f", it.peak_mb).c_str(),
              it.target > 0 && it.ratio() > it.target ? "  above" : "");
    const std::vector<Growth> all = growths(figures);
    if (!all.empty()) print(out, "\nten times the layers (%ld for %ld) take\n", many, few);
    for (const Growth& it : all)
        print(out, "%-32s %.1f times the time (peer: %.1f)\n", it.name.c_str(), it.mine, it.peer);
    return out;
}

std::string json_of(const std::vector<Figure>& figures) {
    nlohmann::ordered_json file{{"format", "tamborel figures 1"}};
    for (const Figure& it : figures)
        file["figures"].push_back({{"name", it.name},
                                   {"layers", it.layers},
                                   {"ms", it.ms},
                                   {"peer_ms", it.peer_ms},
                                   {"ratio", it.ratio()},
                                   {"target", it.target},
                                   {"peak_mb", it.peak_mb}});
    for (const Growth& it : growths(figures))
        file["growth"].push_back(
            {{"name", it.name}, {"factor", it.mine}, {"peer_factor", it.peer}});
    return file.dump(2) + "\n";
}

} // namespace bench
