#include "minihost/check/RandomUser.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/actions/EventActions.h"

#include <algorithm>

namespace minihost {

namespace {

// Ends the growth of a scene that gets layers at every Apply.
constexpr std::size_t max_layers = 60;

// What a user may type into a field.
constexpr const char* values[] = {"0",  "1",   "-1", "2",   "0.5", "7.25",    "90",
                                  "45", "360", "-3", "12",  "x",   "1,5",     "",
                                  "3x", " 4 ", "é",  "1e2", "nan", "0.00001", "-99999999999"};
constexpr const char* typed[] = {"0", "-1",   "360", "0.5", "x y", "1e9", "nan",
                                 "é", "12 3", "😀",   "\t",  "7",   "."};
constexpr const char* characters[] = {"a", "c", "v", "x", "z", "7", "-", ".", "U+D83D", "U+0301"};
constexpr const char* names[] = {"A", "Camera 1", "", "\xc3\xbc", "A \"name\" \\"};
constexpr const char* times[] = {"0", "0.04", "2.5", "1000", "-1"};
constexpr const char* items[] = {"composition", "footage", "none"};

// Whether the name can be written in a line, and is not an index.
bool is_plain(const std::string& name) {
    return !name.empty() && name[0] != '#' && std::none_of(name.begin(), name.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' || c == 0x7f;
    });
}

// By a name if possible, so that shrinking the steps does not change which layer it is.
std::string layer(const std::vector<const Layer*>& layers, std::size_t index) {
    const auto first = std::find_if(layers.begin(), layers.end(), [&](const Layer* it) {
        return it->name == layers[index]->name;
    });
    if (*first == layers[index] && is_plain((*first)->name)) return quote_word((*first)->name);
    return "#" + std::to_string(index);
}

// The same for an entry of a pop-up.
std::string entry(const std::vector<std::string>& entries, std::size_t index) {
    const auto first = std::find(entries.begin(), entries.end(), entries[index]);
    if (first == entries.begin() + static_cast<std::ptrdiff_t>(index) && is_plain(*first))
        return *first;
    return "#" + std::to_string(index);
}

} // namespace

Step RandomUser::next(Session& session) {
    const std::vector<const Layer*> layers = session.host().document.scene().layers();
    if (layers.size() > max_layers) {
        const bool was_made = !session.host().document.undo_names().empty();
        return {was_made ? "undo" : "remove " + layer(layers, below(layers.size())), "idle"};
    }
    const Dialog dialog = session.dialog();
    std::vector<Control> controls;
    if (dialog.visible)
        session.enter([&] { controls = session.dialog_driver().controls(dialog.panel); });
    if (!dialog.visible && chance(30)) return {"open"};
    if (chance(10)) return {"idle"};
    if (chance(6)) return open_or_close();
    if (chance(_input == Input::Actions ? 30 : 12)) return edit_composition(layers);
    std::erase_if(controls, [](const Control& it) { return !it.enabled; });
    if (controls.empty()) return {"idle"};
    return _input == Input::Actions || chance(15) ? use_control(controls, session.control_names())
                                                  : post_events(controls);
}

Step RandomUser::open_or_close() {
    constexpr const char* ways[] = {"menu", "menu", "open", "close-panel", "state"};
    return {any(ways)};
}

Step RandomUser::edit_composition(const std::vector<const Layer*>& layers) {
    if (layers.empty()) return {"undo", "idle"};
    const std::string one = layer(layers, below(layers.size()));
    // The first edits do not matter to the dialog, so a user of events leaves them out.
    constexpr std::size_t first_for_events = 5, edits = 14;
    const std::size_t first = _input == Input::Actions ? 0 : first_for_events;
    switch (first + below(edits - first)) {
    case 0:
        return {"rename " + one + " " + quote_word(any(names))};
    case 1:
        return {"move " + one + " " + std::to_string(below(layers.size()))};
    case 2:
        return {std::string("time ") + any(times)};
    case 3:
        return {std::string("active ") + any(items), "idle"};
    case 4:
        return {"answer " + std::to_string(1 + below(3))};
    case 5:
        return {"add-camera " + quote_word(any(names))};
    case 6:
        return {"remove " + one, "idle"};
    case 7:
    case 8:
        return {"undo", "idle"};
    case 9:
        return {"redo", "idle"};
    case 10:
        return {"deselect"};
    case 11:
        return {"select-all"};
    default: {
        Step step{"select"};
        for (std::size_t count = 1 + below(layers.size()); count > 0; --count)
            step[0] += " " + layer(layers, below(layers.size()));
        return step;
    }
    }
}

Step RandomUser::use_control(const std::vector<Control>& controls,
                             const ControlNames& control_names) {
    std::vector<const Control*> usable;
    for (const Control& it : controls)
        if (it.id && (it.kind == "button" || it.kind == "picture" || it.kind == "check box" ||
                      it.kind == "radio button" || it.kind == "pop-up" || it.kind == "edit"))
            usable.push_back(&it);
    if (usable.empty()) return {"idle"};
    // Buttons are few, but do most.
    const Control* control = usable[below(usable.size())];
    for (const Control* it : usable)
        if (it->kind == "button" && chance(12)) control = it;
    const std::string name = control_names.name_or_id(*control->id);
    std::string value;
    if (control->kind == "button" || control->kind == "picture")
        return {"click " + quote_word(name)};
    if (control->kind == "check box")
        value = std::get<bool>(control->value) ? "off" : "on";
    else if (control->kind == "radio button")
        value = "on";
    else if (control->kind == "edit")
        value = any(values);
    else if (control->entries && !control->entries->empty())
        value = entry(*control->entries, below(control->entries->size()));
    else
        return {"click " + quote_word(name)};
    return {"set " + quote_word(name + "=" + value)};
}

// In a control or near one.
std::string RandomUser::point(const std::vector<Control>& controls) {
    const Control& it = controls[below(controls.size())];
    const auto between = [&](double from, double to) {
        const double inside = from + (to - from) * static_cast<double>(below(101)) / 100;
        return std::to_string(static_cast<int>(inside + (chance(10) ? 20.0 : 0.0)));
    };
    const std::string x = between(it.left, it.right);
    return x + " " + between(it.top, it.bottom);
}

std::string RandomUser::modifiers() {
    if (chance(70)) return "";
    constexpr const char* keys[] = {" shift", " command", " option", " control", " shift command"};
    return any(keys);
}

Step RandomUser::post_events(const std::vector<Control>& controls) {
    Step step;
    const std::string at = point(controls);
    switch (below(10)) {
    case 0: { // a drag
        const std::string to = point(controls);
        step = {"mouse down " + at, "mouse move " + to, "mouse up " + to};
        break;
    }
    case 1:
        step = {"wheel " + at + " " + std::to_string(static_cast<int>(below(7)) - 3) + " " +
                std::to_string(static_cast<int>(below(19)) - 9)};
        break;
    case 2:
    case 3: {
        const auto keys = keys_with_names();
        const bool named = chance(70);
        const std::string key = named ? keys[below(keys.size())].name : any(characters);
        const std::string held = modifiers();
        step = {"key " + key + held};
        break;
    }
    case 4:
        step = {"type " + quote_word(any(typed))};
        break;
    case 5: { // half a click, or one of another button
        constexpr const char* halves[] = {"down", "up", "move"};
        const std::string half = any(halves);
        const std::string button = chance(40) ? " right" : "";
        step = {"mouse " + half + " " + at + button};
        break;
    }
    default: {
        const std::string clicks = chance(15) ? " double" : "";
        const std::string how = at + clicks + modifiers();
        step = {"mouse down " + how, "mouse up " + how};
        break;
    }
    }
    if (chance(70)) step.push_back("wait");
    return step;
}

} // namespace minihost
