#include "minihost/window/Prompts.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/window/WindowStyle.h"

#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>

namespace minihost {

namespace {

int open_prompts = 0;

NSInteger run(const std::string& title, const std::string& message, NSString* first,
              NSString* second = nil, NSString* third = nil) {
    const AutoreleasePool pool;
    const OpenPrompt prompt;
    NSLeaveNextAlertOut(); // only the plug-in's alerts are recorded
    return NSRunAlertPanel(style::printable_string(title), @"%@", first, second, third,
                           style::printable_string(message));
}

} // namespace

OpenPrompt::OpenPrompt() {
    ++open_prompts;
}
OpenPrompt::~OpenPrompt() {
    --open_prompts;
}
bool prompt_is_open() {
    return open_prompts > 0;
}

void show_error(const std::string& what, const std::string& why) {
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
