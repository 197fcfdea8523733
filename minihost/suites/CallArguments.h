// The arguments of a call as JSON, for the call log.

#pragma once

#include "minihost/model/JsonWriter.h"
#include "minihost/suites/Host.h"

#include <string>
#include <utility>

namespace minihost {

// Invalid handles and null pointers are written as null.
class CallArguments {
  public:
    explicit CallArguments(Host& host) : _host(host), _json(_text) { _json.begin_object(); }

    CallArguments& number(const char* name, double value);
    CallArguments& text(const char* name, const char* value);
    CallArguments& flag(const char* name, bool value);
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
    CallArguments& layer_id(LayerId id);
    Host& _host;
    std::string _text;
    JsonWriter _json;
};

} // namespace minihost
