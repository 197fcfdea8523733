#include "minihost/actions/EventActions.h"

#include "minihost/model/Numbers.h"

namespace minihost {

namespace {

constexpr NamedKey named_keys[] = {
    {"tab", 0x09},      {"backtab", 0x19}, {"return", 0x0d},           {"enter", 0x03},
    {"escape", 0x1b},   {"space", ' '},    {"delete", 0x7f},           {"up", 0xf700},
    {"down", 0xf701},   {"left", 0xf702},  {"right", 0xf703},          {"home", 0xf729},
    {"end", 0xf72b},    {"f1", 0xf704},    {"forward-delete", 0xf728}, {"page-down", 0xf72d},
    {"page-up", 0xf72c}};

constexpr double max_distance = 32000; // points, or lines of a wheel

double number(const std::string& word) {
    const auto value = parse_number<double>(word);
    if (!value || !(*value >= -max_distance && *value <= max_distance))
        throw ActionError("\"" + word + "\" is no number from -32000 to 32000");
    return *value;
}

bool take_modifier(const std::string& word, RawEvent& event) {
    constexpr std::pair<const char*, unsigned> keys[] = {{"shift", ShiftKey},
                                                         {"control", ControlKey},
                                                         {"option", OptionKey},
                                                         {"command", CommandKey}};
    for (const auto& [name, bit] : keys) {
        if (word != name) continue;
        event.modifiers |= bit;
        return true;
    }
    return false;
}

[[noreturn]] void reject(const std::string& word, const char* choices) {
    throw ActionError("\"" + word + "\" is none of " + choices);
}

// A key by its name, by its one character, or by its number ("U+F704").
char16_t key(const std::string& word) {
    for (const NamedKey& key : named_keys)
        if (word == key.name) return key.character;
    if (word.size() == 1 && word[0] > ' ' && word[0] < 0x7f) return static_cast<char16_t>(word[0]);
    if (word.starts_with("U+"))
        if (const auto number = parse_number<unsigned>(word.substr(2), 16))
            if (*number <= 0xffff) return static_cast<char16_t>(*number);
    std::string all;
    for (const NamedKey& key : named_keys) all += std::string(key.name) + ", ";
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

std::span<const NamedKey> keys_with_names() {
    return named_keys;
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
        reject(words[0], "down, up, move");
    event.x = number(words[1]);
    event.y = number(words[2]);
    for (std::size_t i = 3; i < words.size(); ++i) {
        if (words[i] == "right")
            event.right_button = true;
        else if (words[i] == "double")
            event.clicks = 2;
        else if (!take_modifier(words[i], event))
            reject(words[i], "right, double, shift, control, option, command");
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
        if (!take_modifier(words[i], event)) reject(words[i], "shift, control, option, command");
    post(session, event);
}

void type_action(Session& session, const std::vector<std::string>& words) {
    RawEvent event;
    event.kind = RawEvent::Kind::Text;
    event.text = words[0];
    post(session, event);
}

} // namespace minihost
