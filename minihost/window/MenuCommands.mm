#include "minihost/window/MenuCommands.h"

#include "minihost/preview/Preview.h"
#include "minihost/window/FilePanel.h"
#include "minihost/window/Prompts.h"
#include "minihost/window/WindowStyle.h"

#include <filesystem>

using namespace minihost;

namespace {

constexpr double menu_zoom = 1.25;

// The commands of one menu, in their order. An empty title is a line between them.
struct Row {
    const char* menu;
    const char* title;
    const char* action;
    const char* key; // with Ctrl; a capital letter with Shift too
    int tag = 0;
};
constexpr Row rows[] = {
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

// A file beside another, with another extension.
std::string beside(const std::string& path, const char* extension) {
    return std::filesystem::path(path).replace_extension(extension).string();
}

// Tells what could not be done instead of throwing on.
template <typename Body>
bool attempt(const char* what, const Body& body) {
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        tell(what, error.what());
        return false;
    }
}

} // namespace

@implementation Commands
- (id)initWithWorkbench:(Workbench*)bench {
    self = [super init];
    if (self) _bench = bench;
    return self;
}

// The menus.

- (void)addRow:(const Row&)row to:(NSMenu*)menu {
    if (!*row.title) {
        [menu addItem:[NSMenuItem separatorItem]];
        return;
    }
    NSMenuItem* item = [menu addItemWithTitle:look::string(row.title)
                                       action:sel_registerName(row.action)
                                keyEquivalent:look::string(row.key)];
    [item setTarget:self];
    [item setTag:row.tag];
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
    for (const Row& row : rows) {
        NSString* title = look::string(row.menu);
        if (![[menu title] isEqualToString:title]) menu = [self addMenu:title to:bar];
        [self addRow:row to:menu];
    }
    menu = [self addMenu:@"Window" to:bar];
    NSInteger index = 0;
    for (const MenuItem& command : _bench->session().host().menu()) {
        NSMenuItem* item = [menu addItemWithTitle:look::string(command.text)
                                           action:@selector(choosePlugin:)
                                    keyEquivalent:index == 0 ? @"t" : @""];
        [item setTarget:self];
        [item setTag:index++];
    }
    return bar;
}

- (const MenuItem*)commandOf:(NSMenuItem*)item {
    const auto& commands = _bench->session().host().menu();
    const auto index = static_cast<std::size_t>([item tag]);
    return index < commands.size() ? &commands[index] : nullptr;
}

- (BOOL)validatePlugin:(NSMenuItem*)item {
    Session& session = _bench->session();
    session.enter([&] { session.host().update_menu(); });
    const MenuItem* command = [self commandOf:item];
    if (!command) return NO;
    [item setTitle:look::string(command->text)];
    [item setState:command->checked ? NSOnState : NSOffState];
    return command->enabled;
}

- (BOOL)validateMenuItem:(NSMenuItem*)item {
    const SEL action = [item action];
    if (action == @selector(choosePlugin:)) return [self validatePlugin:item];
    if (action == @selector(chooseView:)) {
        const BOOL chosen = [item tag] == static_cast<NSInteger>(_bench->view.kind());
        [item setState:chosen ? NSOnState : NSOffState];
    }
    if (action == @selector(undoStep:)) {
        [item setTitle:look::string(_bench->undo_title())];
        return _bench->can_undo();
    }
    if (action == @selector(redoStep:)) {
        [item setTitle:look::string(_bench->redo_title())];
        return _bench->can_redo();
    }
    if (action == @selector(selectAllLayers:)) return _bench->scene().layer_count() > 0;
    if (action == @selector(deselectLayers:)) return !_bench->scene().selection().empty();
    return YES;
}

- (void)choosePlugin:(NSMenuItem*)item {
    const MenuItem* command = [self commandOf:item];
    if (!command) return;
    const AEGP_Command number = command->command;
    Session& session = _bench->session();
    session.enter([&] { session.host().choose(number); });
}

// File.

- (BOOL)saveTo:(const std::string&)path {
    Workbench& bench = *_bench;
    return attempt("The scene could not be saved", [&] { bench.save(path); });
}

// Whether what is open may go: it is saved, has no changes, or the user does not want them.
- (BOOL)mayLoseScene {
    if (!_bench->has_changes()) return YES;
    switch (ask_to_save(_bench->file_name())) {
    case SaveAnswer::Save:
        return [self saveTo:_bench->path()];
    case SaveAnswer::Discard:
        return YES;
    default:
        return NO;
    }
}

- (void)openScene:(id)__attribute__((unused))sender {
    if (![self mayLoseScene]) return;
    const auto path =
        ask_file({"Open a Scene", "Open", beside(_bench->path(), ".json"), {".json"}, true});
    Workbench& bench = *_bench;
    if (path) attempt("The scene could not be opened", [&] { bench.open(*path); });
}
- (void)saveScene:(id)__attribute__((unused))sender {
    [self saveTo:_bench->path()];
}
- (void)saveSceneAs:(id)__attribute__((unused))sender {
    const auto path = ask_file({"Save the Scene As", "Save", _bench->path(), {".json"}, false});
    if (path) [self saveTo:*path];
}
- (void)exportPicture:(id)__attribute__((unused))sender {
    const auto path = ask_file({"Export a Picture (.png, .svg)",
                                "Export",
                                beside(_bench->path(), ".png"),
                                {".png", ".svg"},
                                false});
    Workbench& bench = *_bench;
    if (path) attempt("The picture could not be written", [&] { bench.export_picture(*path); });
}

// The window closes only between events, never from within a menu or a modal panel.
- (void)quit:(id)__attribute__((unused))sender {
    _wantsToQuit = YES;
}
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)__attribute__((unused))
                                                          application {
    // The host's own questions wait for their answer; an alert of the plug-in's is taken as read.
    if (is_asking()) return NSTerminateCancel;
    _wantsToQuit = YES;
    if ([NSApp modalWindow]) [NSApp abortModal];
    return NSTerminateCancel;
}
- (void)finishWhatWaits {
    if (!_wantsToQuit || [NSApp modalWindow]) return;
    _wantsToQuit = NO;
    _finished = [self mayLoseScene];
}
- (BOOL)isFinished {
    return _finished;
}

// Edit.

- (void)perform:(const char*)action {
    Workbench& bench = *_bench;
    attempt("This could not be done", [&] { bench.perform(action); });
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
    _bench->view.choose(static_cast<ViewKind>([item tag]));
}
- (void)zoomIn:(id)__attribute__((unused))sender {
    _bench->view.zoom(menu_zoom);
}
- (void)zoomOut:(id)__attribute__((unused))sender {
    _bench->view.zoom(1 / menu_zoom);
}
- (void)resetView:(id)__attribute__((unused))sender {
    _bench->view.reset();
}
@end
