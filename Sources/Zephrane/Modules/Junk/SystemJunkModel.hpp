#pragma once

#include "CleanerCore/Junk/JunkGroup.hpp"
#include "CleanerCore/Junk/JunkRule.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

class JunkCategoryList;

// The junk channel: runs the rules one at a time so that each ticks off on its own tile, keeps the
// groups they found and the selection of files, and removes the selection through the shared life.
class SystemJunkModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The junk model belongs to AppModel")
    Q_PROPERTY(JunkCategoryList* categories READ categoryList CONSTANT)
    Q_PROPERTY(QString foundText READ foundText NOTIFY resultsChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)
    Q_PROPERTY(QString selectedDetail READ selectedDetail NOTIFY selectionChanged)

public:
    using RunningBundleIDs = std::function<std::set<std::string>()>;

    explicit SystemJunkModel(Preferences& preferences, QObject* parent = nullptr);
    SystemJunkModel(Preferences& preferences, std::vector<CleanerCore::JunkRule> rules, QObject* parent = nullptr);

    const std::vector<CleanerCore::JunkRule>& rules() const { return ruleTable; }
    // One group per rule after a scan, in rule order, those without items too.
    const std::vector<CleanerCore::JunkGroup>& groups() const { return found; }

    // A row's check: the whole group on when it is off or mixed, off when it is on.
    Q_INVOKABLE void toggleGroup(const QString& ruleId);

    // The home the rules read and removals act in (the user's, unless a test says otherwise).
    void setHome(CleanerCore::URL home);
    const CleanerCore::URL& home() const { return homeFolder; }
    // Where the running applications' bundle identifiers come from; read once at the start of a scan.
    void setRunningBundleIDs(RunningBundleIDs source) { runningBundleIDs = std::move(source); }

    JunkCategoryList* categoryList() const { return categoryRows; }
    QString foundText() const;
    // The action bar's lines: "1.2 GB selected", "14 items in 3 categories".
    QString selectedText() const;
    QString selectedDetail() const;

protected:
    ScanPlan scanPlan() override;
    std::vector<CleanupCategory> categories() const override;
    void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) override;

private:
    const CleanerCore::JunkGroup* group(const QString& ruleId) const;

    std::vector<CleanerCore::JunkRule> ruleTable;
    std::vector<CleanerCore::JunkGroup> found;
    CleanerCore::URL homeFolder;
    RunningBundleIDs runningBundleIDs;
    JunkCategoryList* categoryRows;
};
