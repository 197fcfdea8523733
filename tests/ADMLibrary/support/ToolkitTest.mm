#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include <ostream>

bool operator==(const Rect& a, const Rect& b) {
    return a.top == b.top && a.left == b.left && a.bottom == b.bottom && a.right == b.right;
}

bool operator==(const Point& a, const Point& b) {
    return a.v == b.v && a.h == b.h;
}

std::ostream& operator<<(std::ostream& out, const Rect& r) {
    return out << "{" << r.top << ", " << r.left << ", " << r.bottom << ", " << r.right << "}";
}

std::ostream& operator<<(std::ostream& out, const Point& p) {
    return out << "{" << p.v << ", " << p.h << "}";
}

NSControl* control_of(_Opaque_ADMItem* item) {
    return adm::record(item)->_control;
}

NSTextField* label_of(_Opaque_ADMItem* item) {
    return adm::record(item)->_label;
}

NSView* view_of(_Opaque_ADMDialog* dialog) {
    return adm::record(dialog)->_view;
}

namespace user {

namespace {

NSEvent* mouse(NSEventType type, NSWindow* window, NSPoint location) {
    return [NSEvent mouseEventWithType:type
                              location:location
                         modifierFlags:0
                             timestamp:0
                          windowNumber:[window windowNumber]
                               context:nil
                           eventNumber:0
                            clickCount:1
                              pressure:1];
}

NSEvent* key(NSWindow* window, NSString* characters) {
    return [NSEvent keyEventWithType:NSKeyDown
                            location:NSMakePoint(0, 0)
                       modifierFlags:0
                           timestamp:0
                        windowNumber:[window windowNumber]
                             context:nil
                          characters:characters
         charactersIgnoringModifiers:characters
                           isARepeat:NO
                             keyCode:0];
}

NSString* character(unichar code) {
    return [NSString stringWithCharacters:&code length:1];
}

// The control's own loop takes the end of the click from the queue.
void press_and_release(NSView* view, NSPoint point, NSArray* then) {
    NSWindow* window = [view window];
    const NSPoint location = [view convertPoint:point toView:nil];
    [NSApp postEvent:mouse(NSLeftMouseUp, window, location) atStart:NO];
    for (NSEvent* event in then) [NSApp postEvent:event atStart:NO];
    [NSApp sendEvent:mouse(NSLeftMouseDown, window, location)];
    while (NSEvent* left = [NSApp nextEventMatchingMask:NSAnyEventMask
                                              untilDate:nil
                                                 inMode:NSEventTrackingRunLoopMode
                                                dequeue:YES])
        [NSApp sendEvent:left];
}

NSPoint middle_of(NSView* view) {
    const NSRect bounds = [view bounds];
    return NSMakePoint(NSMidX(bounds), NSMidY(bounds));
}

} // namespace

void click(NSView* view) {
    click_at(view, middle_of(view));
}

void click_at(NSView* view, NSPoint point) {
    press_and_release(view, point, nil);
}

void press_key(NSWindow* window, NSString* characters) {
    [NSApp sendEvent:key(window, characters)];
}

void type(NSWindow* window, const char* ascii) {
    for (; *ascii; ++ascii) press_key(window, character(static_cast<unichar>(*ascii)));
}

void enter(NSTextField* field, const char* ascii) {
    [[field window] makeFirstResponder:nil];
    [field selectText:nil];
    type([field window], ascii);
    press_key([field window], character(NSCarriageReturnCharacter));
}

void pick(NSView* pop_up, int entries_below) {
    NSMutableArray* keys = [NSMutableArray array];
    for (int i = 0; i < entries_below; ++i)
        [keys addObject:key([pop_up window], character(NSDownArrowFunctionKey))];
    [keys addObject:key([pop_up window], character(NSCarriageReturnCharacter))];
    press_and_release(pop_up, middle_of(pop_up), keys);
}

} // namespace user

ToolkitTest::ToolkitTest() {
    [NSApplication sharedApplication];
    _window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 600, 500)
                                          styleMask:1
                                            backing:2
                                              defer:YES];
    [_window setReleasedWhenClosed:NO];
    [_window makeKeyAndOrderFront:nil];
}

ToolkitTest::~ToolkitTest() {
    if (_dialog) sADMDialog->Destroy(_dialog);
    [_window close];
    [_window release];
}

_Opaque_ADMDialog* ToolkitTest::dialog() {
    if (!_dialog)
        _dialog = sADMDialog->CreatePanel(nullptr, "panel", 0, nullptr, nullptr, &FakeHost::panels,
                                          reinterpret_cast<AEGP_PanelH>(this),
                                          [_window contentView], &_functions, &_refcon);
    return _dialog;
}

_Opaque_ADMItem* ToolkitTest::add(const char* type, const Rect& r, int id) {
    if (id == 0) id = _next_id += 2;
    return sADMItem->Create(dialog(), id, type, &r, nullptr, nullptr, 0);
}

_Opaque_ADMItem* ToolkitTest::add_text(const char* type, const char* text, const Rect& r, int id) {
    _Opaque_ADMItem* item = add(type, r, id);
    sADMItem->SetText(item, text);
    return item;
}

Rect ToolkitTest::bounds(_Opaque_ADMItem* item) {
    Rect r = {0, 0, 0, 0};
    sADMItem->GetBoundsRect(item, &r);
    return r;
}

std::string ToolkitTest::shown(_Opaque_ADMItem* item) {
    return [[control_of(item) stringValue] UTF8String];
}

void ToolkitTest::put(_Opaque_ADMItem* item, const char* text) {
    [control_of(item) setStringValue:[NSString stringWithUTF8String:text]];
}
