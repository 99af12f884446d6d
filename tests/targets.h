// Forces a target for the length of a scope. Tests are linked with the library's objects, not with the shared library, so that
// they can reach its choice.
#pragma once

#include <string_view>
#include <vector>

#include "frame/target.h"
#include "generic/member.h"

// The targets of this build that run on this processor.
inline std::vector<pxl::KnownTarget> availableTargets() {
    std::vector<pxl::KnownTarget> available;
    for (const pxl::KnownTarget& known : pxl::knownTargets)
        if (known.isOffered()) available.push_back(known);
    return available;
}

// Those that a member has code of its own for.
inline std::vector<pxl::KnownTarget> availableTargets(const generic::Member& member) {
    std::vector<pxl::KnownTarget> available = availableTargets();
    std::erase_if(available, [&](const pxl::KnownTarget& t) { return !member.runsOn(t.name); });
    return available;
}

class TargetScope {
public:
    explicit TargetScope(const pxl::KnownTarget& known) : before_(pxl::target) { pxl::target = known.target; }
    ~TargetScope() { pxl::target = before_; }
    TargetScope(const TargetScope&) = delete;
    TargetScope& operator=(const TargetScope&) = delete;

private:
    pxl::Target before_;
};
