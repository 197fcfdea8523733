// What a driver over raw events is asked to do: try inputs one by one, each from a fresh start.

#pragma once

#include "fuzz/Bytes.h"

namespace fuzz {

// Given by each driver. Whatever the bytes are, it comes to an end and leaves nothing behind.
void try_input(Bytes& bytes);

} // namespace fuzz
