// The argument of a notify procedure: the item that the user acted on.

#pragma once

#include "ADMLibrary/ADM_Mac64/Handles.h"

// The result that the default operations set: handled by default.
constexpr std::int32_t kADMHandledByDefault = -9874;

class iADMNotifier {
  public:
    iADMNotifier(iADMItem* acted_on, const char* notifier_type)
        : item(acted_on), type(notifier_type) {}
    virtual ~iADMNotifier() = default;

    iADMItem* item;
    const char* type;
    std::int32_t result = 0;
};
