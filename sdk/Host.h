// The whole host interface: the one header that plug-ins and hosts include.

#pragma once

#include "sdk/HostEntry.h"
#include "sdk/HostSuites.h"
#include "sdk/HostTypes.h"
