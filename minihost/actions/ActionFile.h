// Files of actions, one a line.

#pragma once

#include "minihost/actions/Actions.h"

#include <string>
#include <string_view>
#include <vector>

namespace minihost {

// The words of a line. Double quotes hold blanks together, also within a word; inside them \" and
// \\ stand for the characters. A line from '#' on has no words. Throws UsageError for a quote that
// is not closed; `place` is where the line stands.
Words split_words(std::string_view line, const std::string& place);

// The word as split_words() reads it back.
std::string quoted_word(const std::string& word);

// All steps of a text. Throws UsageError with file and line.
std::vector<Step> parse_actions(std::string_view text, const std::string& file);

} // namespace minihost
