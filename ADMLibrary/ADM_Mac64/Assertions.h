// How the toolkit stops the process: what must hold does not, or an operation is not provided.

#pragma once

namespace adm {

// The name under which the toolkit's sources appear in a report.
constexpr const char* kAssertionSource = "ADMLibrary/ADM_Mac64";

// Reports as the platform's assert does and aborts.
[[noreturn]] void assertion_failed(const char* function, const char* file, int line,
                                   const char* expression);

// Names the operation on standard error, in a line, and aborts.
[[noreturn]] void not_provided(const char* suite, const char* operation);

// One line on standard error: a procedure of the toolkit's user let an exception out, which is not
// to travel through the platform's event loop.
void report_exception(const char* procedure);

} // namespace adm
