#include "minihost/window/FilePanel.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/HostWindows.h"
#include "minihost/model/OutputFile.h"
#include "minihost/window/ListView.h"
#include "minihost/window/Prompts.h"
#include "minihost/window/WindowStyle.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;
using namespace minihost;

namespace {

struct Entry {
    std::string name;
    bool is_folder;
};

bool has_one_of(const fs::path& path, const std::vector<std::string>& extensions) {
    return std::find(extensions.begin(), extensions.end(), extension_of(path.string())) !=
           extensions.end();
}

// The way up first, then folders, then files, each by name. A folder that cannot be read is empty.
std::vector<Entry> entries_of(const fs::path& folder, const std::vector<std::string>& extensions) {
    std::vector<Entry> entries;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        std::error_code unknown;
        const bool is_folder = it->is_directory(unknown);
        if (!name.empty() && name[0] != '.' && (is_folder || has_one_of(it->path(), extensions)))
            entries.push_back({name, is_folder});
    }
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::pair(!a.is_folder, a.name) < std::pair(!b.is_folder, b.name);
    });
    entries.insert(entries.begin(), {"..", true});
    return entries;
}

struct Choosing {
    FileQuestion question;
    fs::path folder;
    std::vector<Entry> entries;
    std::optional<std::string> chosen;
};

} // namespace

@class FileAsker;

@interface FileList : RowList {
  @public
    Choosing* _choosing;
    FileAsker* _asker; // not retained
}
@end

@interface FileAsker : NSObject {
  @public
    Choosing* _choosing;
    NSTextField* _field;
    FileList* _list;
}
- (void)goTo:(const fs::path&)folder;
- (void)take:(id)sender;
- (void)cancel:(id)sender;
@end

@implementation FileList
- (NSInteger)rowCount {
    return _choosing ? static_cast<NSInteger>(_choosing->entries.size()) : 0;
}
- (const Entry&)entry:(NSInteger)row {
    return _choosing->entries[static_cast<std::size_t>(row)];
}
- (BOOL)isRowSelected:(NSInteger)row {
    return row == [self cursor];
}
- (void)drawHeader:(NSRect)rect {
    look::draw_text(_choosing->folder.string(), NSInsetRect(rect, 8, 0),
                    look::color(look::Part::HeaderText));
}
- (void)drawRow:(NSInteger)row inRect:(NSRect)rect color:(NSColor*)color {
    const Entry& entry = [self entry:row];
    look::draw_text(entry.is_folder ? entry.name + "/" : entry.name, NSInsetRect(rect, 8, 0),
                    color);
}
- (void)showName:(NSInteger)row {
    if (row < 0 || [self entry:row].is_folder) return;
    const fs::path path = _choosing->folder / [self entry:row].name;
    [_asker->_field setStringValue:look::string(path.string())];
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
        [_asker goTo:entry.name == ".." ? _choosing->folder.parent_path()
                                        : _choosing->folder / entry.name];
        return;
    }
    [self showName:row];
    [_asker take:self];
}
@end

@implementation FileAsker
- (void)goTo:(const fs::path&)folder {
    const fs::path name = fs::path([[_field stringValue] UTF8String]).filename();
    _choosing->folder = folder;
    _choosing->entries = entries_of(folder, _choosing->question.extensions);
    const fs::path path = _choosing->question.must_exist ? folder / "" : folder / name;
    [_field setStringValue:look::string(path.string())];
    [_list setCursor:-1];
    [_list rowsChanged];
    [_list setCursor:0];
}

- (void)take:(id)__attribute__((unused))sender {
    std::error_code unknown;
    fs::path path([[_field stringValue] UTF8String]);
    if (path.is_relative()) path = _choosing->folder / path;
    path = path.lexically_normal();
    if (fs::is_directory(path, unknown)) {
        [self goTo:path.has_filename() ? path : path.parent_path()];
        return;
    }
    if (!path.has_filename()) {
        tell("There is no such folder", path.string());
        return;
    }
    const FileQuestion& question = _choosing->question;
    // Without, it would not be listed the next time.
    if (!question.must_exist && !path.has_extension()) path += question.extensions.front();
    const bool exists = fs::exists(path, unknown);
    if (question.must_exist && !exists) {
        tell("There is no such file", path.string());
        return;
    }
    if (!question.must_exist && exists && !ask_to_replace(path.filename().string())) return;
    _choosing->chosen = path.string();
    [NSApp stopModalWithCode:1];
}
- (void)cancel:(id)__attribute__((unused))sender {
    [NSApp stopModalWithCode:0];
}
@end

namespace minihost {

namespace {

NSButton* add_button(NSView* view, NSRect frame, const std::string& title, id target, SEL action,
                     NSString* key) {
    NSButton* button = [[[NSButton alloc] initWithFrame:frame] autorelease];
    [button setTitle:look::string(title)];
    [button setFont:look::font()];
    [button setTarget:target];
    [button setAction:action];
    [button setKeyEquivalent:key];
    [view addSubview:button];
    return button;
}

} // namespace

std::optional<std::string> ask_file(const FileQuestion& question) {
    const AutoreleasePool pool;
    const Asking asking;
    Choosing choosing{question, {}, {}, {}};
    std::error_code unknown;
    const fs::path start = fs::absolute(question.start, unknown).lexically_normal();
    constexpr double width = 560, height = 360;
    NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, width, height)
                                                   styleMask:NSTitledWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES];
    claim_window(window);
    [window setReleasedWhenClosed:NO];
    [window setTitle:look::string(question.title)];
    NSView* content = [window contentView];
    FileAsker* asker = [[FileAsker alloc] init];
    asker->_choosing = &choosing;
    NSTextField* field = [[[NSTextField alloc]
        initWithFrame:NSMakeRect(16, height - 40, width - 32, 24)] autorelease];
    [field setFont:look::font()];
    [field setTarget:asker];
    [field setAction:@selector(take:)];
    [[field cell] setSendsActionOnEndEditing:NO];
    [content addSubview:field];
    FileList* list =
        [[[FileList alloc] initWithFrame:NSMakeRect(16, 54, width - 32, height - 106)] autorelease];
    list->_choosing = &choosing;
    list->_asker = asker;
    asker->_field = field;
    asker->_list = list;
    [content addSubview:list];
    add_button(content, NSMakeRect(width - 104, 14, 88, 26), question.button, asker,
               @selector(take:), @"\r");
    add_button(content, NSMakeRect(width - 202, 14, 88, 26), "Cancel", asker, @selector(cancel:),
               @"\033");
    [asker goTo:start.parent_path()];
    [field setStringValue:look::string(start.string())];
    [window center];
    [window setInitialFirstResponder:field];
    NSWindow* key = [[NSApp keyWindow] retain];
    const NSInteger answer = [NSApp runModalForWindow:window];
    list->_choosing = nullptr;
    [window orderOut:nil];
    if ([key isVisible]) [key makeKeyWindow];
    [key release];
    disclaim_window(window);
    [window release];
    [asker release];
    return answer == 1 ? choosing.chosen : std::nullopt;
}

} // namespace minihost
