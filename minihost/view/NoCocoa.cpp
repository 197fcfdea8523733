// The display of a build without Cocoa's controls: none.

#include "minihost/view/Screen.h"

namespace minihost {

std::unique_ptr<Screen> make_screen() {
    return make_blind_screen();
}

} // namespace minihost
