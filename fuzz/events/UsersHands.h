// What a user's hands may do, decoded from bytes: the mouse, keys, scrolling and typing on any
// window of the application, also before it has answered what was done last.

#pragma once

#include "fuzz/Bytes.h"

namespace fuzz {

// One deed; nothing without a window.
void use_hands(Bytes& bytes);
// Lets the application answer all that is still waiting.
void let_go();

} // namespace fuzz
