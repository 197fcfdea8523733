// The function tables of the suites. Each is defined in the file that implements its functions.

#pragma once

namespace minihost {

extern const void* const register_suite;
extern const void* const command_suite;
extern const void* const utility_suite;
extern const void* const collection_suite;
extern const void* const item_suite;
extern const void* const comp_suite;
extern const void* const layer_suite_5;
extern const void* const layer_suite_8;
extern const void* const layer_suite_10;
extern const void* const stream_suite;
extern const void* const keyframe_suite;
extern const void* const panel_suite;
extern const void* const app_suite;

} // namespace minihost
