// What the toolkit's tests stand on: a fake host, a pool, a panel dialog inside a window of the
// host's, and a user's hands.

#pragma once

#include "tests/ADMLibrary/support/FakeHost.h"

#include <Cocoa/Cocoa.h>
#include <gtest/gtest.h>

bool operator==(const Rect& a, const Rect& b);
bool operator==(const Point& a, const Point& b);
std::ostream& operator<<(std::ostream& out, const Rect& r);
std::ostream& operator<<(std::ostream& out, const Point& p);

// Drains at the end what was autoreleased meanwhile.
class Pool {
  public:
    Pool() : _pool([[NSAutoreleasePool alloc] init]) {}
    ~Pool() { [_pool drain]; }
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

  private:
    NSAutoreleasePool* _pool;
};

// What a user does, through the application's own events.
namespace user {

void click(NSView* view);
void click_at(NSView* view, NSPoint point); // in the view's coordinates
void press_key(NSWindow* window, NSString* characters);
void type(NSWindow* window, const char* ascii);
// Clicks into a field, replaces its text and leaves it with Return.
void enter(NSTextField* field, const char* ascii);
// Opens a pop-up and chooses the entry that many below the selected one.
void pick(NSView* pop_up, int entries_below);

} // namespace user

class ToolkitTest : public testing::Test {
  protected:
    ToolkitTest();
    ~ToolkitTest() override;

    // A panel dialog in the host's window, made at the first call.
    _Opaque_ADMDialog* dialog();
    // An item of that dialog; without an id, one that no other has and that has no neighbours.
    _Opaque_ADMItem* add(const char* type, const Rect& r = {10, 10, 30, 110}, int id = 0);
    // The same with a text.
    _Opaque_ADMItem* add_text(const char* type, const char* text, const Rect& r = {10, 10, 30, 110},
                              int id = 0);
    Rect bounds(_Opaque_ADMItem* item);
    // What the user sees in an edit field, and types into it without leaving it.
    std::string shown(_Opaque_ADMItem* item);
    void put(_Opaque_ADMItem* item, const char* text);

    Pool _pool;
    FakeHost _host;
    NSWindow* _window;
    AEGP_PanelFunctions1 _functions = {};
    _AEGP_PanelRefcon* _refcon = nullptr;

  private:
    _Opaque_ADMDialog* _dialog = nullptr;
    int _next_id = 1000;
};

// The record's views, which have no way out of the suites.
NSControl* control_of(_Opaque_ADMItem* item);
NSTextField* label_of(_Opaque_ADMItem* item);
NSView* view_of(_Opaque_ADMDialog* dialog);
