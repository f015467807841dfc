// Things that go the same way, found by how far across they lie.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "desk/drawing/Outlines.h"

namespace Desk {

struct Bundle {
    Frame frame;
    std::vector<std::pair<double, std::size_t>> byAxis;  // v and an index, sorted once all are in
};

// The bundle of a direction, made when there is none.
inline Bundle& BundleOf(std::vector<Bundle>& bundles, const Frame& frame)
{
    for (Bundle& bundle : bundles) {
        if (std::abs(bundle.frame.cosine - frame.cosine) < 1e-3 &&
            std::abs(bundle.frame.sine - frame.sine) < 1e-3) {
            return bundle;
        }
    }
    return bundles.emplace_back(Bundle{frame, {}});
}

inline void Sort(std::vector<Bundle>& bundles)
{
    for (Bundle& bundle : bundles) {
        std::sort(bundle.byAxis.begin(), bundle.byAxis.end());
    }
}

// Calls use(index) for what lies between two v of a bundle.
template <class Use>
void ForEachBetween(const Bundle& bundle, double from, double to, Use use)
{
    for (auto at =
             std::lower_bound(bundle.byAxis.begin(), bundle.byAxis.end(), std::pair(from, std::size_t{0}));
         at != bundle.byAxis.end() && at->first <= to; ++at) {
        use(at->second);
    }
}

}  // namespace Desk
