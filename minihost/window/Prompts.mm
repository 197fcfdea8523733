#include "minihost/window/Prompts.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/window/WindowStyle.h"

#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>

namespace minihost {

namespace {

int open_questions = 0;

NSInteger run(const std::string& title, const std::string& message, NSString* first,
              NSString* second = nil, NSString* third = nil) {
    const AutoreleasePool pool;
    const Asking asking;
    NSLeaveNextAlertOut(); // only what the plug-in shows is remembered
    return NSRunAlertPanel(look::string(title), @"%@", first, second, third, look::string(message));
}

} // namespace

Asking::Asking() {
    ++open_questions;
}
Asking::~Asking() {
    --open_questions;
}
bool is_asking() {
    return open_questions > 0;
}

void tell(const std::string& what, const std::string& why) {
    run(what, why, @"OK");
}

SaveAnswer ask_to_save(const std::string& file_name) {
    switch (run("Save changes to “" + file_name + "”?",
                "Your changes are lost if you do not save them.", @"Save", @"Don't Save",
                @"Cancel")) {
    case NSAlertDefaultReturn:
        return SaveAnswer::Save;
    case NSAlertAlternateReturn:
        return SaveAnswer::Discard;
    default:
        return SaveAnswer::Cancel;
    }
}

bool ask_to_replace(const std::string& file_name) {
    return run("Replace “" + file_name + "”?", "A file of this name is there already.", @"Replace",
               @"Cancel") == NSAlertDefaultReturn;
}

} // namespace minihost
