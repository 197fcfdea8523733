// The calls that the plug-in makes of its host, noted with their arguments and made again without
// the plug-in: what an operation of the plug-in costs when nothing is done but calling the host.
//
//   1. A plug-in is entered with Recording::basic_suite(host's own), which passes every call on.
//   2. start(), the operation, stop().
//   3. Replay on a host with an equal scene: prepare(), run() any number of times.

#pragma once

#include "minihost/suites/Host.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <unordered_set>
#include <vector>

namespace bench {

class Replay;

// One call as it is kept: how to make it again, and behind that its arguments.
struct NotedCall {
    // Makes the call; the place behind it.
    std::byte* (*make)(NotedCall&, Replay&);
    A_Err result;
};

class Recording {
  public:
    // Between the plug-in and `real`. Suites are acquired through it as through the real one.
    static SPBasicSuite* basic_suite(const SPBasicSuite* real);

    // One recording is made at a time, on a host that is not inside a callback.
    void start(minihost::Host& host);
    void stop();
    static Recording* running();

    std::size_t size() const { return _size; }

    // For the functions that stand between.
    std::size_t reserve(std::size_t bytes);
    std::byte* at(std::size_t offset) { return _memory.data() + offset; }
    const char* keep(const char* text);
    void note_result(std::size_t offset, A_Err result);
    void note_new_layer(AEGP_LayerH layer);

  private:
    friend class Replay;
    std::vector<std::byte> _memory; // NotedCalls of different lengths
    std::size_t _size = 0;
    std::unordered_set<std::string> _texts;
    std::uint64_t _first_handle = 0; // numbers from here were given during the recording
    std::uint64_t _first_layer = 0;  // the same of layers; 0 when none was made
    std::uint64_t _new_layers = 0;
};

// A recording made again and again on one host.
class Replay {
  public:
    Replay(Recording& recording, minihost::Host& host) : _recording(recording), _host(host) {}

    // To be called before each run, from outside of the host's callbacks.
    void prepare();
    // Makes every call. To be called inside Host::enter.
    void run();
    // Throws std::runtime_error when calls gave other results than when they were recorded, or the
    // host was misused: what was measured is not the same then.
    void check() const;

    // For the calls: the handles of this host in the place of those that were noted.
    template <typename Handle>
    Handle here(Handle noted) const;
    // What a plug-in may hold from one operation to the next: one collection.
    void hold(AEGP_CollectionH collection) { _held = collection; }
    int differing = 0;
    char text[AEGP_MAX_LAYER_NAME_SIZE]; // room for names
    const void* suite = nullptr;

  private:
    Recording& _recording;
    minihost::Host& _host;
    std::uint64_t _next_layer = 0; // 0 until layers have been made
    std::int64_t _handle_shift = 0, _layer_shift = 0;
    AEGP_CollectionH _held = nullptr;
};

} // namespace bench
