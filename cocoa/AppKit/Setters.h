// What setters do with an instance variable: the old value is released.
#pragma once

#include <Foundation/NSString.h>

namespace cocoa {

template <typename Object>
void set_retained(Object*& variable, Object* value) {
    [value retain];
    [variable release];
    variable = value;
}

// nil becomes the empty string.
inline void set_copied(NSString*& variable, NSString* value) {
    NSString* copy = value ? [value copy] : @"";
    [variable release];
    variable = copy;
}

} // namespace cocoa
