#include "ADMLibrary/CustomIcon.h"

CustomIcon::CustomIcon(IADMItem item, ADMItemDrawProc drawProc)
    : BaseADMImageItem(item, nullptr), _draw_proc(drawProc) {}

void CustomIcon::Draw(IADMDrawer drawer) {
    if (_draw_proc) _draw_proc(_handle, drawer);
}
