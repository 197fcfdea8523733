// The fixture of the toolkit's tests: a fake host, a pool, a panel dialog inside a window of the
// host, and simulated user input.

#pragma once

#include "tests/ADMLibrary/support/FakeHost.h"

#include <Cocoa/Cocoa.h>
#include <gtest/gtest.h>

bool operator==(const Rect& a, const Rect& b);
bool operator==(const Point& a, const Point& b);
std::ostream& operator<<(std::ostream& out, const Rect& r);
std::ostream& operator<<(std::ostream& out, const Point& p);

struct Pool {
    Pool() : pool([[NSAutoreleasePool alloc] init]) {}
    ~Pool() { [pool drain]; }
    NSAutoreleasePool* pool;
};

// User input through the application's events.
namespace user {

void click(NSView* view); // in the middle
void click_at(NSView* view, NSPoint point);
void type(NSString* text); // Return and Tab are keys too

} // namespace user

class ToolkitTest : public testing::Test {
  protected:
    ToolkitTest();
    ~ToolkitTest() override;

    // A panel in the host's window.
    _Opaque_ADMDialog* make_panel(ADMDialogInitProc init = nullptr);
    static _Opaque_ADMDialog* make_window(ADMDialogStyle style = 3,
                                          ADMDialogInitProc init = nullptr);
    // A panel that is made at the first call and destroyed at the end.
    _Opaque_ADMDialog* dialog();
    // An item of that dialog; kAnyId means an id without neighbours.
    static constexpr int kAnyId = -1000;
    _Opaque_ADMItem* add(const char* type, const Rect& r = {10, 10, 30, 110}, int id = kAnyId);
    _Opaque_ADMItem* add_text(const char* type, const char* text, const Rect& r = {10, 10, 30, 110},
                              int id = kAnyId);
    static Rect bounds(_Opaque_ADMItem* item);
    static Rect bounds(_Opaque_ADMDialog* dialog);
    static Point best(_Opaque_ADMItem* item);
    // The text of an item's control or label.
    static std::string shown(_Opaque_ADMItem* item);
    static void put(_Opaque_ADMItem* item, const char* text);

    Pool _pool;
    FakeHost _host;
    NSWindow* _window;
    AEGP_PanelFunctions1 _functions = {};
    _AEGP_PanelRefcon* _refcon = nullptr;

  private:
    _Opaque_ADMDialog* _dialog = nullptr;
    int _next_id = 1000;
};

// The records' views, which no suite returns.
NSControl* control_of(_Opaque_ADMItem* item);
NSTextField* label_of(_Opaque_ADMItem* item);
NSView* view_of(_Opaque_ADMDialog* dialog);
