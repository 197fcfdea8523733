#include "common/adobe/StreamValue.h"

#include "ADMLibrary/HostPointers.h"

StreamValue::StreamValue(int id, AEGP_LayerH layer, int stream_number)
    : suites(sSPBasic), plugin_id(id) {
    if (suites.StreamSuite4().AEGP_GetNewLayerStream(id, layer, stream_number, &stream))
        stream = nullptr;
}

StreamValue::~StreamValue() {
    if (stream) suites.StreamSuite4().AEGP_DisposeStream(stream);
}

int StreamValue::insert_key(const A_Time& time, short time_mode, int* index) {
    if (!stream) return 0;
    AEGP_KeyframeIndex key = 0;
    if (suites.KeyframeSuite1().AEGP_InsertKeyframe(stream, time_mode, &time, &key)) return 0;
    if (index) *index = key;
    return 1;
}

bool StreamValue::set_value(const AEGP_StreamValue& value) {
    auto& target = const_cast<AEGP_StreamValue&>(value);
    target.streamH = stream;
    return stream && !suites.StreamSuite4().AEGP_SetStreamValue(plugin_id, stream, &target);
}
