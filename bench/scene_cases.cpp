// Opening a scene file beside the JSON library's bare parse of the same text.

#include "bench/Figures.h"
#include "bench/Rig.h"
#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"

#include <nlohmann/json.hpp>
#include <optional>

namespace bench {

namespace {

std::string text_of(int layers) {
    return minihost::scene_text(minihost::Document(cards(layers)));
}

} // namespace

std::vector<Case> scene_cases() {
    std::vector<Case> cases;
    for (const int layers : {100, 10000, 100000}) {
        const auto prepare = [layers]() -> Pair {
            const auto text = std::make_shared<const std::string>(text_of(layers));
            // What is made lives on until the time is taken.
            return {[text] {
                        std::optional<minihost::Scene> scene;
                        return seconds_of(
                            [&] { scene.emplace(minihost::parse_scene(*text, "cards")); });
                    },
                    [text] {
                        nlohmann::json json;
                        return seconds_of([&] { json = nlohmann::json::parse(*text); });
                    }};
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
