// A dialog as an object: binds itself to a toolkit dialog and turns its callbacks into virtual
// calls.
//
// 1. Create or CreatePanel makes the toolkit dialog, which runs Init before they return.
// 2. Init installs the callbacks; a subclass calls it first and then makes its items.
// 3. Either the owner deletes the wrapper, which destroys the toolkit dialog; or the toolkit dialog
//    is destroyed, which calls Destroy and then deletes the wrapper. After
//    SetDeleteOnDestroy(false) the wrapper is kept and can be created anew.

#pragma once

#include "ADMLibrary/ADM.h"
#include "ADMLibrary/IADMHolders.h"

class BaseADMDialog : public IADMDialog {
  public:
    BaseADMDialog() = default;
    BaseADMDialog(const BaseADMDialog&) = delete;
    BaseADMDialog& operator=(const BaseADMDialog&) = delete;

    // Returns 0, or an error code that makes the creation fail.
    virtual int Init();
    virtual void Draw(IADMDrawer drawer);
    virtual bool Track(IADMTracker tracker);
    // The user acted on an item that has no notify procedure of its own.
    virtual void Notify(IADMNotifier notifier);
    // The toolkit dialog is about to be destroyed; all its items still exist.
    virtual void Destroy();
    virtual ~BaseADMDialog();
    // Both return the toolkit dialog, or null if it could not be made. See ADMDialogSuite9.
    virtual _Opaque_ADMDialog* Create(SPPlugin* plugin, char* name, int dialogID,
                                      ADMDialogStyle style, int options);
    virtual _Opaque_ADMDialog* CreatePanel(SPPlugin* plugin, const char* name, int dialogID,
                                           AEGP_PanelSuite1* panelSuite, _AEGP_PanelH* panelH,
                                           NSView* container, AEGP_PanelFunctions1* panelFunctions,
                                           _AEGP_PanelRefcon** refcon);
    virtual int Modal(SPPlugin* plugin, char* name, int dialogID, ADMDialogStyle style,
                      int options);

    // Whether the wrapper deletes itself when the toolkit destroys its dialog. True at first.
    void SetDeleteOnDestroy(bool deletes) { _delete_on_destroy = deletes; }

    // The toolkit's callbacks. Without a wrapper as the dialog's user data they do nothing.
    static int InitProc(_Opaque_ADMDialog* dialog);
    static void DrawProc(_Opaque_ADMDialog* dialog, _Opaque_ADMDrawer* drawer);
    static unsigned char TrackProc(_Opaque_ADMDialog* dialog, _Opaque_ADMTracker* tracker);
    static void NotifyProc(_Opaque_ADMDialog* dialog, _Opaque_ADMNotifier* notifier);
    static void DestroyProc(_Opaque_ADMDialog* dialog);

  private:
    bool _modal = false;
    bool _delete_on_destroy = true;
    [[maybe_unused]] void* _reserved = nullptr;
};
