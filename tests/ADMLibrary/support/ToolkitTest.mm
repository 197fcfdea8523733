#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include <AppKit/NSDisplayStandIn.h>
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

void user::click_at(NSView* view, NSPoint point) {
    NSPostClick(view, point);
    NSDispatchEvents();
}

void user::click(NSView* view) {
    click_at(view, NSMakePoint(NSMidX([view bounds]), NSMidY([view bounds])));
}

void user::type(NSString* text) {
    NSPostText(text);
    NSDispatchEvents();
}

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
    sADMDialog->Destroy(_dialog);
    [_window close];
    [_window release];
}

_Opaque_ADMDialog* ToolkitTest::make_panel(ADMDialogInitProc init) {
    return sADMDialog->CreatePanel(nullptr, "panel", 0, init, nullptr, &FakeHost::panels,
                                   reinterpret_cast<AEGP_PanelH>(this), [_window contentView],
                                   &_functions, &_refcon);
}

_Opaque_ADMDialog* ToolkitTest::make_window(ADMDialogStyle style, ADMDialogInitProc init) {
    return sADMDialog->Create(nullptr, "window", 0, style, init, nullptr, 0);
}

_Opaque_ADMDialog* ToolkitTest::dialog() {
    return _dialog ? _dialog : _dialog = make_panel();
}

_Opaque_ADMItem* ToolkitTest::add(const char* type, const Rect& r, int id) {
    const int own_id = kAnyId == id ? _next_id += 2 : id;
    return sADMItem->Create(dialog(), own_id, type, &r, nullptr, nullptr, 0);
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

Rect ToolkitTest::bounds(_Opaque_ADMDialog* dialog) {
    Rect r = {0, 0, 0, 0};
    sADMDialog->GetBoundsRect(dialog, &r);
    return r;
}

Point ToolkitTest::best(_Opaque_ADMItem* item) {
    Point size = {-1, -1};
    sADMItem->GetBestSize(item, &size);
    return size;
}

std::string ToolkitTest::shown(_Opaque_ADMItem* item) {
    return [[control_of(item) ?: label_of(item) stringValue] UTF8String];
}

void ToolkitTest::put(_Opaque_ADMItem* item, const char* text) {
    [control_of(item) setStringValue:[NSString stringWithUTF8String:text]];
}
