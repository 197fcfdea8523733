#include "minihost/suites/Module.h"

#include "minihost/suites/BasicSuite.h"

#include <dlfcn.h>
#include <utility>

namespace minihost {

namespace {

std::string words(LoadStage stage) {
    switch (stage) {
    case LoadStage::Open:
        return "cannot be opened";
    case LoadStage::Find:
        return "is no plug-in";
    case LoadStage::Enter:
        break;
    }
    return "could not start";
}

std::string loader_message() {
    const char* message = ::dlerror();
    return message ? message : "no reason told";
}

} // namespace

LoadError::LoadError(LoadStage stage, const std::string& path, const std::string& cause)
    : std::runtime_error(path + ": the plug-in " + words(stage) + ": " + cause), _stage(stage) {}

Module::Module(Host& host, const std::string& path) : _host(host) {
    // dlopen searches the system's folders for a bare name.
    const std::string file = path.find('/') == std::string::npos ? "./" + path : path;
    _library = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!_library) throw LoadError(LoadStage::Open, path, loader_message());
    void* entry = ::dlsym(_library, kAEGPEntryName);
    if (!entry) {
        const std::string cause = loader_message();
        ::dlclose(_library);
        throw LoadError(LoadStage::Find, path, cause);
    }
    const A_Err error =
        _host.call_entry(reinterpret_cast<AEGP_PluginEntryProc>(entry), basic_suite);
    if (error == 0) return;
    // Hooks registered so far count, so this calls the death hook.
    unload();
    throw LoadError(LoadStage::Enter, path,
                    std::string(kAEGPEntryName) + " failed with error " + std::to_string(error));
}

Module::~Module() {
    unload();
}

std::vector<std::string> Module::unload() {
    void* library = std::exchange(_library, nullptr);
    if (!library) return {};
    std::vector<std::string> held = _host.shut_down();
    ::dlclose(library);
    return held;
}

} // namespace minihost
