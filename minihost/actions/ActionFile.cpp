#include "minihost/actions/ActionFile.h"

namespace minihost {

namespace {

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

// The text between quotes. `at` moves from behind the opening quote to behind the closing one.
std::string take_quoted(std::string_view line, std::size_t& at, const std::string& location) {
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
    throw UsageError(location + ": a quote is not closed");
}

} // namespace

Words split_words(std::string_view line, const std::string& location) {
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
                word += take_quoted(line, ++at, location);
            else
                word += line[at++];
        }
        words.push_back(std::move(word));
    }
    return words;
}

std::string quote_word(const std::string& word) {
    std::string text = "\"";
    for (const char c : word) {
        if (c == '"' || c == '\\') text += '\\';
        text += c;
    }
    return text + '"';
}

std::vector<ParsedAction> parse_actions(std::string_view text, const std::string& file) {
    std::vector<ParsedAction> actions;
    for (std::size_t start = 0, line = 1; start < text.size(); ++line) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string location = file + ":" + std::to_string(line);
        if (text.substr(start, end - start).find('\0') != std::string_view::npos)
            throw UsageError(location + ": holds a zero character");
        const Words words = split_words(text.substr(start, end - start), location);
        if (!words.empty()) actions.push_back(parse_action(words, location));
        start = end + 1;
    }
    return actions;
}

} // namespace minihost
