#include "minihost/check/RandomUser.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/actions/EventActions.h"

#include <algorithm>
#include <iterator>

namespace minihost {

namespace {

// A scene that grows at every press would be all that is tried.
constexpr std::size_t most_layers = 60;

// What somebody may type into a field.
constexpr const char* values[] = {"0",  "1",   "-1", "2",   "0.5", "7.25",    "90",
                                  "45", "360", "-3", "12",  "x",   "1,5",     "",
                                  "3x", " 4 ", "é",  "1e2", "nan", "0.00001", "-99999999999"};
constexpr const char* typed[] = {"0", "-1",   "360", "0.5", "x y", "1e9", "nan",
                                 "é", "12 3", "😀",   "\t",  "7",   "."};
constexpr const char* characters[] = {"a", "c", "v", "x", "z", "7", "-", ".", "U+D83D", "U+0301"};
constexpr const char* names[] = {"A", "Camera 1", "", "\xc3\xbc", "A \"name\" \\"};
constexpr const char* times[] = {"0", "0.04", "2.5", "1000", "-1"};
constexpr const char* items[] = {"composition", "footage", "none"};

// Whether it can stand in a line, and is no index.
bool is_plain(const std::string& name) {
    return !name.empty() && name[0] != '#' && std::none_of(name.begin(), name.end(), [](char c) {
        return static_cast<unsigned char>(c) < ' ' || c == 0x7f;
    });
}

// By its name where that means this one, so that it stays the same when a sequence is made shorter.
std::string layer(const std::vector<const Layer*>& layers, std::size_t index) {
    const auto first = std::find_if(layers.begin(), layers.end(), [&](const Layer* it) {
        return it->name == layers[index]->name;
    });
    if (*first == layers[index] && is_plain((*first)->name)) return quote_word((*first)->name);
    return "#" + std::to_string(index);
}

// The same with an entry of a pop-up.
std::string entry(const std::vector<std::string>& entries, std::size_t index) {
    const auto first = std::find(entries.begin(), entries.end(), entries[index]);
    if (first == entries.begin() + static_cast<std::ptrdiff_t>(index) && is_plain(*first))
        return *first;
    return "#" + std::to_string(index);
}

std::string name_of(const Control& control, const ControlNames& names) {
    const std::string name = names.name_of(*control.id);
    return name.empty() ? std::to_string(*control.id) : name;
}

} // namespace

Deed RandomUser::next(Session& session) {
    const std::vector<const Layer*> layers = session.host().document.scene().layers();
    if (layers.size() > most_layers) {
        const bool was_made = !session.host().document.undo_names().empty();
        return {was_made ? "undo" : "remove " + layer(layers, below(layers.size())), "idle"};
    }
    const Dialog dialog = session.dialog();
    std::vector<Control> controls;
    if (dialog.visible) session.enter([&] { controls = session.screen().controls(dialog.panel); });
    if (!dialog.visible && chance(30)) return {"open"};
    if (chance(10)) return {"idle"};
    if (chance(6)) return open_or_close();
    if (chance(_way == Way::Actions ? 30 : 12)) return edit(layers);
    std::erase_if(controls, [](const Control& it) { return !it.enabled; });
    if (controls.empty()) return {"idle"};
    return _way == Way::Actions || chance(15) ? use(controls, session.control_names())
                                              : use_hands(controls);
}

Deed RandomUser::open_or_close() {
    constexpr const char* ways[] = {"menu", "menu", "open", "close-panel", "state"};
    return {any(ways)};
}

Deed RandomUser::edit(const std::vector<const Layer*>& layers) {
    if (layers.empty()) return {"undo", "idle"};
    const std::string one = layer(layers, below(layers.size()));
    // The hands' user looks after the layers that the dialog is about; the rest is the other's.
    constexpr std::size_t of_actions_alone = 5, all = 14;
    const std::size_t first = _way == Way::Actions ? 0 : of_actions_alone;
    switch (first + below(all - first)) {
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
        Deed deed{"select"};
        for (std::size_t count = 1 + below(layers.size()); count > 0; --count)
            deed[0] += " " + layer(layers, below(layers.size()));
        return deed;
    }
    }
}

Deed RandomUser::use(const std::vector<Control>& controls, const ControlNames& control_names) {
    std::vector<const Control*> usable;
    for (const Control& it : controls)
        if (it.id && (it.kind == "button" || it.kind == "picture" || it.kind == "check box" ||
                      it.kind == "radio button" || it.kind == "pop-up" || it.kind == "edit"))
            usable.push_back(&it);
    if (usable.empty()) return {"idle"};
    // Buttons are few and do most.
    const Control* control = usable[below(usable.size())];
    for (const Control* it : usable)
        if (it->kind == "button" && chance(12)) control = it;
    const std::string name = name_of(*control, control_names);
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

// In a control, or not far from one.
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

Deed RandomUser::use_hands(const std::vector<Control>& controls) {
    Deed deed;
    const std::string at = point(controls);
    switch (below(10)) {
    case 0: { // a drag
        const std::string to = point(controls);
        deed = {"mouse down " + at, "mouse move " + to, "mouse up " + to};
        break;
    }
    case 1:
        deed = {"wheel " + at + " " + std::to_string(static_cast<int>(below(7)) - 3) + " " +
                std::to_string(static_cast<int>(below(19)) - 9)};
        break;
    case 2:
    case 3: {
        const auto keys = keys_with_names();
        const bool named = chance(70);
        const std::string key = named ? keys[below(keys.size())].name : any(characters);
        const std::string held = modifiers();
        deed = {"key " + key + held};
        break;
    }
    case 4:
        deed = {"type " + quote_word(any(typed))};
        break;
    case 5: { // half a click, or another button's
        constexpr const char* halves[] = {"down", "up", "move"};
        const std::string half = any(halves);
        const std::string button = chance(40) ? " right" : "";
        deed = {"mouse " + half + " " + at + button};
        break;
    }
    default: {
        const std::string clicks = chance(15) ? " double" : "";
        const std::string how = at + clicks + modifiers();
        deed = {"mouse down " + how, "mouse up " + how};
        break;
    }
    }
    if (chance(70)) deed.push_back("wait");
    return deed;
}

} // namespace minihost
