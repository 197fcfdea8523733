// An item as an object: binds itself to a new or an existing item of a dialog and turns its
// callbacks into virtual calls. It does not own the item, which lives as long as its dialog; the
// maker of the wrapper deletes it before the dialog is destroyed.

#pragma once

#include "ADMLibrary/ADM.h"
#include "ADMLibrary/IADMHolders.h"
#include "ADMLibrary/IASTypes.h"

class BaseADMItem : public IADMItem {
  public:
    // Not bound to an item yet.
    BaseADMItem() = default;
    // Binds itself to an existing item, if it is not null. `userData` is stored but not used.
    BaseADMItem(IADMItem item, void* userData);
    BaseADMItem(const BaseADMItem&) = delete;
    BaseADMItem& operator=(const BaseADMItem&) = delete;

    // Returns 0, or an error code that makes the creation fail.
    virtual int Init();
    virtual void Draw(IADMDrawer drawer);
    virtual bool Track(IADMTracker tracker);
    virtual void Notify(IADMNotifier notifier);
    // Both return whether they succeeded.
    virtual bool TextToFloat(const char* text, float& value);
    virtual bool FloatToText(float value, char* text, int maxLength);
    // Called by the toolkit's draw procedure; calls Draw.
    virtual void BaseDraw(IADMDrawer drawer);
    virtual ~BaseADMItem();
    // `bounds` is a true rectangle in the dialog's coordinates. Null if no item could be made.
    virtual _Opaque_ADMItem* Create(_Opaque_ADMDialog* dialog, const IASRect& bounds,
                                    const char* itemType, int itemID);

    // The toolkit's callbacks. Without a wrapper as the item's user data they do nothing.
    static int InitProc(_Opaque_ADMItem* item);
    static void DrawProc(_Opaque_ADMItem* item, _Opaque_ADMDrawer* drawer);
    static unsigned char TrackProc(_Opaque_ADMItem* item, _Opaque_ADMTracker* tracker);
    static void NotifyProc(_Opaque_ADMItem* item, _Opaque_ADMNotifier* notifier);
    static void DestroyProc(_Opaque_ADMItem* item);
    static unsigned char TextToFloatProc(_Opaque_ADMItem* item, const char* text, float* value);
    static unsigned char FloatToTextProc(_Opaque_ADMItem* item, float value, char* text,
                                         int maxLength);

  private:
    void install_procs();

    void* _user_data = nullptr;
};
