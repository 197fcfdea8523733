#include "minihost/check/Findings.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Json = nlohmann::json;

constexpr std::size_t most_lines = 40;

} // namespace

const char* name_of(Outcome outcome) {
    static constexpr const char* names[] = {"pass", "warn", "skip", "fail", "crash"};
    return names[static_cast<int>(outcome)];
}

void Findings::add(Outcome outcome, const std::string& what) {
    add(outcome, what, "");
}

void Findings::add(Outcome outcome, const std::string& what, const std::string& example) {
    _outcome = std::max(_outcome, outcome);
    const auto [at, is_new] = _index.try_emplace(what, _lines.size());
    if (is_new)
        _lines.push_back({outcome, what, example, 1});
    else
        ++_lines[at->second].times;
}

void Findings::add(const Findings& others) {
    for (const Line& it : others._lines) {
        add(it.outcome, it.what, it.example);
        _lines[_index[it.what]].times += it.times - 1;
    }
    _notes.insert(_notes.end(), others._notes.begin(), others._notes.end());
    _runs += others._runs;
}

std::vector<std::string> Findings::lines() const {
    std::vector<Line> sorted = _lines;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Line& a, const Line& b) { return a.outcome > b.outcome; });
    std::vector<std::string> lines;
    for (const Line& it : sorted) {
        if (lines.size() == most_lines) {
            lines.push_back("and " + std::to_string(sorted.size() - most_lines) + " more");
            break;
        }
        std::string line = it.what;
        if (!it.example.empty()) line += " (" + it.example + ")";
        if (it.times > 1) line += ", " + std::to_string(it.times) + " times";
        lines.push_back(std::move(line));
    }
    lines.insert(lines.end(), _notes.begin(), _notes.end());
    return lines;
}

std::string Findings::text() const {
    Json lines = Json::array();
    for (const Line& it : _lines)
        lines.push_back({static_cast<int>(it.outcome), it.what, it.example, it.times});
    return Json{{"lines", lines}, {"notes", _notes}, {"runs", _runs}}.dump(
        -1, ' ', false, Json::error_handler_t::replace);
}

Findings Findings::parse(const std::string& text) {
    const Json told = Json::parse(text);
    Findings findings;
    for (const Json& it : told["lines"]) {
        findings.add(static_cast<Outcome>(it[0].get<int>()), it[1], it[2]);
        findings._lines.back().times = it[3];
    }
    findings._notes = told["notes"].get<std::vector<std::string>>();
    findings._runs = told["runs"];
    return findings;
}

} // namespace minihost
