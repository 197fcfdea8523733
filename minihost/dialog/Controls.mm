#include "minihost/dialog/Controls.h"

#include "minihost/dialog/AutoreleasePool.h"

#include <algorithm>
#include <AppKit/NSDisplayStandIn.h>
#include <charconv>
#include <cmath>
#include <Cocoa/Cocoa.h>
#include <cstdlib>

namespace minihost {

namespace {

enum class Kind { Button, CheckBox, RadioButton, Edit, PopUp, Text, Box, Slider, Picture, None };

constexpr const char* kind_names[] = {"button", "check box", "radio button", "edit",   "pop-up",
                                      "text",   "box",       "slider",       "picture"};

// None for a view that is no control, whose subviews may be some.
Kind kind_of(NSView* view) {
    if ([view isKindOfClass:[NSPopUpButton class]]) return Kind::PopUp;
    if ([view isKindOfClass:[NSButton class]]) {
        NSButton* button = static_cast<NSButton*>(view);
        switch (NSTypeOfButton(button)) {
        case NSSwitchButton:
            return Kind::CheckBox;
        case NSRadioButton:
            return Kind::RadioButton;
        // A button without a title shows a picture.
        default:
            return [[button title] length] ? Kind::Button : Kind::Picture;
        }
    }
    if ([view isKindOfClass:[NSTextField class]])
        return NSTextFieldIsLabel(static_cast<NSTextField*>(view)) ? Kind::Text : Kind::Edit;
    if ([view isKindOfClass:[NSSlider class]]) return Kind::Slider;
    if ([view isKindOfClass:[NSBox class]]) return Kind::Box;
    return Kind::None;
}

std::string utf8(NSString* text) {
    return text ? [text UTF8String] : "";
}

// The number that a text consists of, if it is one.
decltype(Control::value) number_in(const std::string& text) {
    const char* first = text.c_str();
    char* end = nullptr;
    const double number = std::strtod(first, &end);
    if (end == first || *end != 0 || !std::isfinite(number)) return {};
    return number;
}

std::vector<std::string> entries_of(NSPopUpButton* popup) {
    std::vector<std::string> titles;
    NSMenu* menu = [popup menu];
    for (NSInteger i = 0; i < [menu numberOfItems]; ++i)
        titles.push_back(utf8([[menu itemAtIndex:i] title]));
    return titles;
}

Control control_of(NSView* view) {
    const Kind kind = kind_of(view);
    Control control;
    control.kind = kind_names[static_cast<int>(kind)];
    if ([view isKindOfClass:[NSControl class]]) {
        control.enabled = [static_cast<NSControl*>(view) isEnabled];
        if ([view tag] > 0) control.id = static_cast<int>([view tag]);
    }
    switch (kind) {
    case Kind::Edit:
    case Kind::Text:
        control.text = utf8([static_cast<NSTextField*>(view) stringValue]);
        if (kind == Kind::Edit) control.value = number_in(control.text);
        break;
    case Kind::Button:
    case Kind::CheckBox:
    case Kind::RadioButton: {
        NSButton* button = static_cast<NSButton*>(view);
        control.text = utf8([button title]);
        if (kind != Kind::Button) control.value = [button state] == NSOnState;
        break;
    }
    case Kind::PopUp: {
        NSPopUpButton* popup = static_cast<NSPopUpButton*>(view);
        control.text = utf8([popup titleOfSelectedItem]);
        control.entries = entries_of(popup);
        if ([popup indexOfSelectedItem] >= 0) control.value = control.text;
        break;
    }
    case Kind::Box:
        control.text = utf8([static_cast<NSBox*>(view) title]);
        break;
    default:
        break;
    }
    const NSRect frame = [view frame];
    control.top = NSMinY(frame);
    control.left = NSMinX(frame);
    control.bottom = NSMaxY(frame);
    control.right = NSMaxX(frame);
    return control;
}

// The controls below a view, in the order of the views; not those inside other controls.
void collect_controls(NSView* view, std::vector<NSView*>& controls) {
    NSArray* subviews = [view subviews];
    for (NSUInteger i = 0; i < [subviews count]; ++i) {
        NSView* subview = [subviews objectAtIndex:i];
        if (kind_of(subview) == Kind::None)
            collect_controls(subview, controls);
        else
            controls.push_back(subview);
    }
}

NSControl* find_control(NSView* root, int id) {
    std::vector<NSView*> controls;
    collect_controls(root, controls);
    for (NSView* view : controls)
        if ([view isKindOfClass:[NSControl class]] && [view tag] == id)
            return static_cast<NSControl*>(view);
    return nil;
}

NSControl* usable_control(NSView* root, int id, const std::string& name) {
    if (!root) throw ControlError("control '" + name + "': no dialog is open");
    NSControl* control = id > 0 ? find_control(root, id) : nil;
    if (!control) throw ControlError("control '" + name + "' is not in the dialog");
    if ([control isHiddenOrHasHiddenAncestor])
        throw ControlError("control '" + name + "' is hidden");
    if (![control isEnabled]) throw ControlError("control '" + name + "' is disabled");
    return control;
}

void click(NSView* view) {
    const NSRect bounds = [view bounds];
    NSPostClick(view, NSMakePoint(NSMidX(bounds), NSMidY(bounds)));
    NSDispatchEvents();
}

bool choice(const std::string& name, const std::string& value) {
    if (value == "on") return true;
    if (value == "off") return false;
    throw ControlError("control '" + name + "' is set to on or off, not '" + value + "'");
}

void set_check(NSButton* button, const std::string& name, const std::string& value) {
    const bool on = choice(name, value);
    if (([button state] == NSOnState) != on) click(button);
    if (([button state] == NSOnState) != on)
        throw ControlError("control '" + name + "' did not go " + value);
}

void set_radio(NSButton* button, const std::string& name, const std::string& value) {
    if (!choice(name, value))
        throw ControlError("control '" + name +
                           "' is a radio button: it goes off when another of its group is set on");
    click(button);
    if ([button state] != NSOnState) throw ControlError("control '" + name + "' did not go on");
}

// Replaces the whole text by typing, and ends editing with Return.
void type_into(NSTextField* field, const std::string& name, const std::string& value) {
    NSString* text = [NSString stringWithUTF8String:value.c_str()];
    if (!text) throw ControlError("control '" + name + "': the text is not valid UTF-8");
    for (const char c : value)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            throw ControlError("control '" + name + "' takes one line of text");
    click(field);
    NSPostKey('a', NSCommandKeyMask);
    if ([text length])
        NSPostText(text);
    else
        NSPostKey(NSDeleteCharacter);
    NSPostKey(NSCarriageReturnCharacter);
    NSDispatchEvents();
}

std::size_t entry_index(const std::vector<std::string>& entries, const std::string& name,
                        const std::string& value) {
    const auto titled = std::find(entries.begin(), entries.end(), value);
    if (titled != entries.end()) return titled - entries.begin();
    std::size_t index = entries.size();
    if (value.size() > 1 && value[0] == '#') {
        const char* last = value.data() + value.size();
        const auto [end, error] = std::from_chars(value.data() + 1, last, index);
        if (error != std::errc() || end != last) index = entries.size();
    }
    if (index < entries.size()) return index;
    throw ControlError("pop-up '" + name + "' has no entry '" + value + "'");
}

// Opens the list, moves to the entry with the arrow keys, and chooses it.
void pick(NSPopUpButton* popup, const std::string& name, const std::string& value) {
    const auto wanted = static_cast<NSInteger>(entry_index(entries_of(popup), name, value));
    const NSRect bounds = [popup bounds];
    NSPostClick(popup, NSMakePoint(NSMidX(bounds), NSMidY(bounds)));
    NSPostKey(NSHomeFunctionKey);
    for (NSInteger i = 0; i < wanted; ++i) NSPostKey(NSDownArrowFunctionKey);
    NSPostKey(NSCarriageReturnCharacter);
    NSDispatchEvents();
    if ([popup indexOfSelectedItem] != wanted)
        throw ControlError("pop-up '" + name + "' did not take the entry '" + value + "'");
}

} // namespace

std::vector<Control> read_controls(NSView* root) {
    const AutoreleasePool pool;
    std::vector<NSView*> views;
    collect_controls(root, views);
    std::vector<Control> controls;
    for (NSView* view : views) controls.push_back(control_of(view));
    return controls;
}

void set_control(NSView* root, int id, const std::string& name, const std::string& value) {
    const AutoreleasePool pool;
    NSControl* control = usable_control(root, id, name);
    switch (kind_of(control)) {
    case Kind::CheckBox:
        return set_check(static_cast<NSButton*>(control), name, value);
    case Kind::RadioButton:
        return set_radio(static_cast<NSButton*>(control), name, value);
    case Kind::Edit:
        return type_into(static_cast<NSTextField*>(control), name, value);
    case Kind::PopUp:
        return pick(static_cast<NSPopUpButton*>(control), name, value);
    default:
        throw ControlError("control '" + name + "' has no value that could be set");
    }
}

void click_control(NSView* root, int id, const std::string& name) {
    const AutoreleasePool pool;
    click(usable_control(root, id, name));
}

} // namespace minihost
