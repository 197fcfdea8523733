// What a plug-in did that it should not have done, as the host notices it: by kind, with the words
// in which the user is told.

#pragma once

#include <string>

namespace minihost {

enum class FaultKind {
    HookError,        // a hook returned an error
    HookException,    // something thrown left a hook, or a control's action
    StaleHandle,      // a handle whose object is no more
    WrongHandle,      // null, made up, or a handle of another kind
    BadArgument,      // a null pointer, a time with the scale 0
    Unbalanced,       // given back more often than taken
    LateRegistration, // registered outside of the entry function
    HeldSuite,        // at unload
    HeldStream,
    HeldCollection,
    OpenUndoGroup, // at unload, or when a hook was through
    Leak,          // memory, as the leak sanitizer tells
};

struct Fault {
    FaultKind kind;
    std::string text;
};

} // namespace minihost
