// Compares two files of figures: bench_compare A.json B.json. Prints ratios to
// the peer rather than times where there is a peer: they hold from machine to machine.

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>

namespace {

using nlohmann::json;

constexpr double noteworthy = 0.1; // of the older figure

json figures_of(const char* path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error(std::string(path) + ": cannot be read");
    const json all = json::parse(file);
    if (all.value("format", "") != "tamborel figures 1")
        throw std::runtime_error(std::string(path) + ": no file of figures");
    return all.at("figures");
}

void print_row(const std::string& name, const char* what, double before, double after) {
    if (before <= 0 && after <= 0) return;
    const double change = before > 0 ? after / before - 1 : 0;
    std::printf("%-40s %-8s %12.4f %12.4f %+8.1f %%%s\n", name.c_str(), what, before, after,
                100 * change,
                std::fabs(change) <= noteworthy ? ""
                : change < 0                    ? "  better"
                                                : "  worse");
}

void compare(const json& before, const json& after) {
    std::printf("%-40s %-8s %12s %12s %10s\n", "", "", "before", "after", "change");
    for (const json& old : before) {
        const auto same = [&](const json& it) {
            return it.at("name") == old.at("name") && it.at("layers") == old.at("layers");
        };
        const auto found = std::find_if(after.begin(), after.end(), same);
        std::string name = old.at("name");
        if (old.at("layers") != 0) name += ", " + std::to_string(old.at("layers").get<long>());
        if (found == after.end()) {
            std::printf("%-40s only before\n", name.c_str());
            continue;
        }
        const bool has_peer = old.at("peer_ms") > 0;
        const char* const key = has_peer ? "ratio" : "ms";
        print_row(name, key, old.at(key), found->at(key));
        print_row("", "peak MB", old.at("peak_mb"), found->at("peak_mb"));
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: bench_compare BEFORE.json AFTER.json\n";
        return 2;
    }
    try {
        compare(figures_of(argv[1]), figures_of(argv[2]));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "bench_compare: " << error.what() << '\n';
        return 2;
    }
}
