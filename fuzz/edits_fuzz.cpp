// A document under any sequence of edits: undoing all of it gives the scene from before, doing it
// again the one from after.

#include "fuzz/Bytes.h"
#include "fuzz/same_scene.h"
#include "minihost/model/Document.h"
#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"

using namespace minihost;

namespace {

// Cards, a camera and a text, enough for orders and duplicates to matter.
Scene small_scene() {
    return parse_scene(R"({"format": "minihost scene 1",
        "layers": [{"name": "A", "kind": "solid", "source": {"width": 10, "height": 10}},
                   {"name": "A 2", "kind": "solid", "three_d": true,
                    "source": {"width": 20, "height": 10},
                    "keyframes": {"position": [{"time": 1, "value": [1, 2, 3]}]}},
                   {"name": "C", "kind": "camera"},
                   {"name": "A 3", "kind": "text", "three_d": true}],
        "selection": [1, 3, "other", 1]})",
                       "small");
}

class Editor {
  public:
    Editor(Document& document, fuzz::Bytes& bytes) : _document(document), _bytes(bytes) {}

    void edit_once() {
        const auto& scene = _document.scene();
        const std::size_t count = scene.layer_count();
        switch (_bytes.take<std::uint8_t>() % 12) {
        case 0:
            _document.begin_group("G");
            return;
        case 1:
            _document.end_group();
            return;
        case 2:
            if (count < 40) add();
            return;
        case 3:
            if (count) _document.remove_layer(any());
            return;
        case 4:
            if (count) _document.move_layer(any(), index(count));
            return;
        case 5:
            if (count) _document.rename_layer(any(), _bytes.flag() ? "A" : "A 2");
            return;
        case 6:
            if (count && count < 40) duplicate();
            return;
        case 7:
            if (count < 20) _document.duplicate_selection();
            return;
        case 8:
            if (count) set_value();
            return;
        case 9:
            if (count) insert_key();
            return;
        case 10:
            _document.undo();
            return;
        default:
            _document.redo();
            return;
        }
    }

  private:
    std::size_t index(std::size_t count) { return _bytes.take<std::uint8_t>() % count; }
    LayerId any() {
        const auto& scene = _document.scene();
        return scene.layer_at(index(scene.layer_count())).id;
    }
    void add() {
        Layer layer;
        layer.name = "B";
        layer.three_d = _bytes.flag();
        layer.size = {5, 5};
        _document.add_layer(std::move(layer), index(_document.scene().layer_count() + 1));
    }
    void duplicate() {
        const LayerId original = any();
        const LayerId copy = _document.duplicate_layer(original);
        const auto& scene = _document.scene();
        fuzz::require(scene.index_of(copy) + 1 == scene.index_of(original), "right above it");
    }
    void set_value() {
        const LayerId id = any();
        if (const auto stream = any_stream(id))
            _document.set_value(id, *stream, {_bytes.finite(), _bytes.finite(), 0},
                                _bytes.integer(-3000, 3000));
    }
    void insert_key() {
        const LayerId id = any();
        const auto stream = any_stream(id);
        if (stream && _document.scene().find(id)->keys_of(*stream))
            _document.insert_key(id, *stream, _bytes.integer(-3000, 3000));
    }
    std::optional<Stream> any_stream(LayerId id) {
        const auto stream = stream_of_number(_bytes.integer(0, 10));
        if (!stream || !_document.scene().find(id)->has_stream(*stream)) return {};
        return stream;
    }

    Document& _document;
    fuzz::Bytes& _bytes;
};

// The scene alone: the names of the undo steps change by undoing.
std::string text_of(const Document& document) {
    std::string text = scene_text(document);
    return text.substr(0, text.find("\"undo\""));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Document document(small_scene());
    const std::string before = text_of(document);
    fuzz::Bytes bytes(data, size);
    for (Editor editor(document, bytes); !bytes.empty();) editor.edit_once();
    while (document.end_group()) {
    }
    fuzz::require(document.open_groups() == 0, "all groups are closed");

    const std::string after = text_of(document);
    int steps = 0;
    while (document.undo()) ++steps;
    if (text_of(document) != before) {
        std::fprintf(stderr, "%s\n%s\n", before.c_str(), text_of(document).c_str());
        fuzz::require(false, "undone, it is as before");
    }
    while (steps-- > 0) fuzz::require(document.redo(), "what was undone can be done again");
    fuzz::require(text_of(document) == after, "done again, it is as after");
    return 0;
}
