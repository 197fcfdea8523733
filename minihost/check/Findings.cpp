#include "minihost/check/Findings.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace minihost {

namespace {

using Json = nlohmann::json;

constexpr std::size_t max_lines = 40;

} // namespace

const char* name_of(Outcome outcome) {
    static constexpr const char* names[] = {"pass", "warn", "skip", "fail", "crash"};
    return names[static_cast<int>(outcome)];
}

void Findings::add(Outcome outcome, const std::string& text, const std::string& example) {
    _outcome = std::max(_outcome, outcome);
    const auto [at, is_new] = _index.try_emplace(text, _findings.size());
    if (is_new)
        _findings.push_back({outcome, text, example, 1});
    else
        ++_findings[at->second].times;
}

void Findings::add(const Findings& others) {
    for (const Finding& it : others._findings) {
        add(it.outcome, it.text, it.example);
        _findings[_index[it.text]].times += it.times - 1;
    }
    _notes.insert(_notes.end(), others._notes.begin(), others._notes.end());
    _runs += others._runs;
}

std::vector<std::string> Findings::lines() const {
    std::vector<Finding> sorted = _findings;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Finding& a, const Finding& b) { return a.outcome > b.outcome; });
    std::vector<std::string> lines;
    for (const Finding& it : sorted) {
        if (lines.size() == max_lines) {
            lines.push_back("and " + std::to_string(sorted.size() - max_lines) + " more");
            break;
        }
        std::string line = it.text;
        if (!it.example.empty()) line += " (" + it.example + ")";
        if (it.times > 1) line += ", " + std::to_string(it.times) + " times";
        lines.push_back(std::move(line));
    }
    lines.insert(lines.end(), _notes.begin(), _notes.end());
    return lines;
}

std::string Findings::to_json() const {
    Json findings = Json::array();
    for (const Finding& it : _findings)
        findings.push_back({static_cast<int>(it.outcome), it.text, it.example, it.times});
    return Json{{"findings", findings}, {"notes", _notes}, {"runs", _runs}}.dump(
        -1, ' ', false, Json::error_handler_t::replace);
}

Findings Findings::from_json(const std::string& json) {
    const Json parsed = Json::parse(json);
    Findings findings;
    for (const Json& it : parsed["findings"]) {
        findings.add(static_cast<Outcome>(it[0].get<int>()), it[1], it[2]);
        findings._findings.back().times = it[3];
    }
    findings._notes = parsed["notes"].get<std::vector<std::string>>();
    findings._runs = parsed["runs"];
    return findings;
}

} // namespace minihost
