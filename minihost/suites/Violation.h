// What the host saw the plug-in do wrong.

#pragma once

#include <string>

namespace minihost {

enum class ViolationKind {
    HookError,        // a hook returned an error
    HookException,    // an exception left a hook or a control's action
    StaleHandle,      // a handle whose object no longer exists
    WrongHandle,      // null, made up, or a handle of another kind
    BadArgument,      // a null pointer, a time with the scale 0
    Unbalanced,       // released more often than acquired
    LateRegistration, // registered outside the entry function
    HeldSuite,        // at unload
    HeldStream,
    HeldCollection,
    OpenUndoGroup, // at unload, or after a hook
    Leak,          // memory, found by the leak sanitizer
};

struct Violation {
    ViolationKind kind;
    std::string text; // for the user
};

} // namespace minihost
