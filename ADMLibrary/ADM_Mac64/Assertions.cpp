#include "ADMLibrary/ADM_Mac64/Assertions.h"

#include <cstdio>
#include <cstdlib>

namespace adm {

void assertion_failed(const char* function, const char* file, int line, const char* expression) {
    std::fprintf(stderr, "Assertion failed: (%s), function %s, file %s, line %d.\n", expression,
                 function, file, line);
    std::abort();
}

void not_provided(const char* suite, const char* operation) {
    std::fprintf(stderr, "%s::%s is not provided by this toolkit.\n", suite, operation);
    std::abort();
}

void report_exception(const char* procedure) {
    std::fprintf(stderr, "An exception left a %s procedure and was dropped.\n", procedure);
}

} // namespace adm
