// A plug-in module. Loading has three stages; one that fails undoes those before it, and its error
// names the stage, the file and the cause.

#pragma once

#include "minihost/suites/Host.h"

#include <stdexcept>
#include <string>

namespace minihost {

enum class LoadStage { Open, Find, Enter };

class LoadError : public std::runtime_error {
  public:
    LoadError(LoadStage stage, const std::string& path, const std::string& cause);
    LoadStage stage() const { return _stage; }

  private:
    LoadStage _stage;
};

// A loaded module. The host must outlive it.
class Module {
  public:
    // Opens the file, finds its entry function and calls it. Throws LoadError, with the host
    // unchanged except for its messages.
    Module(Host& host, const std::string& path);
    ~Module(); // unloads
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    // Calls the death hooks and closes the file. Returns what the plug-in still held, a line each.
    std::vector<std::string> unload();

  private:
    Host& _host;
    void* _library = nullptr;
};

} // namespace minihost
