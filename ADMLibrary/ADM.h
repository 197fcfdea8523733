// The dialog toolkit's interface, whole: what a dialog or an object wrapper includes.

#pragma once

#include "ADMLibrary/ADMDrawingSuites.h"
#include "ADMLibrary/ADMItemSuites.h"
#include "ADMLibrary/ADMSuites.h"
#include "ADMLibrary/ADMTypes.h"
#include "ADMLibrary/ADMUnprovidedSuites.h"
#include "ADMLibrary/HostPointers.h"
