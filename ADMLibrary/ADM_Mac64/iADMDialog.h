// The record behind a dialog: its window or its place in a host's panel, its items and procedures.

#pragma once

#include "ADMLibrary/ADM_Mac64/ADMCommandAdapter.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"

#include <unordered_map>
#include <vector>

class iADMDialogBase {
  public:
    // Makes the adapter, which refers to `self`, the whole record.
    explicit iADMDialogBase(iADMDialog* self);
    iADMDialogBase(const iADMDialogBase&) = delete;
    iADMDialogBase& operator=(const iADMDialogBase&) = delete;
    virtual ~iADMDialogBase();

    NSWindow* _window = nil; // nil in a panel
    NSView* _view = nil;     // the content view, a FlippedView
    ADMCommandAdapter* _adapter = nil;
    _AEGP_PanelH* _panelH = nullptr;
    NSView* _panelView = nil; // the host's, not retained
    AEGP_PanelSuite1* _panelSuite = nullptr;
    ADMDialogDrawProc _drawProc = nullptr;
    ADMDialogTrackProc _trackProc = nullptr;
    ADMDialogNotifyProc _notifyProc = nullptr;
    ADMDialogDestroyProc _destroyProc = nullptr;
    void* _userData = nullptr;
    Rect _bounds = {0, 0, 0, 0}; // without a window
    char _name[256] = {};
    bool _destroying = false;
};

// The operations are those of ADMDialogSuite9, except where a comment says otherwise.
class iADMDialog : public iADMDialogBase {
  public:
    // The size of the item store, which never moves its items.
    static constexpr std::size_t kMaxItems = 100;

    iADMDialog(const char* name, void* userData);
    ~iADMDialog() override;

    static iADMDialog* Create(const char* name, ADMDialogStyle style, ADMDialogInitProc init,
                              void* userData);
    static iADMDialog* CreatePanel(const char* name, ADMDialogInitProc init, void* userData,
                                   AEGP_PanelSuite1* panelSuite, _AEGP_PanelH* panelH,
                                   NSView* hostView, AEGP_PanelFunctions1* panelFunctions,
                                   _AEGP_PanelRefcon** refcon);
    // Frees the record, unless it is being destroyed already.
    void Destroy();
    // A dialog with this user data that is not being destroyed, or null.
    static iADMDialog* with_user_data(const void* userData);

    // The host's callback: one size, that of the dialog's rectangle.
    static A_Err S_GetSnapSizes(_AEGP_PanelRefcon* refcon, A_LPoint* sizes, A_long* count);

    void Show(bool show);
    bool IsVisible() const;
    bool IsEnabled() const;
    void SetText(const char* text);
    void GetBoundsRect(Rect* out) const;
    void SetBoundsRect(const Rect* r);
    void SetLocalRect(const Rect* r);

    // Appends an item; null if the store is full.
    iADMItem* add_item(int id);
    iADMItem* GetItem(int id) const;
    iADMItem* GetNextItem(const iADMItem* item);

    std::vector<iADMItem> _items;

  private:
    // Asserts that there is no window yet; false if it cannot be made.
    bool make_window(ADMDialogStyle style);
    void make_panel_view(NSView* hostView);
    // Runs the init procedure. If it fails, destroys the dialog and returns null.
    static iADMDialog* initialise(iADMDialog* dialog, ADMDialogInitProc init);
    void make_room_for_title_bar();

    std::unordered_map<int, iADMItem*> _first_of_id; // the first of several items with the same id
};
