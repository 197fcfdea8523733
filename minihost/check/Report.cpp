#include "minihost/check/Report.h"

#include "minihost/model/JsonWriter.h"
#include "minihost/model/Numbers.h"

#include <array>
#include <cstdio>

namespace minihost {

namespace {

std::string padded(std::string text, std::size_t width) {
    if (text.size() < width) text.resize(width, ' ');
    return text;
}

std::string seconds_text(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f s", seconds);
    return text;
}

// Further lines of the text are indented more.
std::string indented(const std::string& text, const std::string& indent) {
    std::string lines = indent;
    for (const char c : text) {
        lines += c;
        if (c == '\n') lines += indent + "  ";
    }
    return lines + "\n";
}

} // namespace

std::string result_text(const CheckResult& result) {
    const Findings& findings = result.findings;
    std::string text = padded(name_of(findings.outcome()), 6) + padded(result.check->id, 26) +
                       result.check->sentence + " " + seconds_text(result.seconds);
    if (findings.runs() > 1) text += ", " + std::to_string(findings.runs()) + " runs";
    text += "\n";
    if (findings.outcome() != Outcome::Pass)
        for (const std::string& line : findings.lines()) text += indented(line, "      ");
    return text;
}

std::string summary_text(const std::vector<CheckResult>& results, double seconds) {
    std::array<std::size_t, 5> counts{};
    for (const CheckResult& it : results) ++counts[static_cast<int>(it.findings.outcome())];
    std::string text =
        counted(results.size(), "check") + ": " + std::to_string(counts[0]) + " passed";
    constexpr const char* words[] = {"", " with warnings", " skipped", " failed", " crashed"};
    for (std::size_t i = 1; i < counts.size(); ++i)
        if (counts[i]) text += ", " + std::to_string(counts[i]) + words[i];
    return text + " (" + seconds_text(seconds) + ")\n";
}

std::string report_json(const Target& target, const std::vector<CheckResult>& results) {
    std::string text;
    JsonWriter json(text);
    json.begin_object().line(2).member("tool", "minihost " MINIHOST_VERSION);
    json.line(2).member("plugin", target.plugin).line(2);
    json.member("scene", target.scene_file.empty() ? nullptr : target.scene_file.c_str());
    json.line(2).member("level", target.level);
    json.line(2).member("seed", static_cast<std::int64_t>(target.seed));
    json.line(2).key("checks").begin_array();
    for (const CheckResult& it : results) {
        json.line(4).begin_object().member("id", it.check->id);
        json.member("group", it.check->group()).member("sentence", it.check->sentence);
        json.member("outcome", name_of(it.findings.outcome())).member("seconds", it.seconds);
        json.member("runs", it.findings.runs()).key("details").array(it.findings.lines());
        json.end_object();
    }
    json.end_array().end_object();
    return text + "\n";
}

} // namespace minihost
