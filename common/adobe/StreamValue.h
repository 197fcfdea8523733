// One write to one stream of a layer: the stream is got when the object is made and given back when
// it goes. Made on the stack, one for each write.

#pragma once

#include "host/services/AEGP_SuiteHandler.h"

class StreamValue {
  public:
    // Gets the stream. If the host refuses it, the object is there all the same and every write
    // through it fails without a call.
    StreamValue(int plugin_id, AEGP_LayerH layer, int stream_number);
    virtual ~StreamValue();
    StreamValue(const StreamValue&) = delete;
    StreamValue& operator=(const StreamValue&) = delete;

    // Makes a key at `time` and stores its index, if `index` is not null. 1 on success, 0
    // otherwise.
    int insert_key(const A_Time& time, short time_mode, int* index);

    // Writes the value. Its stream slot is filled on the way, although it is handed in as constant.
    bool set_value(const AEGP_StreamValue& value);

  private:
    AEGP_StreamRefH stream = nullptr;
    AEGP_SuiteHandler suites;
    AEGP_PluginID plugin_id;
};
