#include "CleanerCore/Apps/LeftoverFinder.hpp"
#include "CleanerCore/Display/CoreL10n.hpp"
#include "FaultySystemCalls.hpp"
#include "Mapped.hpp"
#include "TempTree.hpp"

#include <fmt/format.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

using namespace CleanerCore;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class LeftoverHome : public testing::Test {
protected:
    TestSupport::TempTree home;
    TestSupport::TempTree system; // stands for /Library
    LeftoverFinder finder{URL::file(home.root().string()), URL::file(system.root().string())};

    std::string user(std::string_view relative) const { return home.path(relative).string(); }

    static InstalledApp app(std::string name, std::optional<std::string> id) {
        return {URL::file("/Applications/" + name + ".app"), std::move(name), std::move(id)};
    }

    std::vector<std::string> paths(const std::vector<AppLeftover>& leftovers) const {
        return TestSupport::mapped(leftovers,
                                   [](const AppLeftover& leftover) { return leftover.url.path(); });
    }
};

} // namespace

TEST_F(LeftoverHome, AnAppClaimsItsIdentifierEverywhereButNotWhatNestedAppsOwn) {
    home.file("Library/Preferences/com.foo.plist", 1);
    home.file("Library/Preferences/com.foo.helper.plist", 1);
    home.file("Library/Preferences/com.foobar.plist", 1);
    home.file("Library/Preferences/com.foo.mini.plist", 1);
    home.file("Library/Preferences/com.foo.mini.extension.plist", 1);
    home.file("Library/Preferences/ByHost/com.foo.ABCDEF.plist", 1);
    home.file("Library/Group Containers/ABCDE12345.com.foo/x", 1);
    home.file("Library/Caches/.DS_Store", 1);
    home.file(".var/app/com.foo/data/x", 1);
    home.file(".config/autostart/com.foo.desktop", 1);
    system.file("Caches/com.foo/x", 1);

    const auto leftovers = finder.appLeftovers(app("Foo", "COM.Foo"), {"com.foo", "com.foo.mini"});
    EXPECT_THAT(paths(leftovers),
                UnorderedElementsAre(user("Library/Preferences/com.foo.helper.plist"),
                                     user("Library/Preferences/com.foo.plist"),
                                     user("Library/Preferences/ByHost/com.foo.ABCDEF.plist"),
                                     user("Library/Group Containers/ABCDE12345.com.foo"),
                                     user(".var/app/com.foo"), user(".config/autostart/com.foo.desktop"),
                                     system.path("Caches/com.foo").string()));
    EXPECT_EQ(leftovers.back().url.path(), system.path("Caches/com.foo").string())
        << "the system Library comes last";
}

TEST_F(LeftoverHome, KindsAndCautionsFollowTheFolder) {
    home.file("Library/Preferences/ByHost/com.foo.1.plist", 1);
    home.file("Library/Group Containers/group.com.foo/x", 1);
    home.file("Library/Saved Application State/com.foo.savedState/x", 1);
    home.file("Library/HTTPStorages/com.foo/x", 1);
    home.file("Library/LaunchAgents/com.foo.agent.plist", 1);
    home.file(".cache/com.foo/x", 1);
    system.file("LaunchDaemons/com.foo.daemon.plist", 1);

    const auto leftovers = finder.appLeftovers(app("Foo", "com.foo"), {});
    std::map<std::string, std::pair<LeftoverKind, std::optional<LeftoverCaution>>> seen;
    for (const AppLeftover& leftover : leftovers)
        seen[leftover.url.lastPathComponent()] = {leftover.kind, leftover.caution};
    using Seen = std::pair<LeftoverKind, std::optional<LeftoverCaution>>;
    EXPECT_EQ(seen["com.foo.1.plist"], Seen(LeftoverKind::preferences, std::nullopt));
    EXPECT_EQ(seen["group.com.foo"], Seen(LeftoverKind::data, LeftoverCaution::shared));
    EXPECT_EQ(seen["com.foo.savedState"], Seen(LeftoverKind::savedState, std::nullopt));
    EXPECT_EQ(seen["com.foo"], Seen(LeftoverKind::caches, std::nullopt)); // ~/.cache, the last of that name
    EXPECT_EQ(seen["com.foo.agent.plist"], Seen(LeftoverKind::startup, std::nullopt));
    EXPECT_EQ(seen["com.foo.daemon.plist"], Seen(LeftoverKind::startup, LeftoverCaution::systemWide));
    EXPECT_EQ(leftovers.size(), 7u);
}

TEST_F(LeftoverHome, PlainNamesMatchExactlyAndOnlyWhereFoldersAreNamedAfterApps) {
    home.folder("Library/Application Support/notes");
    home.folder("Library/Application Support/Notes2");
    home.file("Library/Preferences/Notes", 1);
    home.folder(".local/share/Notes");
    home.folder(".config/Notes");
    home.folder("Library/Caches/QQ"); // a two-letter app name matches nothing

    const auto apps = std::vector<InstalledApp>{app("Notes", std::nullopt), app("QQ", std::nullopt)};
    const auto all = finder.appLeftovers(apps, {});
    EXPECT_THAT(paths(all.at(apps[0].url)),
                ElementsAre(user("Library/Application Support/notes"), user(".local/share/Notes")));
    EXPECT_THAT(all.at(apps[1].url), IsEmpty()) << "every app has its list, even an empty one";
    EXPECT_THAT(finder.leftovers(app("Nothing", "org.nothing.here"), {}), IsEmpty());
}

TEST_F(LeftoverHome, OrphansNeedAnAppOnlyFolderAndSpareWhatKnownAppsOwn) {
    home.file("Library/Caches/com.x.y/a", 100);                    // cache alone: too little proof
    home.file("Library/Caches/com.z.w/a", 4000);                   // with preferences: a group of two
    home.file("Library/Preferences/com.z.w.plist", 10);            //
    home.file("Library/Preferences/com.foo.bar.baz.plist", 10);    // one group "com.foo.bar"
    home.folder("Library/Containers/com.foo.bar.qux");             //
    home.file("Library/Preferences/com.apple.foo.plist", 10);      // never Apple's
    home.file("Library/Preferences/org.applesauce.tool.plist", 1); // nor anything naming it
    home.file("Library/Preferences/com.known.app.extra.plist", 1); // child of a known id
    home.file("Library/Preferences/com.parent.plist", 1);          // too short, and a parent of one
    home.file("Library/Preferences/net.vendor.other.plist", 1);    // a known vendor's
    home.file("Library/Preferences/zz.top.band.plist", 1);         // below a known one-part id
    home.file(".var/app/org.gone.Viewer/data/x", 20000);           // what a Flatpak uninstall leaves
    home.file(".local/share/org.gone.Viewer/x", 10);
    home.file(".cache/org.gone.Viewer/x", 10);
    home.file(".local/share/org.only.Data/x", 10); // name-match folders alone prove nothing
    system.file("Preferences/com.system.only.plist", 1);

    const auto groups = finder.orphans({"com.known.app", "net.vendor.main", "zz"});
    std::vector<std::string> keys;
    for (const OrphanGroup& group : groups)
        keys.push_back(group.bundleID);
    ASSERT_THAT(keys, ElementsAre("org.gone.viewer", "com.z.w", "com.foo.bar"));
    EXPECT_EQ(groups[0].items.size(), 3u);
    EXPECT_EQ(groups[0].items[0].url.path(), user(".var/app/org.gone.Viewer"));
    EXPECT_GE(groups[0].items[0].size, 20000);
    EXPECT_GE(groups[0].items[0].size, groups[0].items[1].size);
    EXPECT_EQ(groups[1].items[0].url.path(), user("Library/Caches/com.z.w")) << "largest first";
    for (const OrphanGroup& group : groups)
        for (const CleanupItem& item : group.items) {
            EXPECT_FALSE(item.selectedByDefault);
            EXPECT_EQ(item.note, std::nullopt);
        }

    const OrphanGroup trimmed = groups[0].removing({URL::file(user(".var/app/org.gone.Viewer"))});
    EXPECT_EQ(trimmed.items.size(), 2u);
    EXPECT_EQ(trimmed.totalSize(), groups[0].totalSize() - groups[0].items[0].size);

    EXPECT_EQ(finder.orphans({}).size(), 6u) << "with nothing known every strong group stands";
}

TEST_F(LeftoverHome, UnreadableFoldersAndOddNamesAreSkippedQuietly) {
    home.file("Library/Preferences/com.odd\xff.name.plist", 1);
    home.file("Library/Containers/com.odd\xff.name/x", 1);
    home.file("Library/Caches/com.hidden.app/x", 1);
    home.file("Library/Preferences/com.hidden.app.plist", 1);
    TestSupport::FaultySystemCalls calls;
    calls.openFault = [](const char* name) {
        return std::string_view(name).ends_with("/Preferences") ? EACCES : 0;
    };
    const CleanerCore::Platform::ScopedSystemCalls installed(calls);
    const auto groups = finder.orphans({});
    ASSERT_EQ(groups.size(), 1u)
        << "the hidden app's preferences were never seen, and a cache proves nothing";
    EXPECT_EQ(groups[0].bundleID, "com.odd\xff.name");
}

TEST(LeftoverKinds, TitlesAndNotesExistInBothLanguages) {
    for (std::string_view language : {"en", "pt-BR"}) {
        for (LeftoverKind kind : allLeftoverKinds)
            EXPECT_NE(title(kind, std::string(language)),
                      fmt::format("core.leftoverKind.{}", rawValue(kind)));
        for (LeftoverCaution caution : allLeftoverCautions)
            EXPECT_NE(note(caution, std::string(language)),
                      fmt::format("core.leftoverCaution.{}", rawValue(caution)));
    }
}
