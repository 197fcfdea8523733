// The suite that the plug-in's entry function gets: it acquires and releases all others.

#pragma once

#include "sdk/Host.h"

namespace minihost {

extern const SPBasicSuite basic_suite;

} // namespace minihost
