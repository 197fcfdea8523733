// The whole interface of the dialog toolkit: the one header that dialogs and wrappers include.

#pragma once

#include "ADMLibrary/ADMDrawingSuites.h"
#include "ADMLibrary/ADMItemSuites.h"
#include "ADMLibrary/ADMSuites.h"
#include "ADMLibrary/ADMTypes.h"
#include "ADMLibrary/ADMUnprovidedSuites.h"
#include "ADMLibrary/HostPointers.h"
