#pragma once

#include "CleanerCore/Apps/OrphanGroup.hpp"
#include "Modules/Leftovers/LeftoverGroupList.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

// The leftovers channel: what remains in the home of apps no longer installed, as groups by
// identifier. Each group is a judgement from names alone, so nothing starts ticked.
class LeftoversModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The leftovers model belongs to AppModel")
    Q_PROPERTY(LeftoverGroupList* groups READ groupList CONSTANT)
    Q_PROPERTY(bool isPartial READ isPartial NOTIFY partialChanged)
    Q_PROPERTY(QString appsText READ appsText NOTIFY resultsChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)

public:
    using KnownSource = std::function<std::unordered_set<std::string>()>;
    using AccessProbe = std::function<bool()>;

    explicit LeftoversModel(Preferences& preferences, QObject* parent = nullptr);

    // The seams a test replaces: the home searched (and where removals act), the known ids (every
    // installed app's, lower case) and whether the protected places can be read.
    void setHome(CleanerCore::URL home);
    const CleanerCore::URL& home() const { return homeFolder; }
    void setKnownSource(KnownSource source) { knownSource = std::move(source); }
    void setAccessProbe(AccessProbe probe) { accessProbe = std::move(probe); }

    const std::vector<CleanerCore::OrphanGroup>& groups() const { return found; }
    bool isPartial() const { return partial; }

    // A group's box: every item on unless all are, then all off.
    Q_INVOKABLE void toggleGroup(const QString& bundleID);
    const CleanerCore::OrphanGroup* group(const QString& bundleID) const;

    LeftoverGroupList* groupList() const { return groupRows; }
    QString appsText() const;
    QString selectedText() const;

signals:
    void partialChanged();

protected:
    ScanPlan scanPlan() override;
    // One category for the whole selection: the summary and the outcome say it in one line.
    std::vector<CleanupCategory> categories() const override;
    void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) override;
    bool hasResults() const override { return !found.empty(); }

private:
    CleanerCore::URL homeFolder;
    KnownSource knownSource;
    AccessProbe accessProbe;
    std::vector<CleanerCore::OrphanGroup> found;
    bool partial = false;
    LeftoverGroupList* groupRows;
};
