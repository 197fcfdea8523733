// The table of all checks.
//
// To add one: a function in the file of its group, declared in CheckFunctions.h, and a row in
// Checks.cpp.

#pragma once

#include "minihost/check/Check.h"

#include <span>
#include <string_view>

namespace minihost {

std::span<const Check> checks();
// Null for an unknown id.
const Check* find_check(std::string_view id);

} // namespace minihost
