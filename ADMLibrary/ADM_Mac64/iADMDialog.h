// The record behind a dialog: its window or its place in a host's panel, its items, its procedures.

#pragma once

#include "ADMLibrary/ADM_Mac64/ADMCommandAdapter.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"

#include <unordered_map>
#include <vector>

class iADMDialogBase {
  public:
    // Makes the adapter, which gets `self`, the whole record.
    explicit iADMDialogBase(iADMDialog* self);
    iADMDialogBase(const iADMDialogBase&) = delete;
    iADMDialogBase& operator=(const iADMDialogBase&) = delete;
    virtual ~iADMDialogBase();

    NSWindow* _window = nil; // null in a panel
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

// The operations are those of ADMDialogSuite9 unless a comment tells more.
class iADMDialog : public iADMDialogBase {
  public:
    // So many have room in the item store, which never moves them.
    static constexpr std::size_t kMostItems = 100;

    iADMDialog(const char* name, void* userData);
    ~iADMDialog() override;

    static iADMDialog* Create(const char* name, ADMDialogStyle style, ADMDialogInitProc init,
                              void* userData);
    static iADMDialog* CreatePanel(const char* name, ADMDialogInitProc init, void* userData,
                                   AEGP_PanelSuite1* panelSuite, _AEGP_PanelH* panelH,
                                   NSView* hostView, AEGP_PanelFunctions1* panelFunctions,
                                   _AEGP_PanelRefcon** refcon);
    // Frees the record, unless its destruction is running already.
    void Destroy();
    // Any dialog with this user data that is not being destroyed; null if there is none.
    static iADMDialog* living_with(const void* userData);

    // For the host: one size, that of the dialog's rectangle.
    static A_Err S_GetSnapSizes(_AEGP_PanelRefcon* refcon, A_LPoint* sizes, A_long* count);

    void Show(bool show);
    bool IsVisible() const;
    bool IsEnabled() const;
    void SetText(const char* text);
    void GetBoundsRect(Rect* out) const;
    void SetBoundsRect(const Rect* r);
    void SetLocalRect(const Rect* r);

    // A new one at the end of the store; null when that is full.
    iADMItem* add_item(int id);
    iADMItem* GetItem(int id);
    iADMItem* GetNextItem(const iADMItem* item);

    std::vector<iADMItem> _items;

  private:
    // Asserts that there is no window yet; false if none can be made.
    bool make_window(ADMDialogStyle style);
    void make_panel_view(NSView* hostView);
    // Runs the init procedure; a dialog for which it fails is destroyed, and null comes back.
    static iADMDialog* finish(iADMDialog* dialog, ADMDialogInitProc init);
    void make_room_for_title_bar();

    std::unordered_map<int, iADMItem*> _first_of_id; // of items with the same id the one made first
};
