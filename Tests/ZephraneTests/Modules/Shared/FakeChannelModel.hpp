#pragma once

#include "Modules/Shared/ModulePhaseModel.hpp"

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>

// A channel whose scans play a plan: each unit "finds" the categories given to it. Units can be
// held at a gate so a test can act while one is under way.
class FakeChannelModel : public ModulePhaseModel {
public:
    struct Gate {
        void open();
        void wait();

    private:
        std::mutex mutex;
        std::condition_variable changed;
        bool isOpen = false;
    };

    struct PlannedUnit {
        QString id;
        QString title;
        std::vector<CleanupCategory> found;
        // When set, the unit shows as these tiles, entering each in turn and finding its bytes.
        std::vector<std::pair<QString, std::int64_t>> tiles = {};
    };

    std::vector<PlannedUnit> plan;
    std::shared_ptr<Gate> gate; // units wait here when set
    std::vector<CleanupCategory> results;

    using ModulePhaseModel::ModulePhaseModel;
    // A fixed way of removal, as a channel that always empties for good has; none by default.
    std::optional<CleanDestination> fixedWay;
    // Items to remove after each named item (by URL path).
    std::map<std::string, std::vector<CleanerCore::CleanupItem>> companions;

protected:
    ScanPlan scanPlan() override;
    std::optional<CleanDestination> fixedDestination() const override { return fixedWay; }
    std::vector<CleanerCore::CleanupItem> removedWith(const CleanerCore::CleanupItem& item) const override;
    std::vector<CleanupCategory> categories() const override { return results; }
    void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) override;
};

// One category of items named under `folder`, each `size` bytes.
CleanupCategory fakeCategory(const QString& id, const std::string& folder,
                             std::initializer_list<const char*> names, std::int64_t size = 1000,
                             bool selectedByDefault = true);
