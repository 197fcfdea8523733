#include "ADMLibrary/ADM_Mac64/AEDrawerCell.h"

#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/iADMDrawer.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"

namespace {

void draw(iADMItem* item) {
    if (!item->_drawProc) return;
    iADMDrawer drawer((CGContextRef)[[NSGraphicsContext currentContext] graphicsPort], item);
    try {
        item->_drawProc(adm::handle(item), adm::handle(&drawer));
    } catch (...) {
        adm::report_exception("draw");
    }
}

} // namespace

@implementation AEDrawerCell

- (id)initWithADMItem:(iADMItem*)item {
    if ((self = [super init])) __item = item;
    return self;
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    (void)frame;
    (void)view;
    if (!__item)
        adm::assertion_failed("-[AEDrawerCell drawWithFrame:inView:]", adm::kAssertionSource, 1546,
                              "__item");
    draw(__item);
}

@end
