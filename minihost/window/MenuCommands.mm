#include "minihost/window/MenuCommands.h"

#include "minihost/window/FilePanel.h"
#include "minihost/window/Prompts.h"
#include "minihost/window/WindowStyle.h"

#include <filesystem>

using namespace minihost;

namespace {

constexpr double zoom_step = 1.25;

// One command. An empty title is a separator.
struct Command {
    const char* menu;
    const char* title;
    const char* action;
    const char* key; // with Ctrl; a capital letter with Shift too
    int tag = 0;
};
constexpr Command commands[] = {
    {"File", "Open…", "openScene:", "o"},
    {"File", "Save", "saveScene:", "s"},
    {"File", "Save As…", "saveSceneAs:", "S"},
    {"File", "", "", ""},
    {"File", "Export Picture…", "exportPicture:", "e"},
    {"File", "", "", ""},
    {"File", "Quit", "quit:", "q"},
    {"Edit", "Undo", "undoStep:", "z"},
    {"Edit", "Redo", "redoStep:", "Z"},
    {"Edit", "", "", ""},
    {"Edit", "Select All", "selectAllLayers:", "a"},
    {"Edit", "Deselect", "deselectLayers:", "A"},
    {"View", "Camera", "chooseView:", "1", static_cast<int>(ViewKind::Camera)},
    {"View", "Front", "chooseView:", "2", static_cast<int>(ViewKind::Front)},
    {"View", "Top", "chooseView:", "3", static_cast<int>(ViewKind::Top)},
    {"View", "Left", "chooseView:", "4", static_cast<int>(ViewKind::Left)},
    {"View", "Custom", "chooseView:", "5", static_cast<int>(ViewKind::Custom)},
    {"View", "", "", ""},
    {"View", "Zoom In", "zoomIn:", "="},
    {"View", "Zoom Out", "zoomOut:", "-"},
    {"View", "Reset View", "resetView:", "0"},
};

// The same file name with another extension.
std::string with_extension(const std::string& path, const char* extension) {
    return std::filesystem::path(path).replace_extension(extension).string();
}

// Shows an error instead of throwing it; whether there was none.
template <typename Body>
bool attempt(const char* what, const Body& body) {
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        show_error(what, error.what());
        return false;
    }
}

} // namespace

@implementation MenuCommands
- (id)initWithEditor:(SceneEditor*)editor {
    self = [super init];
    if (self) _editor = editor;
    return self;
}

// The menus.

- (void)addCommand:(const Command&)command to:(NSMenu*)menu {
    if (!*command.title) {
        [menu addItem:[NSMenuItem separatorItem]];
        return;
    }
    NSMenuItem* item = [menu addItemWithTitle:style::printable_string(command.title)
                                       action:sel_registerName(command.action)
                                keyEquivalent:style::printable_string(command.key)];
    [item setTarget:self];
    [item setTag:command.tag];
}

- (NSMenu*)addMenu:(NSString*)title to:(NSMenu*)bar {
    NSMenuItem* item = [bar addItemWithTitle:title action:0 keyEquivalent:@""];
    NSMenu* menu = [[[NSMenu alloc] initWithTitle:title] autorelease];
    [item setSubmenu:menu];
    return menu;
}

- (NSMenu*)menuBar {
    NSMenu* bar = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    NSMenu* menu = nil;
    for (const Command& command : commands) {
        NSString* title = style::printable_string(command.menu);
        if (![[menu title] isEqualToString:title]) menu = [self addMenu:title to:bar];
        [self addCommand:command to:menu];
    }
    menu = [self addMenu:@"Window" to:bar];
    NSInteger index = 0;
    for (const MenuItem& command : _editor->session().host().menu()) {
        NSMenuItem* item = [menu addItemWithTitle:style::printable_string(command.text)
                                           action:@selector(choosePluginCommand:)
                                    keyEquivalent:index == 0 ? @"t" : @""];
        [item setTarget:self];
        [item setTag:index++];
    }
    return bar;
}

- (const MenuItem*)pluginCommandOf:(NSMenuItem*)item {
    const auto& menu = _editor->session().host().menu();
    const auto index = static_cast<std::size_t>([item tag]);
    return index < menu.size() ? &menu[index] : nullptr;
}

- (BOOL)validatePluginCommand:(NSMenuItem*)item {
    Session& session = _editor->session();
    session.enter([&] { session.host().update_menu(); });
    const MenuItem* command = [self pluginCommandOf:item];
    if (!command) return NO;
    [item setTitle:style::printable_string(command->text)];
    [item setState:command->checked ? NSOnState : NSOffState];
    return command->enabled;
}

- (BOOL)validateMenuItem:(NSMenuItem*)item {
    const SEL action = [item action];
    if (action == @selector(choosePluginCommand:)) return [self validatePluginCommand:item];
    if (action == @selector(chooseView:)) {
        const BOOL chosen = [item tag] == static_cast<NSInteger>(_editor->viewpoint.kind());
        [item setState:chosen ? NSOnState : NSOffState];
    }
    if (action == @selector(undoStep:)) {
        [item setTitle:style::printable_string(_editor->undo_title())];
        return _editor->can_undo();
    }
    if (action == @selector(redoStep:)) {
        [item setTitle:style::printable_string(_editor->redo_title())];
        return _editor->can_redo();
    }
    if (action == @selector(selectAllLayers:)) return _editor->scene().layer_count() > 0;
    if (action == @selector(deselectLayers:)) return !_editor->scene().selection().empty();
    return YES;
}

- (void)choosePluginCommand:(NSMenuItem*)item {
    const MenuItem* command = [self pluginCommandOf:item];
    if (!command) return;
    const AEGP_Command number = command->command;
    Session& session = _editor->session();
    session.enter([&] { session.host().choose(number); });
}

// File.

- (BOOL)saveTo:(const std::string&)path {
    SceneEditor& editor = *_editor;
    return attempt("The scene could not be saved", [&] { editor.save(path); });
}

// Whether the scene may be closed: it has no unsaved changes, or they are now saved or discarded.
- (BOOL)mayCloseScene {
    if (!_editor->has_changes()) return YES;
    switch (ask_to_save(_editor->file_name())) {
    case SaveAnswer::Save:
        return [self saveTo:_editor->path()];
    case SaveAnswer::Discard:
        return YES;
    default:
        return NO;
    }
}

- (void)openScene:(id)__attribute__((unused))sender {
    if (![self mayCloseScene]) return;
    const auto path = run_file_panel(
        {"Open a Scene", "Open", with_extension(_editor->path(), ".json"), {".json"}, true});
    SceneEditor& editor = *_editor;
    if (path) attempt("The scene could not be opened", [&] { editor.open(*path); });
}
- (void)saveScene:(id)__attribute__((unused))sender {
    [self saveTo:_editor->path()];
}
- (void)saveSceneAs:(id)__attribute__((unused))sender {
    const auto path =
        run_file_panel({"Save the Scene As", "Save", _editor->path(), {".json"}, false});
    if (path) [self saveTo:*path];
}
- (void)exportPicture:(id)__attribute__((unused))sender {
    const auto path = run_file_panel({"Export a Picture (.png, .svg)",
                                      "Export",
                                      with_extension(_editor->path(), ".png"),
                                      {".png", ".svg"},
                                      false});
    SceneEditor& editor = *_editor;
    if (path) attempt("The picture could not be written", [&] { editor.export_picture(*path); });
}

// The application quits only between events, never inside a menu or a modal panel.
- (void)quit:(id)__attribute__((unused))sender {
    _wantsToQuit = YES;
}
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)__attribute__((unused))
                                                          application {
    // The host's own prompts stay until they are answered; an alert of the plug-in's is closed.
    if (prompt_is_open()) return NSTerminateCancel;
    _wantsToQuit = YES;
    if ([NSApp modalWindow]) [NSApp abortModal];
    return NSTerminateCancel;
}
- (void)quitIfWanted {
    if (!_wantsToQuit || [NSApp modalWindow]) return;
    _wantsToQuit = NO;
    _hasQuit = [self mayCloseScene];
}
- (BOOL)hasQuit {
    return _hasQuit;
}

// Edit.

- (void)perform:(const char*)action {
    SceneEditor& editor = *_editor;
    attempt("This could not be done", [&] { editor.perform(action); });
}
- (void)undoStep:(id)__attribute__((unused))sender {
    [self perform:"undo"];
}
- (void)redoStep:(id)__attribute__((unused))sender {
    [self perform:"redo"];
}
- (void)selectAllLayers:(id)__attribute__((unused))sender {
    [self perform:"select-all"];
}
- (void)deselectLayers:(id)__attribute__((unused))sender {
    [self perform:"deselect"];
}

// View.

- (void)chooseView:(NSMenuItem*)item {
    _editor->viewpoint.choose(static_cast<ViewKind>([item tag]));
}
- (void)zoomIn:(id)__attribute__((unused))sender {
    _editor->viewpoint.zoom(zoom_step);
}
- (void)zoomOut:(id)__attribute__((unused))sender {
    _editor->viewpoint.zoom(1 / zoom_step);
}
- (void)resetView:(id)__attribute__((unused))sender {
    _editor->viewpoint.reset();
}
@end
