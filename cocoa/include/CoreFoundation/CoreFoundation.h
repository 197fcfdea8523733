// The part of Core Foundation that Cocoa code reaches for: references and strings.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFString.h>
