// Core Foundation: references and strings.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFString.h>
