// The suites of a host that misbehaves: each function calls the original first, then corrupts its
// results as the current host's plan says.

#pragma once

namespace minihost {

// The corrupting counterpart of a suite's function table, or the table itself where there is
// nothing to corrupt.
const void* corrupted_functions(const void* functions);

} // namespace minihost
