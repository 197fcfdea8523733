#include "minihost/window/FilePanel.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/HostWindow.h"
#include "minihost/model/OutputFile.h"
#include "minihost/window/ListView.h"
#include "minihost/window/Prompts.h"
#include "minihost/window/WindowStyle.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;
using namespace minihost;

namespace {

constexpr double panel_width = 560, panel_height = 360;

struct Entry {
    std::string name;
    bool is_folder;
};

// "..", then folders, then files with one of the extensions, each by name. A folder that cannot be
// read is empty.
std::vector<Entry> entries_of(const fs::path& folder, const std::vector<std::string>& extensions) {
    std::vector<Entry> entries;
    std::error_code error, ignored;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        const bool is_folder = it->is_directory(ignored);
        const bool is_listed = is_folder || std::find(extensions.begin(), extensions.end(),
                                                      extension_of(name)) != extensions.end();
        if (is_listed && name[0] != '.') entries.push_back({name, is_folder});
    }
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::pair(!a.is_folder, a.name) < std::pair(!b.is_folder, b.name);
    });
    entries.insert(entries.begin(), {"..", true});
    return entries;
}

struct FileBrowserState {
    const FilePanelOptions& options;
    fs::path folder;
    std::vector<Entry> entries;
    std::optional<std::string> chosen;
};

} // namespace

// The list of files, which is also the target of the panel's field and buttons.
@interface FileBrowser : ListView {
  @public
    FileBrowserState* _state; // null once the panel has closed
    NSTextField* _field;      // not retained
}
- (void)setPath:(const fs::path&)path;
- (void)showFolder:(const fs::path&)folder;
- (void)acceptPath:(id)sender;
- (void)cancel:(id)sender;
@end

@implementation FileBrowser
- (NSInteger)rowCount {
    return _state ? static_cast<NSInteger>(_state->entries.size()) : 0;
}
- (const Entry&)entry:(NSInteger)row {
    return _state->entries[static_cast<std::size_t>(row)];
}
- (BOOL)isRowSelected:(NSInteger)row {
    return row == [self cursor];
}
- (std::string)emptyText {
    return "";
}
- (void)drawHeader:(NSRect)rect {
    style::draw_text(_state->folder.string(), NSInsetRect(rect, 8, 0),
                     style::color(style::ColorRole::HeaderText));
}
- (void)drawRow:(NSInteger)row inRect:(NSRect)rect color:(NSColor*)color {
    const Entry& entry = [self entry:row];
    style::draw_text(entry.is_folder ? entry.name + "/" : entry.name, NSInsetRect(rect, 8, 0),
                     color);
}
- (void)setPath:(const fs::path&)path {
    [_field setStringValue:style::printable_string(path.string())];
}
- (fs::path)path {
    return [[_field stringValue] UTF8String];
}
- (void)showName:(NSInteger)row {
    if (row < 0 || [self entry:row].is_folder) return;
    [self setPath:_state->folder / [self entry:row].name];
}
- (void)pressRow:(NSInteger)row modifiers:(NSUInteger)__attribute__((unused))modifiers {
    [self showName:row];
}
- (void)dragToRow:(NSInteger)row {
    [self showName:row];
}
- (void)moveToRow:(NSInteger)row extending:(BOOL)__attribute__((unused))extending {
    [self showName:row];
}
- (void)openRow:(NSInteger)row {
    const Entry entry = [self entry:row];
    if (entry.is_folder) {
        [self showFolder:entry.name == ".." ? _state->folder.parent_path()
                                            : _state->folder / entry.name];
        return;
    }
    [self showName:row];
    [self acceptPath:self];
}

- (void)showFolder:(const fs::path&)folder {
    const fs::path name = _state->options.must_exist ? fs::path() : [self path].filename();
    _state->folder = folder;
    _state->entries = entries_of(folder, _state->options.extensions);
    [self setPath:folder / name];
    [self setCursor:-1];
    [self rowsChanged];
    [self setCursor:0];
}

- (void)acceptPath:(id)__attribute__((unused))sender {
    std::error_code ignored;
    fs::path path = [self path];
    if (path.is_relative()) path = _state->folder / path;
    path = path.lexically_normal();
    if (fs::is_directory(path, ignored)) {
        [self showFolder:path.has_filename() ? path : path.parent_path()];
        return;
    }
    if (!path.has_filename()) {
        show_error("There is no such folder", path.string());
        return;
    }
    const FilePanelOptions& options = _state->options;
    // Without an extension it would not be listed the next time.
    if (!options.must_exist && !path.has_extension()) path += options.extensions.front();
    const bool exists = fs::exists(path, ignored);
    if (options.must_exist && !exists) {
        show_error("There is no such file", path.string());
        return;
    }
    if (!options.must_exist && exists && !ask_to_replace(path.filename().string())) return;
    _state->chosen = path.string();
    [NSApp stopModalWithCode:0];
}
- (void)cancel:(id)__attribute__((unused))sender {
    [NSApp stopModalWithCode:0];
}
@end

namespace minihost {

namespace {

void add_button(NSView* view, double x, const std::string& title, id target, SEL action,
                NSString* key) {
    NSButton* button = [[[NSButton alloc] initWithFrame:NSMakeRect(x, 14, 88, 26)] autorelease];
    [button setTitle:style::printable_string(title)];
    [button setFont:style::font()];
    [button setTarget:target];
    [button setAction:action];
    [button setKeyEquivalent:key];
    [view addSubview:button];
}

// Adds the path's field, the list of files and the buttons.
FileBrowser* fill_panel(NSWindow* window, FileBrowserState& state) {
    NSView* content = [window contentView];
    NSTextField* field = [[[NSTextField alloc]
        initWithFrame:NSMakeRect(16, panel_height - 40, panel_width - 32, 24)] autorelease];
    [field setFont:style::font()];
    FileBrowser* browser = [[[FileBrowser alloc]
        initWithFrame:NSMakeRect(16, 54, panel_width - 32, panel_height - 106)] autorelease];
    browser->_state = &state;
    browser->_field = field;
    [field setTarget:browser];
    [field setAction:@selector(acceptPath:)];
    [[field cell] setSendsActionOnEndEditing:NO];
    [content addSubview:field];
    [content addSubview:browser];
    add_button(content, panel_width - 104, state.options.button, browser, @selector(acceptPath:),
               @"\r");
    add_button(content, panel_width - 202, "Cancel", browser, @selector(cancel:), @"\033");
    [window setInitialFirstResponder:field];
    return browser;
}

} // namespace

std::optional<std::string> run_file_panel(const FilePanelOptions& options) {
    const AutoreleasePool pool;
    const OpenPrompt prompt;
    HostWindow* window =
        [[HostWindow alloc] initWithContentRect:NSMakeRect(0, 0, panel_width, panel_height)
                                      styleMask:NSTitledWindowMask];
    [window setTitle:style::printable_string(options.title)];
    [window center];
    FileBrowserState state{options, {}, {}, {}};
    FileBrowser* browser = fill_panel(window, state);
    std::error_code ignored;
    const fs::path start = fs::absolute(options.start, ignored).lexically_normal();
    [browser showFolder:start.parent_path()];
    [browser setPath:start];
    NSWindow* key = [[NSApp keyWindow] retain];
    [NSApp runModalForWindow:window];
    browser->_state = nullptr;
    [window orderOut:nil];
    if ([key isVisible]) [key makeKeyWindow];
    [key release];
    [window release];
    return state.chosen;
}

} // namespace minihost
