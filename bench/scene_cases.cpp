// Opening a scene file beside the JSON library's bare parse of the same text.

#include "bench/Figures.h"
#include "bench/Rig.h"
#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"

#include <nlohmann/json.hpp>

namespace bench {

namespace {

std::string text_of(int layers) {
    return minihost::scene_text(minihost::Document(cards(layers)));
}

template <typename Operation>
double seconds_of(const Operation& operation) {
    const double start = processor_seconds();
    const auto kept = operation();
    return processor_seconds() - start;
}

} // namespace

std::vector<Case> scene_cases() {
    std::vector<Case> cases;
    for (const int layers : {100, 10000, 100000}) {
        const auto prepare = [layers]() -> Pair {
            const auto text = std::make_shared<const std::string>(text_of(layers));
            return {[text] {
                        return seconds_of([&] { return minihost::parse_scene(*text, "cards"); });
                    },
                    [text] { return seconds_of([&] { return nlohmann::json::parse(*text); }); }};
        };
        cases.push_back({"open a scene", layers, layers > 10000 ? 5 : 21, 2, prepare,
                         [layers] { minihost::parse_scene(text_of(layers), "cards"); }});
        cases.push_back({"bare parse", layers, 0, 0, {}, [layers] {
                             const auto kept = nlohmann::json::parse(text_of(layers));
                         }});
    }
    return cases;
}

} // namespace bench
