#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include "ADMLibrary/ADM_Mac64/AppKitValues.h"
#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/FlippedView.h"
#include "ADMLibrary/ADM_Mac64/iADMDrawer.h"

#include <cstring>

namespace {

constexpr int kTitled = adm::kTitledWindow;
constexpr int kResizable = adm::kTitledWindow.value | adm::kResizableWindow.value;
constexpr int kBorderless = 0;
constexpr int kNoWindow = -1;

// The window's style mask for each style of dialog.
constexpr int kStyleMasks[] = {kTitled,     kTitled, kTitled, kTitled,     kResizable, kResizable,
                               kBorderless, kTitled, kTitled, kBorderless, kResizable, kTitled,
                               kNoWindow,   kTitled, kTitled, kResizable};

constexpr NSRect kFirstContent = {{0, 0}, {600, 400}};

// Every dialog that exists.
std::vector<iADMDialog*>& all_dialogs() {
    static std::vector<iADMDialog*> dialogs;
    return dialogs;
}

} // namespace

iADMDialogBase::iADMDialogBase(iADMDialog* self)
    : _adapter([[ADMCommandAdapter alloc] initWithADMDialog:self]) {}

iADMDialogBase::~iADMDialogBase() {
    [_adapter release];
}

iADMDialog::iADMDialog(const char* name, void* userData) : iADMDialogBase(this) {
    if (name) std::strncpy(_name, name, sizeof _name - 1);
    _userData = userData;
    _items.reserve(kMaxItems);
    all_dialogs().push_back(this);
}

iADMDialog::~iADMDialog() {
    _destroying = true;
    try {
        if (_destroyProc) _destroyProc(adm::handle(this));
    } catch (...) {
        adm::report_exception("destroy");
    }
    // Someone else may still hold the controls, or the window: the controls must not send actions
    // to this dialog any more, nor the window draw them.
    for (const iADMItem& item : _items) [item._control setTarget:nil];
    for (const iADMItem& item : _items) [item._control removeFromSuperview];
    if (_window) {
        [_window close];
        [_window release];
        _window = nil;
    } else {
        [_view removeFromSuperview];
    }
    [_view release];
    _view = nil;
    std::erase(all_dialogs(), this);
}

void iADMDialog::Destroy() {
    if (!_destroying) delete this;
}

iADMDialog* iADMDialog::with_user_data(const void* userData) {
    for (iADMDialog* dialog : all_dialogs())
        if (userData && dialog->_userData == userData && !dialog->_destroying) return dialog;
    return nullptr;
}

iADMDialog* iADMDialog::initialise(iADMDialog* dialog, ADMDialogInitProc init) {
    if (!init || init(adm::handle(dialog)) == 0) return dialog;
    dialog->Destroy();
    return nullptr;
}

bool iADMDialog::make_window(ADMDialogStyle style) {
    const int mask = style >= 0 && style < static_cast<int>(std::size(kStyleMasks))
                         ? kStyleMasks[style]
                         : kNoWindow;
    if (mask == kNoWindow) adm::not_provided("ADMDialogSuite9", "Create with this style");
    if (_window) adm::assertion_failed("Create", adm::kAssertionSource, 901, "!_window");
    _window = [[NSWindow alloc] initWithContentRect:kFirstContent
                                          styleMask:mask
                                            backing:adm::kBufferedBacking
                                              defer:YES];
    if (!_window) return false;
    [_window setReleasedWhenClosed:NO]; // the reference is the dialog's
    _view = [[FlippedView alloc] initWithFrame:kFirstContent];
    [_window setContentView:_view];
    return true;
}

iADMDialog* iADMDialog::Create(const char* name, ADMDialogStyle style, ADMDialogInitProc init,
                               void* userData) {
    iADMDialog* dialog = new iADMDialog(name, userData);
    if (!dialog->make_window(style)) {
        dialog->Destroy();
        return nullptr;
    }
    return initialise(dialog, init);
}

void iADMDialog::make_panel_view(NSView* hostView) {
    const NSSize size = [hostView frame].size;
    _view = [[FlippedView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)];
    [hostView addSubview:_view];
}

iADMDialog* iADMDialog::CreatePanel(const char* name, ADMDialogInitProc init, void* userData,
                                    AEGP_PanelSuite1* panelSuite, _AEGP_PanelH* panelH,
                                    NSView* hostView, AEGP_PanelFunctions1* panelFunctions,
                                    _AEGP_PanelRefcon** refcon) {
    iADMDialog* dialog = new iADMDialog(name, userData);
    iADMDrawer::_useAppColor = true;
    dialog->_panelH = panelH;
    dialog->_panelView = hostView;
    dialog->_panelSuite = panelSuite;
    if (panelFunctions) *panelFunctions = {S_GetSnapSizes, nullptr, nullptr};
    if (refcon) *refcon = reinterpret_cast<_AEGP_PanelRefcon*>(adm::handle(dialog));
    if (hostView) dialog->make_panel_view(hostView);
    iADMDialog* made = initialise(dialog, init);
    if (!made && refcon) *refcon = nullptr; // the host may ask for snap sizes even so
    return made;
}

iADMItem* iADMDialog::add_item(int id) {
    if (_items.size() >= kMaxItems) return nullptr;
    iADMItem& item = _items.emplace_back();
    item.dialog = this;
    item._id = id;
    _first_of_id.try_emplace(id, &item);
    return &item;
}

iADMItem* iADMDialog::GetItem(int id) const {
    const auto found = _first_of_id.find(id);
    return found == _first_of_id.end() ? nullptr : found->second;
}

iADMItem* iADMDialog::GetNextItem(const iADMItem* item) {
    for (std::size_t i = 0; i + 1 < _items.size(); ++i)
        if (&_items[i] == item) return &_items[i + 1];
    return nullptr;
}
