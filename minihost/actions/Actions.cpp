#include "minihost/actions/Actions.h"

#include "minihost/actions/EventActions.h"
#include "minihost/actions/State.h"
#include "minihost/model/Numbers.h"

#include <ostream>

namespace minihost {

namespace {

// --- Helpers

Document& document(Session& session) {
    return session.host().document;
}

// A layer by its name, or by "#" and its index.
LayerId layer(Session& session, const std::string& word) {
    const Scene& scene = session.host().document.scene();
    const std::vector<const Layer*> layers = scene.layers();
    for (const Layer* it : layers)
        if (it->name == word) return it->id;
    if (word.starts_with('#'))
        if (const auto index = parse_number<std::size_t>(word.substr(1)))
            if (*index < layers.size()) return layers[*index]->id;
    throw ActionError("there is no layer \"" + word + "\"");
}

template <typename Number>
Number number(const std::string& word, Number min, Number max) {
    const auto value = parse_number<Number>(word);
    if (!value || !(*value >= min && *value <= max))
        throw ActionError("\"" + word + "\" is no number from " + std::to_string(min) + " to " +
                          std::to_string(max));
    return *value;
}

// The panel of the visible dialog, and the id of a control in it.
struct ControlInDialog {
    const PanelView* panel;
    int id;
};
ControlInDialog find_control(Session& session, const std::string& name) {
    const Dialog dialog = session.dialog();
    if (!dialog.visible)
        throw ActionError("control '" + name + "': the dialog is not " +
                          (dialog.exists ? "visible" : "there"));
    const auto id = session.control_names().id_of(name);
    if (!id) throw ActionError("there is no control '" + name + "'");
    return {dialog.panel, *id};
}

void choose_command(Session& session) {
    session.enter([&] {
        session.host().update_menu();
        session.host().choose(session.command().command);
    });
}

// --- The dialog

void idle(Session& session, const Words&) {
    session.enter([&] { session.host().idle(); });
}

void menu(Session& session, const Words&) {
    choose_command(session);
}

void open(Session& session, const Words&) {
    if (!session.dialog().visible) choose_command(session);
    idle(session, {});
}

void close_panel(Session& session, const Words&) {
    bool closed = false;
    session.enter([&] { closed = session.host().close_panels(); });
    if (!closed) throw ActionError("no panel is open");
}

void set(Session& session, const Words& words) {
    const std::size_t equals = words[0].find('=');
    const std::string name = words[0].substr(0, equals), value = words[0].substr(equals + 1);
    const ControlInDialog control = find_control(session, name);
    session.enter([&] { session.dialog_driver().set(control.panel, control.id, name, value); });
}

void click(Session& session, const Words& words) {
    const ControlInDialog control = find_control(session, words[0]);
    session.enter([&] { session.dialog_driver().click(control.panel, control.id, words[0]); });
}

void answer(Session& session, const Words& words) {
    session.dialog_driver().answer_next_alert(number(words[0], 1, 9));
}

// Nothing is left to do: posted events are handled before every action.
void wait(Session&, const Words&) {}

// --- The composition

void select(Session& session, const Words& words) {
    Selection selection;
    for (const std::string& word : words) selection.push_back(layer(session, word));
    document(session).select(std::move(selection));
}

void select_all(Session& session, const Words&) {
    Selection selection;
    for (const Layer* it : document(session).scene().layers()) selection.push_back(it->id);
    document(session).select(std::move(selection));
}

void deselect(Session& session, const Words&) {
    document(session).select({});
}

void add_camera(Session& session, const Words& words) {
    const Composition& composition = document(session).scene().composition;
    Layer camera;
    camera.name = words[0];
    camera.kind = LayerKind::Camera;
    camera.transform.anchor_point = camera.transform.position = composition.middle();
    // A 50 mm lens and 36 mm film: the composition exactly fills the picture.
    camera.transform.position[2] = -composition.width * 50.0 / 36.0;
    document(session).add_layer(std::move(camera), 0);
}

void remove(Session& session, const Words& words) {
    document(session).remove_layer(layer(session, words[0]));
}

void rename(Session& session, const Words& words) {
    document(session).rename_layer(layer(session, words[0]), words[1]);
}

void move(Session& session, const Words& words) {
    const LayerId moved = layer(session, words[0]);
    const std::size_t last = document(session).scene().layer_count() - 1;
    document(session).move_layer(moved, number<std::size_t>(words[1], 0, last));
}

void time(Session& session, const Words& words) {
    document(session).composition().time = number(words[0], -max_seconds, max_seconds);
}

void active(Session& session, const Words& words) {
    const auto item = active_item(words[0]);
    if (!item)
        throw ActionError("\"" + words[0] + "\" is none of \"composition\", \"footage\", \"none\"");
    document(session).set_active(*item);
}

void undo(Session& session, const Words&) {
    if (!document(session).undo()) throw ActionError("there is nothing to undo");
}

void redo(Session& session, const Words&) {
    if (!document(session).redo()) throw ActionError("there is nothing to do again");
}

// --- Output and files

void state(Session& session, const Words&) {
    session.out() << state_line(session) << std::flush;
}

void load(Session& session, const Words& words) {
    session.open_scene(words[0]);
}
void save(Session& session, const Words& words) {
    session.save_scene(words[0]);
}
void preview(Session& session, const Words& words) {
    session.save_preview(words[0]);
}
void panel(Session& session, const Words& words) {
    session.save_panel(words[0]);
}

constexpr Action table[] = {
    {"menu", "", "Chooses the plug-in's menu command.", 0, 0, menu},
    {"idle", "", "Makes one idle call.", 0, 0, idle},
    {"open", "", "Chooses the command unless the dialog is visible, then makes one idle call.", 0,
     0, open},
    {"close-panel", "", "Disposes of the panel; the next \"menu\" creates a new one.", 0, 0,
     close_panel},
    {"set", "NAME=VALUE", "Sets a control as a user would.", 1, 1, set},
    {"click", "NAME", "Clicks a control.", 1, 1, click},
    {"mouse", "down|up|move X Y [right] [double] [shift] [control] [option] [command]",
     "Presses, releases or moves the mouse at a point of the dialog (as in \"state\").", 3, -1,
     mouse_action, true},
    {"wheel", "X Y DX DY", "Turns the wheel at a point of the dialog, by lines.", 4, 4,
     wheel_action, true},
    {"key", "KEY [shift] [control] [option] [command]",
     "Presses a key, given by name (\"return\") or character.", 1, -1, key_action, true},
    {"type", "TEXT", "Types a text.", 1, 1, type_action, true},
    {"wait", "", "Handles the mouse, wheel, key and type events so far, as any other action does.",
     0, 0, wait},
    {"select", "LAYER...", "Selects exactly these layers, given by name or #index.", 1, -1, select},
    {"select-all", "", "Selects every layer, the top one first.", 0, 0, select_all},
    {"deselect", "", "Selects nothing.", 0, 0, deselect},
    {"add-camera", "NAME", "Adds a camera as the top layer.", 1, 1, add_camera},
    {"remove", "LAYER", "Removes a layer.", 1, 1, remove},
    {"rename", "LAYER NAME", "Renames a layer.", 2, 2, rename},
    {"move", "LAYER INDEX", "Moves a layer to this index.", 2, 2, move},
    {"time", "SECONDS", "Sets the composition's current time.", 1, 1, time},
    {"active", "ITEM", "Sets the active item: composition, footage or none.", 1, 1, active},
    {"undo", "", "Undoes one step.", 0, 0, undo},
    {"redo", "", "Redoes one step.", 0, 0, redo},
    {"answer", "N", "Answers the next alert panel with its N-th button.", 1, 1, answer},
    {"state", "", "Prints menu, dialog, controls, selection and steps as one line of JSON.", 0, 0,
     state},
    {"load", "FILE", "Opens another scene; the plug-in and its panel stay.", 1, 1, load},
    {"save", "FILE", "Writes the scene.", 1, 1, save},
    {"preview", "FILE", "Writes a picture of the composition (.png, .svg).", 1, 1, preview},
    {"panel", "FILE", "Writes a picture of the dialog (.png).", 1, 1, panel},
};

} // namespace

std::span<const Action> actions() {
    return table;
}

ParsedAction parse_action(const Words& words, const std::string& location) {
    for (const Action& action : table) {
        if (words.empty() || words[0] != action.name) continue;
        const Words arguments(words.begin() + 1, words.end());
        const int count = static_cast<int>(arguments.size());
        const bool fits = count >= action.min_arguments &&
                          (action.max_arguments < 0 || count <= action.max_arguments);
        if (!fits || (action.run == set && arguments[0].find('=') == std::string::npos)) {
            std::string message = location + ": \"" + action.name + "\" ";
            if (action.max_arguments == 0)
                message += "takes no argument";
            else
                message.append("is used as: ")
                    .append(action.name)
                    .append(" ")
                    .append(action.arguments);
            throw UsageError(message);
        }
        return {&action, arguments, location};
    }
    throw UsageError(location + ": there is no action \"" + (words.empty() ? "" : words[0]) + "\"");
}

void run_action(Session& session, const ParsedAction& parsed) {
    try {
        if (!parsed.action->posts_event) session.settle();
        parsed.action->run(session, parsed.arguments);
    } catch (const std::runtime_error& error) {
        throw ActionError(parsed.location + ": " + parsed.action->name + ": " + error.what());
    }
}

} // namespace minihost
