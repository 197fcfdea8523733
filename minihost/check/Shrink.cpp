#include "minihost/check/Shrink.h"

#include <algorithm>
#include <numeric>

namespace minihost {

StepIndices shrink(std::size_t count, const std::function<bool(const StepIndices&)>& fails,
                   std::chrono::steady_clock::time_point deadline) {
    StepIndices left(count);
    std::iota(left.begin(), left.end(), std::size_t{0});
    // Leaves out large pieces first, at last single steps until none can go.
    std::size_t piece = std::max<std::size_t>(count / 2, 1);
    bool any_removed = false;
    // From the end, as late steps depend on early ones.
    for (std::size_t end = left.size(); !left.empty();) {
        if (std::chrono::steady_clock::now() >= deadline) break;
        const std::size_t start = end > piece ? end - piece : 0;
        StepIndices tried = left;
        tried.erase(tried.begin() + static_cast<std::ptrdiff_t>(start),
                    tried.begin() + static_cast<std::ptrdiff_t>(end));
        if (fails(tried)) {
            left = std::move(tried);
            any_removed = true;
        }
        end = start;
        if (end > 0) continue;
        if (piece == 1 && !any_removed) break;
        if (piece > 1) piece = (piece + 1) / 2;
        any_removed = false;
        end = left.size();
    }
    return left;
}

} // namespace minihost
