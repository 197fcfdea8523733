#include "minihost/actions/EventActions.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace minihost {

namespace {

constexpr const char* names[] = {
    "tab",  "backtab", "return", "enter", "escape", "space",          "delete",    "up",     "down",
    "left", "right",   "home",   "end",   "f1",     "forward-delete", "page-down", "page-up"};
constexpr char16_t characters[] = {0x09,   0x19,   0x0d,   0x03,   0x1b,   ' ',
                                   0x7f,   0xf700, 0xf701, 0xf702, 0xf703, 0xf729,
                                   0xf72b, 0xf704, 0xf728, 0xf72d, 0xf72c};
static_assert(std::size(names) == std::size(characters));

constexpr double farthest = 32000; // points, and lines of a wheel

double number(const std::string& word) {
    double value = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    if (error != std::errc() || stop != end || !(value >= -farthest && value <= farthest))
        throw ActionError("\"" + word + "\" is no number from -32000 to 32000");
    return value;
}

bool take_modifier(const std::string& word, RawEvent& event) {
    constexpr std::pair<const char*, unsigned> keys[] = {{"shift", shift_key},
                                                         {"control", control_key},
                                                         {"option", option_key},
                                                         {"command", command_key}};
    for (const auto& [name, bit] : keys) {
        if (word != name) continue;
        event.modifiers |= bit;
        return true;
    }
    return false;
}

[[noreturn]] void refuse(const std::string& word, const char* choices) {
    throw ActionError("\"" + word + "\" is none of " + choices);
}

// A key by its name, by its one character, or by its number ("U+F704").
char16_t key(const std::string& word) {
    const auto named = std::find(std::begin(names), std::end(names), word);
    if (named != std::end(names)) return characters[named - std::begin(names)];
    if (word.size() == 1 && word[0] > ' ' && word[0] < 0x7f) return static_cast<char16_t>(word[0]);
    unsigned number = 0;
    const char* end = word.data() + word.size();
    if (word.size() > 2 && word.starts_with("U+")) {
        const auto [stop, error] = std::from_chars(word.data() + 2, end, number, 16);
        if (error == std::errc() && stop == end && number <= 0xffff)
            return static_cast<char16_t>(number);
    }
    std::string all;
    for (const char* name : names) all += std::string(name) + ", ";
    throw ActionError("\"" + word + "\" is no key: " + all +
                      "one character, or U+ and four digits");
}

void post(Session& session, const RawEvent& event) {
    const Dialog dialog = session.dialog();
    if (!dialog.visible)
        throw ActionError(dialog.exists ? "the dialog is not visible" : "the dialog is not there");
    session.enter([&] { session.dialog_driver().post(dialog.panel, event); });
}

} // namespace

std::span<const char* const> key_names() {
    return names;
}

void mouse_action(Session& session, const std::vector<std::string>& words) {
    RawEvent event;
    if (words[0] == "down")
        event.kind = RawEvent::Kind::MouseDown;
    else if (words[0] == "up")
        event.kind = RawEvent::Kind::MouseUp;
    else if (words[0] == "move")
        event.kind = RawEvent::Kind::MouseMove;
    else
        refuse(words[0], "down, up, move");
    event.x = number(words[1]);
    event.y = number(words[2]);
    for (std::size_t i = 3; i < words.size(); ++i) {
        if (words[i] == "right")
            event.right_button = true;
        else if (words[i] == "double")
            event.clicks = 2;
        else if (!take_modifier(words[i], event))
            refuse(words[i], "right, double, shift, control, option, command");
    }
    post(session, event);
}

void wheel_action(Session& session, const std::vector<std::string>& words) {
    RawEvent event;
    event.kind = RawEvent::Kind::Wheel;
    event.x = number(words[0]);
    event.y = number(words[1]);
    event.dx = number(words[2]);
    event.dy = number(words[3]);
    post(session, event);
}

void key_action(Session& session, const std::vector<std::string>& words) {
    RawEvent event;
    event.kind = RawEvent::Kind::Key;
    event.key = key(words[0]);
    for (std::size_t i = 1; i < words.size(); ++i)
        if (!take_modifier(words[i], event)) refuse(words[i], "shift, control, option, command");
    post(session, event);
}

void type_action(Session& session, const std::vector<std::string>& words) {
    RawEvent event;
    event.kind = RawEvent::Kind::Text;
    event.text = words[0];
    post(session, event);
}

} // namespace minihost
