// The arguments of a call as JSON, for the call log.

#pragma once

#include "minihost/model/JsonWriter.h"
#include "minihost/suites/Host.h"

#include <optional>
#include <string>
#include <utility>

namespace minihost {

// Invalid handles and null pointers are written as null.
class CallArguments {
  public:
    explicit CallArguments(Host& host) : _host(host), _json(_text) { _json.begin_object(); }

    CallArguments& number(const char* name, double value) { return member(name, value); }
    CallArguments& text(const char* name, const char* value) { return member(name, value); }
    CallArguments& flag(const char* name, bool value) { return member(name, value); }
    CallArguments& time(const char* name, const A_Time* value); // in seconds
    CallArguments& layer(AEGP_LayerH handle);                   // its current index
    CallArguments& item(AEGP_ItemH handle);             // "composition", "footage" or "source"
    CallArguments& composition(AEGP_CompH handle);      // its name
    CallArguments& stream(AEGP_StreamRefH handle);      // its layer and its number
    CallArguments& collection(AEGP_CollectionH handle); // its number
    CallArguments& panel(AEGP_PanelH handle);           // its number
    CallArguments& value(AEGP_StreamRefH stream, const AEGP_StreamVal* value);

    std::string take() {
        _json.end_object();
        return std::move(_text);
    }

  private:
    template <typename Value>
    CallArguments& member(const char* name, const Value& value) {
        _json.member(name, value);
        return *this;
    }
    CallArguments& layer_id(std::optional<LayerId> id);
    Host& _host;
    std::string _text;
    JsonWriter _json;
};

} // namespace minihost
