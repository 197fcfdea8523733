// Converts between handles and records: a handle is the address of its record.

#pragma once

#include "ADMLibrary/ADMTypes.h"

class iADMDialog;
class iADMItem;
class iADMList;
struct iADMEntry;
class iADMNotifier;
class iADMDrawer;
class iADMImage;

namespace adm {

#define ADM_HANDLE(Record, Handle)                                                                 \
    inline Record* record(Handle* handle) {                                                        \
        return reinterpret_cast<Record*>(handle);                                                  \
    }                                                                                              \
    inline Handle* handle(Record* record) {                                                        \
        return reinterpret_cast<Handle*>(record);                                                  \
    }

ADM_HANDLE(iADMDialog, _Opaque_ADMDialog)
ADM_HANDLE(iADMItem, _Opaque_ADMItem)
ADM_HANDLE(iADMList, _Opaque_ADMList)
ADM_HANDLE(iADMEntry, _Opaque_ADMEntry)
ADM_HANDLE(iADMNotifier, _Opaque_ADMNotifier)
ADM_HANDLE(iADMDrawer, _Opaque_ADMDrawer)
ADM_HANDLE(iADMImage, _Opaque_ADMImage)

#undef ADM_HANDLE

} // namespace adm
