// How the host enters a plug-in module.

#pragma once

#include "sdk/HostSuites.h"

// The function that a module exports as PluginEntry. The host calls it once, after loading. The
// basic suite stays valid until the death hook has returned. A result other than 0 means that the
// plug-in could not start; the hooks it has registered stay registered. It never throws.
using AEGP_PluginEntryProc = A_Err (*)(SPBasicSuite* basic, A_long major_version,
                                       A_long minor_version, AEGP_PluginID plugin_id,
                                       AEGP_GlobalRefcon* global_refcon);

constexpr const char* kAEGPEntryName = "PluginEntry";
