// Files of actions, one a line.

#pragma once

#include "minihost/actions/Actions.h"

#include <string>
#include <string_view>
#include <vector>

namespace minihost {

// The words of a line, separated by blanks. Double quotes keep blanks in a word; inside them \" and
// \\ are escapes. A line that begins with '#' has no words. Throws UsageError, with the location,
// for a quote that is not closed.
Words split_words(std::string_view line, const std::string& location);

// A word in quotes, as split_words() reads it.
std::string quote_word(const std::string& word);

// Throws UsageError with file and line.
std::vector<ParsedAction> parse_actions(std::string_view text, const std::string& file);

} // namespace minihost
