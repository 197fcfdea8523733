#include "minihost/actions/ActionFile.h"

namespace minihost {

namespace {

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// The part of a word between quotes; `at` is after the opening one, and is left after the closing.
std::string quoted(std::string_view line, std::size_t& at, const std::string& place) {
    std::string text;
    for (; at < line.size(); ++at) {
        if (line[at] == '"') {
            ++at;
            return text;
        }
        const bool escaped = line[at] == '\\' && at + 1 < line.size() &&
                             (line[at + 1] == '"' || line[at + 1] == '\\');
        text += line[escaped ? ++at : at];
    }
    throw UsageError(place + ": a quote is not closed");
}

} // namespace

Words split_words(std::string_view line, const std::string& place) {
    Words words;
    for (std::size_t at = 0; at < line.size();) {
        if (is_blank(line[at])) {
            ++at;
            continue;
        }
        if (words.empty() && line[at] == '#') break;
        std::string word;
        while (at < line.size() && !is_blank(line[at])) {
            if (line[at] == '"')
                word += quoted(line, ++at, place);
            else
                word += line[at++];
        }
        words.push_back(std::move(word));
    }
    return words;
}

std::string quoted_word(const std::string& word) {
    std::string text = "\"";
    for (const char c : word) {
        if (c == '"' || c == '\\') text += '\\';
        text += c;
    }
    return text + '"';
}

std::vector<Step> parse_actions(std::string_view text, const std::string& file) {
    std::vector<Step> steps;
    for (std::size_t start = 0, line = 1; start < text.size(); ++line) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string place = file + ":" + std::to_string(line);
        if (text.substr(start, end - start).find('\0') != std::string_view::npos)
            throw UsageError(place + ": holds a zero character");
        const Words words = split_words(text.substr(start, end - start), place);
        if (!words.empty()) steps.push_back(make_step(words, place));
        start = end + 1;
    }
    return steps;
}

} // namespace minihost
