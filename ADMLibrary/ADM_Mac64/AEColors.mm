#include "ADMLibrary/ADM_Mac64/AEColors.h"

#include "ADMLibrary/ADM_Mac64/AppKitValues.h"
#include "ADMLibrary/HostPointers.h"

namespace adm {

PF_App_Color host_color(short selector) {
    PF_App_Color color = {0, 0, 0};
    if (sPFAppSuite && sPFAppSuite->PF_AppGetColor(selector, &color) != A_Err_NONE)
        color = {0, 0, 0};
    return color;
}

} // namespace adm

NSColor* GetAEColor(short selector) {
    const PF_App_Color color = adm::host_color(selector);
    return [NSColor colorWithDeviceRed:color.red / 65535.0
                                 green:color.green / 65535.0
                                  blue:color.blue / 65535.0
                                 alpha:1.0];
}

NSColor* GetAETextColor() {
    return GetAEColor(kAEText);
}

NSFont* GetMiniSystemFont() {
    return [NSFont systemFontOfSize:[NSFont systemFontSizeForControlSize:adm::kMiniControlSize]];
}
