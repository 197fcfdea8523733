// The host's interface, whole: what a source of the plug-in, or a host for it, includes.

#pragma once

#include "sdk/HostEntry.h"
#include "sdk/HostSuites.h"
#include "sdk/HostTypes.h"
