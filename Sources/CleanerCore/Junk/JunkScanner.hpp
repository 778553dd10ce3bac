#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Junk/JunkGroup.hpp"
#include "CleanerCore/Junk/JunkRule.hpp"

#include <set>
#include <stop_token>
#include <string>
#include <vector>

namespace CleanerCore {

// Turns rules into groups of removable items below one home. A plain value: call it from any thread.
struct JunkScanner {
    URL home;
    std::vector<JunkRule> rules;

    // One group for each rule, in the rules' order, empty ones included. An item named like a running
    // application's bundle identifier carries the "app open" note and is not preselected. Items that
    // measure nothing are left out; each group is sorted largest first, ties in listing order.
    std::vector<JunkGroup> scan(const std::set<std::string>& runningBundleIDs,
                                std::stop_token stop = {}) const;

    // What a source names right now. A missing or unreadable folder names nothing; hidden entries
    // count, ".DS_Store" never does.
    std::vector<URL> candidates(const JunkRule::Source& source) const;
};

} // namespace CleanerCore
