#include "minihost/check/Shrink.h"

#include <algorithm>
#include <numeric>

namespace minihost {

StepIndices shrink(std::size_t count, const std::function<bool(const StepIndices&)>& goes_wrong,
                   std::chrono::steady_clock::time_point until) {
    StepIndices left(count);
    std::iota(left.begin(), left.end(), std::size_t{0});
    // Large pieces first; with single steps it is gone through until none can be left out.
    std::size_t piece = std::max<std::size_t>(count / 2, 1);
    bool any_left_out = false;
    // From the end: what comes late leans on what is early.
    for (std::size_t end = left.size(); !left.empty();) {
        if (std::chrono::steady_clock::now() >= until) break;
        const std::size_t start = end > piece ? end - piece : 0;
        StepIndices tried = left;
        tried.erase(tried.begin() + static_cast<std::ptrdiff_t>(start),
                    tried.begin() + static_cast<std::ptrdiff_t>(end));
        if (goes_wrong(tried)) {
            left = std::move(tried);
            any_left_out = true;
        }
        end = start;
        if (end > 0) continue;
        if (piece == 1 && !any_left_out) break;
        if (piece > 1) piece = (piece + 1) / 2;
        any_left_out = false;
        end = left.size();
    }
    return left;
}

} // namespace minihost
