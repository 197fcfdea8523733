// A plug-in module, loaded step by step; a step that fails undoes those before it and says which it
// was, on which file, and why.

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

// From loading to unloading. The host must live longer.
class Module {
  public:
    // Opens the file, finds its entry function, enters it. Throws LoadError, with the host as it
    // was before but for what the entry function told it.
    Module(Host& host, const std::string& path);
    // Unloads unless unload() did.
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    // Calls the death hooks and closes the file. What the plug-in still held, as lines.
    std::vector<std::string> unload();

  private:
    Host& _host;
    void* _library = nullptr;
};

} // namespace minihost
