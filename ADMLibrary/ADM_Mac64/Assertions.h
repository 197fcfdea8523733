// How the toolkit stops the process: on a failed assertion or an operation that is not provided.

#pragma once

namespace adm {

// The name of the toolkit's sources in reports.
constexpr const char* kAssertionSource = "ADMLibrary/ADM_Mac64";

// Reports in the format of the platform's assert and aborts. The callers' line numbers are fixed
// identifiers of the assertions and match no line of these sources.
[[noreturn]] void assertion_failed(const char* function, const char* file, int line,
                                   const char* expression);

// Names the operation on standard error and aborts.
[[noreturn]] void not_provided(const char* suite, const char* operation);

// Reports on standard error that a procedure of the toolkit's user threw: exceptions must not pass
// through the platform's event loop.
void report_exception(const char* procedure);

} // namespace adm
