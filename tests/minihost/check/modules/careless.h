// Shared by the modules that do something wrong when a call fails.

#pragma once

#include "plugin.h"

// Takes a suite, makes a call, and gives the suite back, but for when the call fails.
inline A_Err keep_a_suite_on_failure() {
    const Items items;
    const void* table = nullptr;
    if (!items) return A_Err_MISSING_SUITE;
    if (const A_Err error = basic->AcquireSuite(kAEGPLayerSuite, kAEGPLayerSuiteVersion, &table))
        return error;
    AEGP_ItemH item = nullptr;
    if (const A_Err error = items->AEGP_GetActiveItem(&item)) return error;
    return basic->ReleaseSuite(kAEGPLayerSuite, kAEGPLayerSuiteVersion);
}
