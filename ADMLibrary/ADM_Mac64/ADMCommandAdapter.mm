#include "ADMLibrary/ADM_Mac64/ADMCommandAdapter.h"

#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"
#include "ADMLibrary/ADM_Mac64/iADMNotifier.h"

namespace {

// The procedure may free dialog, item and adapter.
void notify(iADMDialog* dialog, iADMItem* item) {
    iADMNotifier notifier(item, kADMUserChangedNotifier);
    try {
        if (item->_notifyProc)
            item->_notifyProc(adm::handle(item), adm::handle(&notifier));
        else if (dialog->_notifyProc)
            dialog->_notifyProc(adm::handle(dialog), adm::handle(&notifier));
    } catch (...) {
        adm::report_exception("notify");
    }
}

} // namespace

@implementation ADMCommandAdapter

- (id)initWithADMDialog:(iADMDialog*)dialog {
    if ((self = [super init])) __dialog = dialog;
    return self;
}

- (void)onControlClicked:(id)sender {
    iADMItem* item = __dialog->GetItem(static_cast<int>([sender tag]));
    if (!item)
        adm::assertion_failed("-[ADMCommandAdapter onControlClicked:]", adm::kAssertionSource, 1245,
                              "item");
    if (item->_isRadio) item->SetBooleanValue(true);
    notify(__dialog, item);
}

@end
