// Any bytes as a scene file: refused with an error, or read, written and read again as the same
// scene.

#include "fuzz/Bytes.h"
#include "fuzz/same_scene.h"
#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"

using namespace minihost;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const Document first(parse_scene(text, "input"));
        const std::string written = scene_text(first);
        try {
            const Document second(parse_scene(written, "written"));
            fuzz::require_same(first.scene(), second.scene());
            fuzz::require(first.undo_names() == second.undo_names(), "same undo names");
            fuzz::require(scene_text(second) == written, "written twice the same");
        } catch (const SceneError& error) {
            std::fprintf(stderr, "%s\n%s\n", written.c_str(), error.what());
            fuzz::require(false, "what is written can be read");
        }
    } catch (const SceneError& error) {
        const std::string line = error.what();
        fuzz::require(line.starts_with("input: "), "an error names the file");
        fuzz::require(line.find('\n') == std::string::npos, "an error is one line");
    }
    return 0;
}
