// What every function of a suite does: find the host, log the call, let it fail if it is to, carry
// it out, and let no exception across the border.

#pragma once

#include "minihost/model/JsonWriter.h"
#include "minihost/suites/Host.h"

#include <exception>
#include <string>

namespace minihost {

// A call's arguments for the log. Nothing here minds handles and pointers that are none.
class Arguments {
  public:
    explicit Arguments(Host& host) : _host(host), _json(_text) { _json.begin_object(); }

    Arguments& number(const char* name, double value);
    Arguments& text(const char* name, const char* value);
    Arguments& flag(const char* name, bool value);
    Arguments& time(const char* name, const A_Time* value); // in seconds
    Arguments& layer(AEGP_LayerH handle);                   // its index at this moment
    Arguments& item(AEGP_ItemH handle);                     // "composition", "footage" or "source"
    Arguments& composition(AEGP_CompH handle);              // its name
    Arguments& stream(AEGP_StreamRefH handle);              // its layer and its number
    Arguments& collection(AEGP_CollectionH handle);         // its number
    Arguments& panel(AEGP_PanelH handle);                   // its number
    Arguments& value(AEGP_StreamRefH stream, const AEGP_StreamVal* value);

    std::string take() {
        _json.end_object();
        return std::move(_text);
    }

  private:
    Arguments& layer_id(LayerId id);
    Host& _host;
    std::string _text;
    JsonWriter _json;
};

// What a plug-in passes for a result or an input must not be null.
template <typename Type>
Type& need(Type* pointer) {
    if (!pointer) throw Misuse("a null pointer");
    return *pointer;
}

// `describe` tells the arguments to an Arguments; `body` does the work on a Host and gives the
// result. Both may throw.
template <typename Describe, typename Body>
A_Err serve(const CallName& name, const Describe& describe, const Body& body) noexcept {
    Host* host = Host::current();
    if (!host) return misuse_error; // from outside of every callback
    try {
        host->count_call();
        std::size_t logged = 0;
        if (host->log.is_on()) {
            Arguments arguments(*host);
            describe(arguments);
            logged = host->log.begin(name, arguments.take());
        }
        A_Err result = host_error;
        if (const auto planned = host->failures.next(name)) {
            result = *planned;
        } else {
            try {
                result = body(*host);
            } catch (const Misuse& misuse) {
                host->tell_misuse(name, misuse);
                result = misuse_error;
            } catch (const std::exception& error) {
                host->report(std::string(name.suite) + "." + name.call + ": " + error.what());
            }
        }
        if (logged) host->log.end(logged, result);
        return result;
    } catch (...) {
        return host_error; // not even a message could be made
    }
}

} // namespace minihost
