// The suites for streams and keyframes.

#include "minihost/suites/ServeCall.h"
#include "minihost/suites/SuiteFunctions.h"
#include "minihost/suites/TimeConversion.h"

#include <cmath>

namespace minihost {

namespace {

CallName stream_call(const char* call) {
    return {kAEGPStreamSuite, kAEGPStreamSuiteVersion, call};
}

std::optional<Stream> stream_of(const Layer& layer, AEGP_LayerStream number) {
    const auto stream = stream_of_number(number);
    return stream && layer.has_stream(*stream) ? stream : std::nullopt;
}

A_Err GetNewLayerStream(AEGP_PluginID, AEGP_LayerH handle, AEGP_LayerStream number,
                        AEGP_StreamRefH* result) {
    return serve_call(
        stream_call("GetNewLayerStream"),
        [&](CallArguments& it) { it.layer(handle).number("stream", number); },
        [&](Host& host) -> A_Err {
            const LayerId layer = host.handles.layer(handle);
            AEGP_StreamRefH& reference = require(result);
            const auto stream = stream_of(*host.document.scene().find(layer), number);
            if (!stream) return bad_argument_error;
            reference = host.handles.open_stream({layer, *stream});
            return 0;
        });
}

A_Err DisposeStream(AEGP_StreamRefH stream) {
    return serve_call(
        stream_call("DisposeStream"), [&](CallArguments& it) { it.stream(stream); },
        [&](Host& host) { host.handles.close(stream); });
}

A_Err SetStreamValue(AEGP_PluginID, AEGP_StreamRefH handle, AEGP_StreamValue* value) {
    return serve_call(
        stream_call("SetStreamValue"),
        [&](CallArguments& it) {
            it.stream(handle);
            it.value(handle, value ? &value->val : nullptr);
        },
        [&](Host& host) -> A_Err {
            const StreamRef ref = host.handles.stream(handle);
            const AEGP_StreamVal& given = require(value).val;
            const Vec3 numbers = dimensions(ref.stream) == 1
                                     ? Vec3{given.one_d, 0, 0}
                                     : Vec3{given.three_d.x, given.three_d.y, given.three_d.z};
            // A scene file cannot hold it.
            for (const double number : numbers)
                if (!std::isfinite(number)) return bad_argument_error;
            const double now = host.document.scene().composition.time;
            host.document.set_value(ref.layer, ref.stream, numbers, to_ticks(now));
            return 0;
        });
}

A_Err GetLayerStreamValue(AEGP_LayerH handle, AEGP_LayerStream number, AEGP_LTimeMode mode,
                          const A_Time* time, A_Boolean pre_expression, AEGP_StreamVal* value) {
    return serve_call(
        stream_call("GetLayerStreamValue"),
        [&](CallArguments& it) {
            it.layer(handle).number("stream", number).number("time_mode", mode);
            it.time("time", time).flag("pre_expression", pre_expression);
        },
        [&](Host& host) -> A_Err {
            const Layer& layer = *host.document.scene().find(host.handles.layer(handle));
            AEGP_StreamVal& result = require(value);
            const double seconds = seconds_of(require(time), mode, layer);
            const auto stream = stream_of(layer, number);
            if (!stream || !is_time_mode(mode)) return bad_argument_error;
            const Vec3 numbers = value_of(layer, *stream, seconds);
            if (dimensions(*stream) == 1)
                result.one_d = numbers[0];
            else
                result.three_d = {numbers[0], numbers[1], numbers[2]};
            return 0;
        });
}

A_Err InsertKeyframe(AEGP_StreamRefH handle, AEGP_LTimeMode mode, const A_Time* time,
                     AEGP_KeyframeIndex* index) {
    return serve_call(
        {kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion, "InsertKeyframe"},
        [&](CallArguments& it) { it.stream(handle).number("time_mode", mode).time("time", time); },
        [&](Host& host) -> A_Err {
            const StreamRef ref = host.handles.stream(handle);
            const Layer& layer = *host.document.scene().find(ref.layer);
            AEGP_KeyframeIndex& result = require(index);
            const double seconds = seconds_of(require(time), mode, layer);
            if (!layer.keys_of(ref.stream) || !is_time_mode(mode)) return bad_argument_error;
            if (std::fabs(seconds) > max_seconds) return bad_argument_error;
            result = static_cast<AEGP_KeyframeIndex>(
                host.document.insert_key(ref.layer, ref.stream, to_ticks(seconds)));
            return 0;
        });
}

constexpr AEGP_StreamSuite4 streams{GetNewLayerStream, DisposeStream, SetStreamValue,
                                    GetLayerStreamValue};
constexpr AEGP_KeyframeSuite1 keyframes{InsertKeyframe};

} // namespace

const void* const stream_suite = &streams;
const void* const keyframe_suite = &keyframes;

} // namespace minihost
