<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Zephrane</name>
    <message id="Zephrane">
        <source>Zephrane</source>
        <translation>Zephrane</translation>
    </message>
    <message id="menu.go">
        <source>Go</source>
        <translation>Go</translation>
    </message>
    <message id="menu.checkForUpdates">
        <source>Check for Updates…</source>
        <translation>Check for Updates…</translation>
    </message>
    <message id="menu.go.item">
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message id="channel.a11y.name">
        <source>%1 channel</source>
        <translation>%1 channel</translation>
    </message>
    <message id="channel.home.short">
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message id="channel.home.title">
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message id="channel.junk.short">
        <source>Junk</source>
        <translation>Junk</translation>
    </message>
    <message id="channel.junk.title">
        <source>System Junk</source>
        <translation>System Junk</translation>
    </message>
    <message id="channel.lens.short">
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message id="channel.lens.title">
        <source>Space Lens</source>
        <translation>Space Lens</translation>
    </message>
    <message id="channel.large.short">
        <source>Large</source>
        <translation>Large</translation>
    </message>
    <message id="channel.large.title">
        <source>Large &amp; Old Files</source>
        <translation>Large &amp; Old Files</translation>
    </message>
    <message id="channel.apps.short">
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message id="channel.apps.title">
        <source>Uninstaller</source>
        <translation>Uninstaller</translation>
    </message>
    <message id="channel.leftovers.short">
        <source>Orphans</source>
        <translation>Orphans</translation>
    </message>
    <message id="channel.leftovers.title">
        <source>Leftovers</source>
        <translation>Leftovers</translation>
    </message>
    <message id="channel.trash.short">
        <source>Trash</source>
        <translation>Trash</translation>
    </message>
    <message id="channel.trash.title">
        <source>Trash</source>
        <translation>Trash</translation>
    </message>
    <message id="channel.updates.short">
        <source>Upd</source>
        <translation>Upd</translation>
    </message>
    <message id="channel.updates.title">
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message id="shell.disk.label">
        <source>Disk</source>
        <translation>Disk</translation>
    </message>
    <message id="shell.disk.a11y">
        <source>Disk space in use</source>
        <translation>Disk space in use</translation>
    </message>
    <message id="shell.disk.free">
        <source>%1 free of %2</source>
        <translation>%1 free of %2</translation>
    </message>
    <message id="shell.window.minimize">
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message id="shell.window.maximize">
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message id="shell.window.close">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="settings.title">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="settings.short">
        <source>Prefs</source>
        <translation>Prefs</translation>
    </message>
    <message id="settings.switches.section">
        <source>Switches</source>
        <translation>Switches</translation>
    </message>
    <message id="settings.toggle.menuBar">
        <source>Show the agent in the system tray</source>
        <translation>Show the agent in the system tray</translation>
    </message>
    <message id="settings.toggle.launchAtLogin">
        <source>Open at login</source>
        <translation>Open at login</translation>
    </message>
    <message id="settings.toggle.outdatedApps">
        <source>Notify me about outdated apps</source>
        <translation>Notify me about outdated apps</translation>
    </message>
    <message id="settings.language.title">
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message id="settings.language.system">
        <source>System</source>
        <translation>System</translation>
    </message>
    <message id="settings.language.portuguese">
        <source>Português</source>
        <translation>Português</translation>
    </message>
    <message id="settings.language.english">
        <source>English</source>
        <translation>English</translation>
    </message>
    <message id="settings.language.relaunchNotice">
        <source>The new language takes effect after Zephrane restarts.</source>
        <translation>The new language takes effect after Zephrane restarts.</translation>
    </message>
    <message id="settings.language.relaunch">
        <source>Restart now</source>
        <translation>Restart now</translation>
    </message>
    <message id="settings.cleaning.section">
        <source>Cleaning</source>
        <translation>Cleaning</translation>
    </message>
    <message id="settings.cleaning.title">
        <source>Where removed items go</source>
        <translation>Where removed items go</translation>
    </message>
    <message id="settings.cleaning.subtitle">
        <source>The trash lets you bring items back. Deleting frees the space at once and cannot be undone.</source>
        <translation>The trash lets you bring items back. Deleting frees the space at once and cannot be undone.</translation>
    </message>
    <message id="settings.cleaning.trash">
        <source>Move to trash</source>
        <translation>Move to trash</translation>
    </message>
    <message id="settings.cleaning.delete">
        <source>Delete for good</source>
        <translation>Delete for good</translation>
    </message>
    <message id="settings.accent.title">
        <source>Accent colour</source>
        <translation>Accent colour</translation>
    </message>
    <message id="settings.accent.orange">
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message id="settings.accent.lime">
        <source>Lime</source>
        <translation>Lime</translation>
    </message>
    <message id="settings.accent.blue">
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message id="settings.disk.section">
        <source>Disk access</source>
        <translation>Disk access</translation>
    </message>
    <message id="settings.disk.title">
        <source>Full disk access</source>
        <translation>Full disk access</translation>
    </message>
    <message id="settings.disk.granted">
        <source>Granted</source>
        <translation>Granted</translation>
    </message>
    <message id="settings.disk.off">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="settings.about.section">
        <source>About</source>
        <translation>About</translation>
    </message>
    <message id="settings.about.version">
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message id="settings.about.checkForUpdates">
        <source>Check for updates</source>
        <translation>Check for updates</translation>
    </message>
    <message id="settings.about.checkForUpdates.off">
        <source>Updates are not available in this build.</source>
        <translation>Updates are not available in this build.</translation>
    </message>
    <message id="settings.about.welcome">
        <source>Show the welcome again</source>
        <translation>Show the welcome again</translation>
    </message>
    <message id="fda.banner.title">
        <source>Zephrane can't see all of your files</source>
        <translation>Zephrane can't see all of your files</translation>
    </message>
    <message id="fda.banner.body">
        <source>Without full disk access some folders stay hidden, and their space is left out of every count.</source>
        <translation>Without full disk access some folders stay hidden, and their space is left out of every count.</translation>
    </message>
    <message id="fda.action.openSettings">
        <source>Open settings</source>
        <translation>Open settings</translation>
    </message>
    <message id="fda.action.check">
        <source>Check again</source>
        <translation>Check again</translation>
    </message>
    <message id="fda.announce.granted">
        <source>Full disk access granted</source>
        <translation>Full disk access granted</translation>
    </message>
    <message id="fda.announce.stillOff">
        <source>Full disk access is still off</source>
        <translation>Full disk access is still off</translation>
    </message>
    <message id="painel.spokenValue">
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message id="painel.percent">
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message id="painel.hold.a11y">
        <source>Hold to confirm, or press to confirm in a dialog</source>
        <translation>Hold to confirm, or press to confirm in a dialog</translation>
    </message>
    <message id="painel.confirm.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="shell.disk.freeOf">
        <source>free of %1</source>
        <translation>free of %1</translation>
    </message>
    <message id="action.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="confirm.title">
        <source>Confirm cleanup</source>
        <translation>Confirm cleanup</translation>
    </message>
    <message id="confirm.question.trash">
        <source>Move the selected items to the Trash?</source>
        <translation>Move the selected items to the Trash?</translation>
    </message>
    <message id="confirm.question.delete">
        <source>Delete the selected items for good?</source>
        <translation>Delete the selected items for good?</translation>
    </message>
    <message id="confirm.body.trash">
        <source>They stay in the Trash until you empty it, so you can still put them back.</source>
        <translation>They stay in the Trash until you empty it, so you can still put them back.</translation>
    </message>
    <message id="confirm.body.delete">
        <source>They are removed at once and can't be recovered.</source>
        <translation>They are removed at once and can't be recovered.</translation>
    </message>
    <message id="confirm.hint.trash">
        <source>You can change where cleaned items go in Settings.</source>
        <translation>You can change where cleaned items go in Settings.</translation>
    </message>
    <message id="confirm.hint.delete">
        <source>Hold the key until it fills up to confirm.</source>
        <translation>Hold the key until it fills up to confirm.</translation>
    </message>
    <message id="confirm.line">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="confirm.total">
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message id="confirm.destination">
        <source>Destination: %1</source>
        <translation>Destination: %1</translation>
    </message>
    <message id="confirm.clean">
        <source>Clean</source>
        <translation>Clean</translation>
    </message>
    <message id="hold.confirm.message">
        <source>This can't be undone. Delete the selected items for good?</source>
        <translation>This can't be undone. Delete the selected items for good?</translation>
    </message>
    <message id="phase.announce.scanning">
        <source>Scanning</source>
        <translation>Scanning</translation>
    </message>
    <message id="phase.announce.results">
        <source>Scan finished, %1 found</source>
        <translation>Scan finished, %1 found</translation>
    </message>
    <message id="phase.announce.cleaning">
        <source>Cleaning</source>
        <translation>Cleaning</translation>
    </message>
    <message id="phase.announce.success">
        <source>Cleanup finished, %1 freed</source>
        <translation>Cleanup finished, %1 freed</translation>
    </message>
    <message id="phase.announce.empty">
        <source>Scan finished, nothing to clean</source>
        <translation>Scan finished, nothing to clean</translation>
    </message>
    <message id="phase.announce.step">
        <source>%1 done</source>
        <translation>%1 done</translation>
    </message>
    <message id="phase.cleaning.total">
        <source>Cleaning</source>
        <translation>Cleaning</translation>
    </message>
    <message id="phase.duration.seconds">
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message id="phase.duration.minutes">
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message id="phase.empty.title">
        <source>Nothing to clean</source>
        <translation>Nothing to clean</translation>
    </message>
    <message id="phase.empty.zero">
        <source>0</source>
        <translation>0</translation>
    </message>
    <message id="phase.rescan">
        <source>Scan again</source>
        <translation>Scan again</translation>
    </message>
    <message id="phase.scan">
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message id="phase.scan.count">
        <source>Found</source>
        <translation>Found</translation>
    </message>
    <message id="phase.scan.elapsed">
        <source>Elapsed</source>
        <translation>Elapsed</translation>
    </message>
    <message id="phase.scan.items">
        <source>Found: %1</source>
        <translation>Found: %1</translation>
    </message>
    <message id="phase.scan.progress">
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message id="phase.scan.progress.value">
        <source>%1 of %2 steps</source>
        <translation>%1 of %2 steps</translation>
    </message>
    <message id="phase.scan.stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="phase.scan.unit.one">
        <source>item</source>
        <translation>item</translation>
    </message>
    <message id="phase.scan.unit.other">
        <source>items</source>
        <translation>items</translation>
    </message>
    <message id="phase.status.clean">
        <source>All clean</source>
        <translation>All clean</translation>
    </message>
    <message id="phase.status.cleaning">
        <source>Cleaning</source>
        <translation>Cleaning</translation>
    </message>
    <message id="phase.status.idle">
        <source>Ready to scan</source>
        <translation>Ready to scan</translation>
    </message>
    <message id="phase.status.scanning">
        <source>Scanning</source>
        <translation>Scanning</translation>
    </message>
    <message id="phase.step.scanning">
        <source>Reading…</source>
        <translation>Reading…</translation>
    </message>
    <message id="phase.step.waiting">
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message id="success.status">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="success.title">
        <source>Cleanup complete</source>
        <translation>Cleanup complete</translation>
    </message>
    <message id="success.freed">
        <source>Freed</source>
        <translation>Freed</translation>
    </message>
    <message id="success.body.trash">
        <source>The items are in the Trash. Empty it to get the space back.</source>
        <translation>The items are in the Trash. Empty it to get the space back.</translation>
    </message>
    <message id="success.body.delete">
        <source>The items were deleted for good.</source>
        <translation>The items were deleted for good.</translation>
    </message>
    <message id="success.report">
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message id="success.report.ok">
        <source>%1 · %2 removed</source>
        <translation>%1 · %2 removed</translation>
    </message>
    <message id="success.report.time">
        <source>Took %1</source>
        <translation>Took %1</translation>
    </message>
    <message id="success.done">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="success.emptyTrash">
        <source>Empty Trash</source>
        <translation>Empty Trash</translation>
    </message>
    <message id="success.failures">
        <source>Not removed: %1</source>
        <translation>Not removed: %1</translation>
    </message>
    <message id="success.failures.collapsed">
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message id="success.failures.expanded">
        <source>Hide</source>
        <translation>Hide</translation>
    </message>
    <message id="junk.idle.message">
        <source>Caches, logs, build leftovers and unfinished downloads pile up in your home folder. Scan to see what can go.</source>
        <translation>Caches, logs, build leftovers and unfinished downloads pile up in your home folder. Scan to see what can go.</translation>
    </message>
    <message id="junk.empty.message">
        <source>No junk was found in your home folder.</source>
        <translation>No junk was found in your home folder.</translation>
    </message>
    <message id="junk.confirm.note">
        <source>Applications rebuild their caches as needed; the first launch afterwards may be a little slower.</source>
        <translation>Applications rebuild their caches as needed; the first launch afterwards may be a little slower.</translation>
    </message>
    <message id="junk.found">
        <source>Found</source>
        <translation>Found</translation>
    </message>
    <message id="junk.summary">
        <source>Files that applications and tools can do without. Open a category to choose item by item.</source>
        <translation>Files that applications and tools can do without. Open a category to choose item by item.</translation>
    </message>
    <message id="junk.selected">
        <source>%1 selected</source>
        <translation>%1 selected</translation>
    </message>
    <message id="junk.selected.detail">
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message id="junk.category.count.one">
        <source>%1 category</source>
        <translation>%1 category</translation>
    </message>
    <message id="junk.category.count.other">
        <source>%1 categories</source>
        <translation>%1 categories</translation>
    </message>
    <message id="junk.categories">
        <source>Categories</source>
        <translation>Categories</translation>
    </message>
    <message id="junk.clean">
        <source>Clean</source>
        <translation>Clean</translation>
    </message>
    <message id="junk.destination">
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message id="junk.tag.review">
        <source>Review</source>
        <translation>Review</translation>
    </message>
    <message id="junk.category.items">
        <source>Holds %1</source>
        <translation>Holds %1</translation>
    </message>
    <message id="junk.category.mixed">
        <source>partly selected</source>
        <translation>partly selected</translation>
    </message>
    <message id="junk.category.expand">
        <source>Show items</source>
        <translation>Show items</translation>
    </message>
    <message id="junk.category.collapse">
        <source>Hide items</source>
        <translation>Hide items</translation>
    </message>
    <message id="destination.trash">
        <source>Trash</source>
        <translation>Trash</translation>
    </message>
    <message id="destination.delete">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="lens.idle.message">
        <source>See what takes up space in your home folder as a map of rings, then mark what can go.</source>
        <translation>See what takes up space in your home folder as a map of rings, then mark what can go.</translation>
    </message>
    <message id="lens.idle.chooseOther">
        <source>Choose folder…</source>
        <translation>Choose folder…</translation>
    </message>
    <message id="lens.chooseOther">
        <source>Other folder…</source>
        <translation>Other folder…</translation>
    </message>
    <message id="lens.choose.prompt">
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message id="lens.choose.message">
        <source>Choose a folder to map</source>
        <translation>Choose a folder to map</translation>
    </message>
    <message id="lens.empty.message">
        <source>This folder holds nothing that takes up space.</source>
        <translation>This folder holds nothing that takes up space.</translation>
    </message>
    <message id="lens.confirm.note">
        <source>Marked folders go with everything inside them.</source>
        <translation>Marked folders go with everything inside them.</translation>
    </message>
    <message id="lens.step.tree">
        <source>Folder tree</source>
        <translation>Folder tree</translation>
    </message>
    <message id="lens.home">
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message id="lens.items.one">
        <source>%1 item</source>
        <translation>%1 item</translation>
    </message>
    <message id="lens.items">
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message id="lens.center.share">
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="lens.announce.folder">
        <source>Showing %1</source>
        <translation>Showing %1</translation>
    </message>
    <message id="lens.map">
        <source>Map</source>
        <translation>Map</translation>
    </message>
    <message id="lens.list">
        <source>Contents</source>
        <translation>Contents</translation>
    </message>
    <message id="lens.path">
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message id="lens.path.current">
        <source>%1, current folder</source>
        <translation>%1, current folder</translation>
    </message>
    <message id="lens.up">
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message id="lens.size">
        <source>Marked</source>
        <translation>Marked</translation>
    </message>
    <message id="lens.destination">
        <source>Goes to</source>
        <translation>Goes to</translation>
    </message>
    <message id="lens.remove">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="lens.row.open">
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message id="lens.row.mark">
        <source>Mark</source>
        <translation>Mark</translation>
    </message>
    <message id="lens.row.unmark">
        <source>Unmark</source>
        <translation>Unmark</translation>
    </message>
    <message id="lens.row.marked">
        <source>marked</source>
        <translation>marked</translation>
    </message>
    <message id="lens.row.mixed">
        <source>some items inside marked</source>
        <translation>some items inside marked</translation>
    </message>
    <message id="lens.row.inside">
        <source>inside a marked folder</source>
        <translation>inside a marked folder</translation>
    </message>
    <message id="lens.row.hint">
        <source>Space marks, Return opens</source>
        <translation>Space marks, Return opens</translation>
    </message>
    <message id="large.idle.message">
        <source>Find the biggest files in your home folder: videos, disk images and archives you may have forgotten.</source>
        <translation>Find the biggest files in your home folder: videos, disk images and archives you may have forgotten.</translation>
    </message>
    <message id="large.empty.message">
        <source>No file of 50 MB or more in your home folder.</source>
        <translation>No file of 50 MB or more in your home folder.</translation>
    </message>
    <message id="large.confirm.note">
        <source>These are your own files, not caches: check that none of them is still needed.</source>
        <translation>These are your own files, not caches: check that none of them is still needed.</translation>
    </message>
    <message id="large.scan.otherFolders">
        <source>Other folders</source>
        <translation>Other folders</translation>
    </message>
    <message id="large.found">
        <source>Found</source>
        <translation>Found</translation>
    </message>
    <message id="large.found.detail">
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message id="large.fileCount.one">
        <source>%1 file</source>
        <translation>%1 file</translation>
    </message>
    <message id="large.fileCount.other">
        <source>%1 files</source>
        <translation>%1 files</translation>
    </message>
    <message id="large.files">
        <source>Showing %1</source>
        <translation>Showing %1</translation>
    </message>
    <message id="large.filters">
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message id="large.filter.size">
        <source>At least</source>
        <translation>At least</translation>
    </message>
    <message id="large.filter.age">
        <source>Last used</source>
        <translation>Last used</translation>
    </message>
    <message id="large.filter.kind">
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message id="large.age.any">
        <source>Any time</source>
        <translation>Any time</translation>
    </message>
    <message id="large.age.threeMonths">
        <source>3+ months</source>
        <translation>3+ months</translation>
    </message>
    <message id="large.age.sixMonths">
        <source>6+ months</source>
        <translation>6+ months</translation>
    </message>
    <message id="large.age.oneYear">
        <source>1+ year</source>
        <translation>1+ year</translation>
    </message>
    <message id="large.age.threeMonths.spoken">
        <source>more than three months ago</source>
        <translation>more than three months ago</translation>
    </message>
    <message id="large.age.sixMonths.spoken">
        <source>more than six months ago</source>
        <translation>more than six months ago</translation>
    </message>
    <message id="large.age.oneYear.spoken">
        <source>more than a year ago</source>
        <translation>more than a year ago</translation>
    </message>
    <message id="large.kind.all">
        <source>All</source>
        <translation>All</translation>
    </message>
    <message id="large.kind.all.spoken">
        <source>all kinds</source>
        <translation>all kinds</translation>
    </message>
    <message id="large.kind.video">
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message id="large.kind.audio">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="large.kind.image">
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message id="large.kind.archive">
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message id="large.kind.diskImage">
        <source>Disk image</source>
        <translation>Disk image</translation>
    </message>
    <message id="large.kind.document">
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message id="large.kind.other">
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message id="large.column.file">
        <source>File</source>
        <translation>File</translation>
    </message>
    <message id="large.column.kind">
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message id="large.column.lastUsed">
        <source>Last used</source>
        <translation>Last used</translation>
    </message>
    <message id="large.column.weight">
        <source>Weight</source>
        <translation>Weight</translation>
    </message>
    <message id="large.column.size">
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message id="large.sort">
        <source>Sort by %1</source>
        <translation>Sort by %1</translation>
    </message>
    <message id="large.selectAll">
        <source>Select all shown</source>
        <translation>Select all shown</translation>
    </message>
    <message id="large.selectAll.on">
        <source>all selected</source>
        <translation>all selected</translation>
    </message>
    <message id="large.selectAll.off">
        <source>none selected</source>
        <translation>none selected</translation>
    </message>
    <message id="large.selectAll.mixed">
        <source>some selected</source>
        <translation>some selected</translation>
    </message>
    <message id="large.row.lastUsed">
        <source>used %1</source>
        <translation>used %1</translation>
    </message>
    <message id="large.row.noDate">
        <source>no date of use</source>
        <translation>no date of use</translation>
    </message>
    <message id="large.row.reveal">
        <source>Show %1 in the file manager</source>
        <translation>Show %1 in the file manager</translation>
    </message>
    <message id="large.filtered.empty">
        <source>No file passes these filters</source>
        <translation>No file passes these filters</translation>
    </message>
    <message id="large.filtered.empty.hint">
        <source>Choose a smaller size, an earlier date or another kind.</source>
        <translation>Choose a smaller size, an earlier date or another kind.</translation>
    </message>
    <message id="large.selected">
        <source>%1 selected</source>
        <translation>%1 selected</translation>
    </message>
    <message id="large.selected.detail">
        <source>%1 in the selection</source>
        <translation>%1 in the selection</translation>
    </message>
    <message id="large.destination">
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message id="large.remove">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="large.remove.value">
        <source>Remove %1</source>
        <translation>Remove %1</translation>
    </message>
    <message id="apps.step.apps">
        <source>Installed apps</source>
        <translation>Installed apps</translation>
    </message>
    <message id="apps.step.leftovers">
        <source>Their files</source>
        <translation>Their files</translation>
    </message>
    <message id="apps.idle.message">
        <source>See every app you installed — Flatpaks, AppImages and bundles — with the files each one keeps in your home folder, and remove an app together with them.</source>
        <translation>See every app you installed — Flatpaks, AppImages and bundles — with the files each one keeps in your home folder, and remove an app together with them.</translation>
    </message>
    <message id="apps.empty.message">
        <source>No installed apps were found that could be removed from here.</source>
        <translation>No installed apps were found that could be removed from here.</translation>
    </message>
    <message id="apps.search">
        <source>Search by name or id</source>
        <translation>Search by name or id</translation>
    </message>
    <message id="apps.search.clear">
        <source>Clear the search</source>
        <translation>Clear the search</translation>
    </message>
    <message id="apps.search.none">
        <source>No app matches this search.</source>
        <translation>No app matches this search.</translation>
    </message>
    <message id="apps.sort">
        <source>Sort</source>
        <translation>Sort</translation>
    </message>
    <message id="apps.sort.size">
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message id="apps.sort.name">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="apps.sort.lastUsed">
        <source>Last used</source>
        <translation>Last used</translation>
    </message>
    <message id="apps.list">
        <source>Installed apps</source>
        <translation>Installed apps</translation>
    </message>
    <message id="apps.list.count.one">
        <source>%1 app</source>
        <translation>%1 app</translation>
    </message>
    <message id="apps.list.count.other">
        <source>%1 apps</source>
        <translation>%1 apps</translation>
    </message>
    <message id="apps.kind.bundle">
        <source>App bundle</source>
        <translation>App bundle</translation>
    </message>
    <message id="apps.kind.flatpakUser">
        <source>Flatpak, yours</source>
        <translation>Flatpak, yours</translation>
    </message>
    <message id="apps.kind.flatpakSystem">
        <source>Flatpak, system-wide</source>
        <translation>Flatpak, system-wide</translation>
    </message>
    <message id="apps.kind.appImage">
        <source>AppImage</source>
        <translation>AppImage</translation>
    </message>
    <message id="apps.version">
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message id="apps.lastUsed">
        <source>Last used %1</source>
        <translation>Last used %1</translation>
    </message>
    <message id="apps.lastUsed.never">
        <source>Never used, as far as the desktop knows</source>
        <translation>Never used, as far as the desktop knows</translation>
    </message>
    <message id="apps.files.label">
        <source>Files that go with it</source>
        <translation>Files that go with it</translation>
    </message>
    <message id="apps.uninstall">
        <source>Uninstall</source>
        <translation>Uninstall</translation>
    </message>
    <message id="apps.destination">
        <source>Files go to</source>
        <translation>Files go to</translation>
    </message>
    <message id="apps.selected">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="apps.confirm.note">
        <source>%1 will be uninstalled, with the files you ticked.</source>
        <translation>%1 will be uninstalled, with the files you ticked.</translation>
    </message>
    <message id="apps.blocked.running">
        <source>%1 is open. Quit it before uninstalling it.</source>
        <translation>%1 is open. Quit it before uninstalling it.</translation>
    </message>
    <message id="apps.blocked.apple">
        <source>%1 is part of the system and stays.</source>
        <translation>%1 is part of the system and stays.</translation>
    </message>
    <message id="apps.blocked.self">
        <source>Zephrane can't uninstall itself.</source>
        <translation>Zephrane can't uninstall itself.</translation>
    </message>
    <message id="apps.blocked.button.running">
        <source>Quit the app first</source>
        <translation>Quit the app first</translation>
    </message>
    <message id="apps.blocked.button.apple">
        <source>Part of the system</source>
        <translation>Part of the system</translation>
    </message>
    <message id="apps.blocked.button.self">
        <source>This is Zephrane</source>
        <translation>This is Zephrane</translation>
    </message>
    <message id="apps.blocked.quit">
        <source>Ask it to quit</source>
        <translation>Ask it to quit</translation>
    </message>
    <message id="apps.success.flatpak.trash">
        <source>Flatpak uninstalled the app. The files you ticked went to the Trash, where you can still get them back.</source>
        <translation>Flatpak uninstalled the app. The files you ticked went to the Trash, where you can still get them back.</translation>
    </message>
    <message id="apps.success.flatpak.delete">
        <source>Flatpak uninstalled the app, and the files you ticked were deleted for good.</source>
        <translation>Flatpak uninstalled the app, and the files you ticked were deleted for good.</translation>
    </message>
    <message id="leftovers.step.library">
        <source>Your home's app folders</source>
        <translation>Your home's app folders</translation>
    </message>
    <message id="leftovers.idle.message">
        <source>Apps you removed often leave settings, caches and data behind. Scan to find what belongs to no installed app.</source>
        <translation>Apps you removed often leave settings, caches and data behind. Scan to find what belongs to no installed app.</translation>
    </message>
    <message id="leftovers.empty.message">
        <source>Nothing here belongs to an app that is gone.</source>
        <translation>Nothing here belongs to an app that is gone.</translation>
    </message>
    <message id="leftovers.empty.partial">
        <source>Nothing was found in the folders Zephrane could read. Some places could not be read, so this may not be everything.</source>
        <translation>Nothing was found in the folders Zephrane could read. Some places could not be read, so this may not be everything.</translation>
    </message>
    <message id="leftovers.confirm.note">
        <source>These files were judged by their names alone. Look them over before they go.</source>
        <translation>These files were judged by their names alone. Look them over before they go.</translation>
    </message>
    <message id="leftovers.found">
        <source>Found</source>
        <translation>Found</translation>
    </message>
    <message id="leftovers.summary">
        <source>Leftovers of removed apps</source>
        <translation>Leftovers of removed apps</translation>
    </message>
    <message id="leftovers.summary.apps">
        <source>Removed apps with leftovers: %1</source>
        <translation>Removed apps with leftovers: %1</translation>
    </message>
    <message id="leftovers.summary.detail">
        <source>Grouped by the id in their names. Nothing is ticked: tick what you recognise.</source>
        <translation>Grouped by the id in their names. Nothing is ticked: tick what you recognise.</translation>
    </message>
    <message id="leftovers.partial">
        <source>Some places could not be read, so this may not be everything. Full Disk Access is in Settings.</source>
        <translation>Some places could not be read, so this may not be everything. Full Disk Access is in Settings.</translation>
    </message>
    <message id="leftovers.groups">
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message id="leftovers.selected">
        <source>Selected</source>
        <translation>Selected</translation>
    </message>
    <message id="leftovers.selected.value">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="leftovers.clean">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="leftovers.destination">
        <source>Remove to</source>
        <translation>Remove to</translation>
    </message>
    <message id="leftovers.group.items">
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message id="leftovers.group.mixed">
        <source>some ticked</source>
        <translation>some ticked</translation>
    </message>
    <message id="leftovers.group.expand">
        <source>Show the files</source>
        <translation>Show the files</translation>
    </message>
    <message id="leftovers.group.collapse">
        <source>Hide the files</source>
        <translation>Hide the files</translation>
    </message>
    <message id="leftovers.item.in">
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message id="apps.selected.label">
        <source>Selected</source>
        <translation>Selected</translation>
    </message>
    <message id="apps.lastUsed.now">
        <source>Used just now</source>
        <translation>Used just now</translation>
    </message>
    <message id="apps.confirm.question.flatpak">
        <source>Uninstall %1 with Flatpak?</source>
        <translation>Uninstall %1 with Flatpak?</translation>
    </message>
    <message id="trash.idle.message">
        <source>Everything you deleted waits in the Trash, on every drive, until it is emptied. Read it to see how much space it holds.</source>
        <translation>Everything you deleted waits in the Trash, on every drive, until it is emptied. Read it to see how much space it holds.</translation>
    </message>
    <message id="trash.empty.message">
        <source>Nothing is waiting in the Trash on any drive.</source>
        <translation>Nothing is waiting in the Trash on any drive.</translation>
    </message>
    <message id="trash.noAccess.status">
        <source>No access</source>
        <translation>No access</translation>
    </message>
    <message id="trash.noAccess.title">
        <source>The Trash can't be read</source>
        <translation>The Trash can't be read</translation>
    </message>
    <message id="trash.noAccess.body">
        <source>Zephrane isn't allowed to list your Trash folder. Give it access to your files, then try again; nothing is shown until the Trash can be read.</source>
        <translation>Zephrane isn't allowed to list your Trash folder. Give it access to your files, then try again; nothing is shown until the Trash can be read.</translation>
    </message>
    <message id="trash.noAccess.retry">
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message id="trash.size">
        <source>In the Trash</source>
        <translation>In the Trash</translation>
    </message>
    <message id="trash.size.caption">
        <source>What you deleted still takes up space until the Trash is emptied. You can restore any item from your file manager's Trash until then.</source>
        <translation>What you deleted still takes up space until the Trash is emptied. You can restore any item from your file manager's Trash until then.</translation>
    </message>
    <message id="trash.items.one">
        <source>%1 item</source>
        <translation>%1 item</translation>
    </message>
    <message id="trash.items.other">
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message id="trash.list">
        <source>In your Trash</source>
        <translation>In your Trash</translation>
    </message>
    <message id="trash.list.header.name">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="trash.list.header.added">
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message id="trash.list.header.size">
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message id="trash.list.rest">
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message id="trash.when.today">
        <source>today</source>
        <translation>today</translation>
    </message>
    <message id="trash.bins">
        <source>Trash on each drive</source>
        <translation>Trash on each drive</translation>
    </message>
    <message id="trash.bins.startup">
        <source>This computer</source>
        <translation>This computer</translation>
    </message>
    <message id="trash.bins.others.note">
        <source>Each drive keeps its own Trash. Emptying empties them all.</source>
        <translation>Each drive keeps its own Trash. Emptying empties them all.</translation>
    </message>
    <message id="trash.bins.photos">
        <source>Photo apps keep their own bin</source>
        <translation>Photo apps keep their own bin</translation>
    </message>
    <message id="trash.bins.photos.where">
        <source>Photos deleted inside a photo app stay in that app's recently deleted album; empty it there.</source>
        <translation>Photos deleted inside a photo app stay in that app's recently deleted album; empty it there.</translation>
    </message>
    <message id="trash.warning.title">
        <source>Emptying can't be undone</source>
        <translation>Emptying can't be undone</translation>
    </message>
    <message id="trash.warning.body">
        <source>Every item in the Trash, on every drive, is removed for good. Restore what you want to keep first.</source>
        <translation>Every item in the Trash, on every drive, is removed for good. Restore what you want to keep first.</translation>
    </message>
    <message id="trash.empty.key">
        <source>Empty Trash</source>
        <translation>Empty Trash</translation>
    </message>
    <message id="trash.empty.hold">
        <source>Hold the key down to empty the Trash, or press it to confirm in a dialog.</source>
        <translation>Hold the key down to empty the Trash, or press it to confirm in a dialog.</translation>
    </message>
    <message id="trash.empty.confirm.title">
        <source>Empty the Trash for good?</source>
        <translation>Empty the Trash for good?</translation>
    </message>
    <message id="trash.empty.action">
        <source>Empty</source>
        <translation>Empty</translation>
    </message>
    <message id="trash.empty.confirm.message">
        <source>%1 (%2) will be removed for good from the Trash of every drive. This can't be undone.</source>
        <translation>%1 (%2) will be removed for good from the Trash of every drive. This can't be undone.</translation>
    </message>
    <message id="trash.announce.noAccess">
        <source>The Trash can't be read: no access.</source>
        <translation>The Trash can't be read: no access.</translation>
    </message>
    <message id="trash.announce.empty">
        <source>The Trash is empty.</source>
        <translation>The Trash is empty.</translation>
    </message>
    <message id="trash.announce.reading">
        <source>The Trash holds %1, %2.</source>
        <translation>The Trash holds %1, %2.</translation>
    </message>
    <message id="trash.report.line">
        <source>Trash</source>
        <translation>Trash</translation>
    </message>
    <message id="settings.toggle.menuBar.noTray">
        <source>No system tray was found on this desktop, so closing the window quits the program.</source>
        <translation>No system tray was found on this desktop, so closing the window quits the program.</translation>
    </message>
    <message id="menubar.title">
        <source>Zephrane monitor</source>
        <translation>Zephrane monitor</translation>
    </message>
    <message id="menubar.item.summary">
        <source>Zephrane: %1 free on disk</source>
        <translation>Zephrane: %1 free on disk</translation>
    </message>
    <message id="menubar.status.ok">
        <source>All good</source>
        <translation>All good</translation>
    </message>
    <message id="menubar.status.diskAlmostFull">
        <source>Disk almost full</source>
        <translation>Disk almost full</translation>
    </message>
    <message id="menubar.meter.cpu">
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message id="menubar.meter.memory">
        <source>Memory</source>
        <translation>Memory</translation>
    </message>
    <message id="menubar.meter.disk">
        <source>Disk</source>
        <translation>Disk</translation>
    </message>
    <message id="menubar.meter.value">
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message id="menubar.cpu.cores">
        <source>%1 cores</source>
        <translation>%1 cores</translation>
    </message>
    <message id="menubar.measuring">
        <source>Measuring…</source>
        <translation>Measuring…</translation>
    </message>
    <message id="menubar.memory.detail">
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="menubar.disk.free">
        <source>%1 free</source>
        <translation>%1 free</translation>
    </message>
    <message id="menubar.meter.cpu.a11y">
        <source>Processor load, %1</source>
        <translation>Processor load, %1</translation>
    </message>
    <message id="menubar.meter.memory.a11y">
        <source>Memory used, %1</source>
        <translation>Memory used, %1</translation>
    </message>
    <message id="menubar.meter.disk.a11y">
        <source>Disk used, %1</source>
        <translation>Disk used, %1</translation>
    </message>
    <message id="menubar.network.value">
        <source>Down %1/s · Up %2/s</source>
        <translation>Down %1/s · Up %2/s</translation>
    </message>
    <message id="menubar.battery.short">
        <source>Battery %1%</source>
        <translation>Battery %1%</translation>
    </message>
    <message id="menubar.battery.charging">
        <source>Charging %1%</source>
        <translation>Charging %1%</translation>
    </message>
    <message id="menubar.hogs.section">
        <source>Top memory users</source>
        <translation>Top memory users</translation>
    </message>
    <message id="menubar.hogs.title">
        <source>Applications using the most memory</source>
        <translation>Applications using the most memory</translation>
    </message>
    <message id="menubar.hogs.empty">
        <source>No application to show</source>
        <translation>No application to show</translation>
    </message>
    <message id="menubar.hogs.quit">
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message id="menubar.hogs.quit.a11y">
        <source>Quit %1</source>
        <translation>Quit %1</translation>
    </message>
    <message id="menubar.hogs.confirm">
        <source>Quit %1?</source>
        <translation>Quit %1?</translation>
    </message>
    <message id="menubar.hogs.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="menubar.hogs.confirm.hint">
        <source>Asks the application to quit; unsaved work may ask first</source>
        <translation>Asks the application to quit; unsaved work may ask first</translation>
    </message>
    <message id="menubar.hogs.announce.quitting">
        <source>Asking %1 to quit</source>
        <translation>Asking %1 to quit</translation>
    </message>
    <message id="menubar.action.scanning">
        <source>Scanning…</source>
        <translation>Scanning…</translation>
    </message>
    <message id="menubar.action.cleaning">
        <source>Cleaning…</source>
        <translation>Cleaning…</translation>
    </message>
    <message id="menubar.action.cleanJunk">
        <source>Review %1 of junk</source>
        <translation>Review %1 of junk</translation>
    </message>
    <message id="menubar.action.cleanJunk.hint">
        <source>Opens the junk channel in the window to review it</source>
        <translation>Opens the junk channel in the window to review it</translation>
    </message>
    <message id="menubar.action.rescanJunk">
        <source>Scan for junk again</source>
        <translation>Scan for junk again</translation>
    </message>
    <message id="menubar.action.scanJunk">
        <source>Scan for junk</source>
        <translation>Scan for junk</translation>
    </message>
    <message id="menubar.action.emptyTrash">
        <source>Empty trash</source>
        <translation>Empty trash</translation>
    </message>
    <message id="menubar.action.emptyTrash.hint">
        <source>Opens the trash channel in the window</source>
        <translation>Opens the trash channel in the window</translation>
    </message>
    <message id="menubar.action.open">
        <source>Open Zephrane</source>
        <translation>Open Zephrane</translation>
    </message>
    <message id="menubar.junk.announce.found">
        <source>Found %1 of junk</source>
        <translation>Found %1 of junk</translation>
    </message>
    <message id="home.disk.name">
        <source>System disk</source>
        <translation>System disk</translation>
    </message>
    <message id="home.disk.free">
        <source>%1 free of %2</source>
        <translation>%1 free of %2</translation>
    </message>
    <message id="home.reading.scanning">
        <source>Scanning…</source>
        <translation>Scanning…</translation>
    </message>
    <message id="home.reading.found">
        <source>%1 found</source>
        <translation>%1 found</translation>
    </message>
    <message id="home.reading.nothing">
        <source>Nothing found</source>
        <translation>Nothing found</translation>
    </message>
    <message id="home.reading.notScanned">
        <source>Not scanned yet</source>
        <translation>Not scanned yet</translation>
    </message>
    <message id="home.reading.mapped">
        <source>%1 mapped</source>
        <translation>%1 mapped</translation>
    </message>
    <message id="home.reading.files">
        <source>Files: %1 · %2</source>
        <translation>Files: %1 · %2</translation>
    </message>
    <message id="home.reading.apps">
        <source>Apps: %1</source>
        <translation>Apps: %1</translation>
    </message>
    <message id="home.reading.noAccess">
        <source>No access to the trash</source>
        <translation>No access to the trash</translation>
    </message>
    <message id="home.reading.trash.empty">
        <source>Empty</source>
        <translation>Empty</translation>
    </message>
    <message id="home.reading.trash">
        <source>%1 in the trash</source>
        <translation>%1 in the trash</translation>
    </message>
    <message id="home.reading.updates">
        <source>Updates: %1</source>
        <translation>Updates: %1</translation>
    </message>
    <message id="home.reading.upToDate">
        <source>Everything up to date</source>
        <translation>Everything up to date</translation>
    </message>
    <message id="home.scan.done">
        <source>Smart scan finished: %1 found</source>
        <translation>Smart scan finished: %1 found</translation>
    </message>
    <message id="home.scan.done.none">
        <source>Smart scan finished: nothing to clean</source>
        <translation>Smart scan finished: nothing to clean</translation>
    </message>
    <message id="home.visor.intro">
        <source>Run a smart scan to see what can be cleaned.</source>
        <translation>Run a smart scan to see what can be cleaned.</translation>
    </message>
    <message id="home.visor.never">
        <source>No scan yet</source>
        <translation>No scan yet</translation>
    </message>
    <message id="home.visor.scanning">
        <source>Scanning</source>
        <translation>Scanning</translation>
    </message>
    <message id="home.visor.total">
        <source>Found</source>
        <translation>Found</translation>
    </message>
    <message id="home.visor.junk">
        <source>Junk: %1</source>
        <translation>Junk: %1</translation>
    </message>
    <message id="home.visor.scannedAt">
        <source>Scanned at %1</source>
        <translation>Scanned at %1</translation>
    </message>
    <message id="home.visor.empty">
        <source>All clean: nothing to remove.</source>
        <translation>All clean: nothing to remove.</translation>
    </message>
    <message id="home.scan.intro">
        <source>The smart scan looks for junk and for what removed apps left behind, side by side.</source>
        <translation>The smart scan looks for junk and for what removed apps left behind, side by side.</translation>
    </message>
    <message id="home.scan.start">
        <source>Smart scan</source>
        <translation>Smart scan</translation>
    </message>
    <message id="home.scan.running.body">
        <source>Looking for junk and leftovers…</source>
        <translation>Looking for junk and leftovers…</translation>
    </message>
    <message id="home.scan.progress">
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message id="home.scan.progress.value">
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="home.step.idle">
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message id="home.step.queued">
        <source>Queued</source>
        <translation>Queued</translation>
    </message>
    <message id="home.step.running">
        <source>Scanning</source>
        <translation>Scanning</translation>
    </message>
    <message id="home.step.done">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="home.scan.items">
        <source>Items: %1</source>
        <translation>Items: %1</translation>
    </message>
    <message id="home.pair">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="home.scan.found.body">
        <source>Review what was found before anything is removed.</source>
        <translation>Review what was found before anything is removed.</translation>
    </message>
    <message id="home.scan.review">
        <source>Review</source>
        <translation>Review</translation>
    </message>
    <message id="home.scan.again">
        <source>Scan again</source>
        <translation>Scan again</translation>
    </message>
    <message id="onboarding.power.a11yTitle">
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message id="onboarding.channels.a11yTitle">
        <source>The channels</source>
        <translation>The channels</translation>
    </message>
    <message id="onboarding.disk.title">
        <source>Disk access</source>
        <translation>Disk access</translation>
    </message>
    <message id="onboarding.preferences.a11yTitle">
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message id="onboarding.ready.a11yTitle">
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message id="onboarding.channels.section">
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message id="onboarding.disk.section">
        <source>Disk access</source>
        <translation>Disk access</translation>
    </message>
    <message id="onboarding.preferences.section">
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message id="onboarding.ready.section">
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message id="onboarding.progress">
        <source>Step %1 of %2</source>
        <translation>Step %1 of %2</translation>
    </message>
    <message id="onboarding.progress.announce">
        <source>Now: %1</source>
        <translation>Now: %1</translation>
    </message>
    <message id="onboarding.topBar">
        <source>Setup · %1</source>
        <translation>Setup · %1</translation>
    </message>
    <message id="onboarding.back">
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message id="onboarding.continue">
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message id="onboarding.power.tagline">
        <source>A control panel for a tidy disk.</source>
        <translation>A control panel for a tidy disk.</translation>
    </message>
    <message id="onboarding.power.hint">
        <source>Press to switch on</source>
        <translation>Press to switch on</translation>
    </message>
    <message id="onboarding.power.button">
        <source>Power on</source>
        <translation>Power on</translation>
    </message>
    <message id="onboarding.channels.headline1">
        <source>Eight channels,</source>
        <translation>Eight channels,</translation>
    </message>
    <message id="onboarding.channels.headline2">
        <source>one panel.</source>
        <translation>one panel.</translation>
    </message>
    <message id="onboarding.channels.intro">
        <source>Each channel looks after one kind of clutter. Nothing is removed until you confirm.</source>
        <translation>Each channel looks after one kind of clutter. Nothing is removed until you confirm.</translation>
    </message>
    <message id="onboarding.channels.home">
        <source>The smart scan and your disk at a glance</source>
        <translation>The smart scan and your disk at a glance</translation>
    </message>
    <message id="onboarding.channels.junk">
        <source>Caches, logs and leftovers of downloads</source>
        <translation>Caches, logs and leftovers of downloads</translation>
    </message>
    <message id="onboarding.channels.lens">
        <source>A map of what fills the disk</source>
        <translation>A map of what fills the disk</translation>
    </message>
    <message id="onboarding.channels.large">
        <source>Big files you have not opened in a while</source>
        <translation>Big files you have not opened in a while</translation>
    </message>
    <message id="onboarding.channels.apps">
        <source>Remove apps with everything they brought</source>
        <translation>Remove apps with everything they brought</translation>
    </message>
    <message id="onboarding.channels.leftovers">
        <source>What removed apps left behind</source>
        <translation>What removed apps left behind</translation>
    </message>
    <message id="onboarding.channels.trash">
        <source>See and empty the trash</source>
        <translation>See and empty the trash</translation>
    </message>
    <message id="onboarding.channels.updates">
        <source>Newer versions of your apps</source>
        <translation>Newer versions of your apps</translation>
    </message>
    <message id="onboarding.disk.headline1">
        <source>Let it see</source>
        <translation>Let it see</translation>
    </message>
    <message id="onboarding.disk.headline2">
        <source>the whole disk.</source>
        <translation>the whole disk.</translation>
    </message>
    <message id="onboarding.disk.body">
        <source>Some folders are only readable with full disk access. Without it the channels find less.</source>
        <translation>Some folders are only readable with full disk access. Without it the channels find less.</translation>
    </message>
    <message id="onboarding.disk.step1">
        <source>Open the system's privacy settings.</source>
        <translation>Open the system's privacy settings.</translation>
    </message>
    <message id="onboarding.disk.step2">
        <source>Choose full disk access.</source>
        <translation>Choose full disk access.</translation>
    </message>
    <message id="onboarding.disk.step3">
        <source>Add Zephrane to the list and switch it on.</source>
        <translation>Add Zephrane to the list and switch it on.</translation>
    </message>
    <message id="onboarding.disk.openSettings">
        <source>Open settings</source>
        <translation>Open settings</translation>
    </message>
    <message id="onboarding.disk.waiting">
        <source>Waiting for access…</source>
        <translation>Waiting for access…</translation>
    </message>
    <message id="onboarding.disk.safety">
        <source>Zephrane only reads to show you what it finds; it removes nothing you have not confirmed.</source>
        <translation>Zephrane only reads to show you what it finds; it removes nothing you have not confirmed.</translation>
    </message>
    <message id="onboarding.disk.skip">
        <source>Skip for now</source>
        <translation>Skip for now</translation>
    </message>
    <message id="onboarding.disk.granted">
        <source>Access granted.</source>
        <translation>Access granted.</translation>
    </message>
    <message id="onboarding.disk.grantedBody">
        <source>Every channel can read what it needs.</source>
        <translation>Every channel can read what it needs.</translation>
    </message>
    <message id="onboarding.disk.selfTest">
        <source>Self-test</source>
        <translation>Self-test</translation>
    </message>
    <message id="onboarding.check.diskAccess">
        <source>Disk access</source>
        <translation>Disk access</translation>
    </message>
    <message id="onboarding.check.ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="onboarding.check.pending">
        <source>Pending</source>
        <translation>Pending</translation>
    </message>
    <message id="onboarding.check.skipped">
        <source>Skipped</source>
        <translation>Skipped</translation>
    </message>
    <message id="onboarding.check.destination">
        <source>Removed items go to</source>
        <translation>Removed items go to</translation>
    </message>
    <message id="onboarding.check.trash">
        <source>Trash</source>
        <translation>Trash</translation>
    </message>
    <message id="onboarding.check.delete">
        <source>Deleted for good</source>
        <translation>Deleted for good</translation>
    </message>
    <message id="onboarding.check.menuBar">
        <source>Menu bar monitor</source>
        <translation>Menu bar monitor</translation>
    </message>
    <message id="onboarding.check.on">
        <source>On</source>
        <translation>On</translation>
    </message>
    <message id="onboarding.check.off">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="onboarding.preferences.headline1">
        <source>Make it</source>
        <translation>Make it</translation>
    </message>
    <message id="onboarding.preferences.headline2">
        <source>yours.</source>
        <translation>yours.</translation>
    </message>
    <message id="onboarding.preferences.trash">
        <source>Move to the trash</source>
        <translation>Move to the trash</translation>
    </message>
    <message id="onboarding.preferences.trash.detail">
        <source>You can still get things back until you empty it.</source>
        <translation>You can still get things back until you empty it.</translation>
    </message>
    <message id="onboarding.preferences.recommended">
        <source>Recommended</source>
        <translation>Recommended</translation>
    </message>
    <message id="onboarding.preferences.delete">
        <source>Delete for good</source>
        <translation>Delete for good</translation>
    </message>
    <message id="onboarding.preferences.delete.detail">
        <source>Frees the space at once; there is no way back.</source>
        <translation>Frees the space at once; there is no way back.</translation>
    </message>
    <message id="onboarding.preferences.menuBar">
        <source>Monitor in the menu bar</source>
        <translation>Monitor in the menu bar</translation>
    </message>
    <message id="onboarding.preferences.menuBar.detail">
        <source>Memory, processor and disk at a glance.</source>
        <translation>Memory, processor and disk at a glance.</translation>
    </message>
    <message id="onboarding.preferences.login.detail">
        <source>Starts the monitor when you log in.</source>
        <translation>Starts the monitor when you log in.</translation>
    </message>
    <message id="onboarding.preferences.outdated.detail">
        <source>Tells you when apps have newer versions.</source>
        <translation>Tells you when apps have newer versions.</translation>
    </message>
    <message id="onboarding.ready.headline1">
        <source>All set.</source>
        <translation>All set.</translation>
    </message>
    <message id="onboarding.ready.headline2">
        <source>Panel on,</source>
        <translation>Panel on,</translation>
    </message>
    <message id="onboarding.ready.headline3">
        <source>channels live.</source>
        <translation>channels live.</translation>
    </message>
    <message id="onboarding.ready.body">
        <source>Here is what was set up.</source>
        <translation>Here is what was set up.</translation>
    </message>
    <message id="onboarding.ready.selfTest">
        <source>Self-test</source>
        <translation>Self-test</translation>
    </message>
    <message id="onboarding.ready.question">
        <source>Run the first scan now?</source>
        <translation>Run the first scan now?</translation>
    </message>
    <message id="onboarding.ready.scan">
        <source>Scan now</source>
        <translation>Scan now</translation>
    </message>
    <message id="onboarding.ready.goHome">
        <source>Go to Home</source>
        <translation>Go to Home</translation>
    </message>
    <message id="onboarding.ready.firstScan">
        <source>The first scan looks for junk and leftovers; it removes nothing.</source>
        <translation>The first scan looks for junk and leftovers; it removes nothing.</translation>
    </message>
    <message id="updates.idle.message">
        <source>Check which of your apps have a newer version.</source>
        <translation>Check which of your apps have a newer version.</translation>
    </message>
    <message id="updates.step.apps">
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message id="updates.step.apps.found">
        <source>%1 apps</source>
        <translation>%1 apps</translation>
    </message>
    <message id="updates.step.appStore">
        <source>App Store</source>
        <translation>App Store</translation>
    </message>
    <message id="updates.step.sparkle">
        <source>Update feeds</source>
        <translation>Update feeds</translation>
    </message>
    <message id="updates.step.homebrew">
        <source>Homebrew</source>
        <translation>Homebrew</translation>
    </message>
    <message id="updates.step.flatpak">
        <source>Flatpak</source>
        <translation>Flatpak</translation>
    </message>
    <message id="updates.step.found">
        <source>%1 found</source>
        <translation>%1 found</translation>
    </message>
    <message id="updates.source.sparkle">
        <source>Update feed</source>
        <translation>Update feed</translation>
    </message>
    <message id="updates.source.appStore">
        <source>App Store</source>
        <translation>App Store</translation>
    </message>
    <message id="updates.source.homebrew">
        <source>Homebrew</source>
        <translation>Homebrew</translation>
    </message>
    <message id="updates.source.flatpak">
        <source>Flatpak</source>
        <translation>Flatpak</translation>
    </message>
    <message id="updates.action.install">
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message id="updates.action.open">
        <source>Open app</source>
        <translation>Open app</translation>
    </message>
    <message id="updates.action.store">
        <source>Open store</source>
        <translation>Open store</translation>
    </message>
    <message id="updates.action.copy">
        <source>Copy command</source>
        <translation>Copy command</translation>
    </message>
    <message id="updates.stage.downloading">
        <source>Downloading…</source>
        <translation>Downloading…</translation>
    </message>
    <message id="updates.stage.verifying">
        <source>Verifying…</source>
        <translation>Verifying…</translation>
    </message>
    <message id="updates.stage.installing">
        <source>Installing…</source>
        <translation>Installing…</translation>
    </message>
    <message id="updates.row.installed">
        <source>Installed</source>
        <translation>Installed</translation>
    </message>
    <message id="updates.row.needsQuit">
        <source>Quit the app to update it</source>
        <translation>Quit the app to update it</translation>
    </message>
    <message id="updates.failure.swap">
        <source>Could not replace the app</source>
        <translation>Could not replace the app</translation>
    </message>
    <message id="updates.failure.noApp">
        <source>The download has no app in it</source>
        <translation>The download has no app in it</translation>
    </message>
    <message id="updates.failure.otherApp">
        <source>The download is a different app</source>
        <translation>The download is a different app</translation>
    </message>
    <message id="updates.failure.notNewer">
        <source>The download is not newer</source>
        <translation>The download is not newer</translation>
    </message>
    <message id="updates.failure.signature">
        <source>The signature could not be verified</source>
        <translation>The signature could not be verified</translation>
    </message>
    <message id="updates.failure.notarization">
        <source>The download is not notarized</source>
        <translation>The download is not notarized</translation>
    </message>
    <message id="updates.failure.team">
        <source>The developer does not match</source>
        <translation>The developer does not match</translation>
    </message>
    <message id="updates.failure.download">
        <source>The download failed</source>
        <translation>The download failed</translation>
    </message>
    <message id="updates.announce.copied">
        <source>Command copied. Paste it in a terminal.</source>
        <translation>Command copied. Paste it in a terminal.</translation>
    </message>
    <message id="updates.announce.opened">
        <source>Opened %1</source>
        <translation>Opened %1</translation>
    </message>
    <message id="updates.announce.ignored">
        <source>%1: this version is ignored</source>
        <translation>%1: this version is ignored</translation>
    </message>
    <message id="updates.announce.finished">
        <source>Updates finished: %1</source>
        <translation>Updates finished: %1</translation>
    </message>
    <message id="updates.announce.stopped">
        <source>Installing stopped: %1 of %2 apps done</source>
        <translation>Installing stopped: %1 of %2 apps done</translation>
    </message>
    <message id="updates.column.app">
        <source>App</source>
        <translation>App</translation>
    </message>
    <message id="updates.column.version">
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message id="updates.column.source">
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message id="updates.column.action">
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message id="updates.installAll">
        <source>Install %1</source>
        <translation>Install %1</translation>
    </message>
    <message id="updates.installAll.none">
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message id="updates.confirm.title">
        <source>Updates to install: %1</source>
        <translation>Updates to install: %1</translation>
    </message>
    <message id="updates.confirm.message">
        <source>Each app is downloaded, checked and replaced in turn. The old copy goes to the Trash.</source>
        <translation>Each app is downloaded, checked and replaced in turn. The old copy goes to the Trash.</translation>
    </message>
    <message id="updates.confirm.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="updates.confirm.install">
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message id="updates.rescan">
        <source>Check again</source>
        <translation>Check again</translation>
    </message>
    <message id="updates.stop">
        <source>Stop installing</source>
        <translation>Stop installing</translation>
    </message>
    <message id="updates.stopping">
        <source>Stopping…</source>
        <translation>Stopping…</translation>
    </message>
    <message id="updates.upToDate.title">
        <source>All apps are up to date</source>
        <translation>All apps are up to date</translation>
    </message>
    <message id="updates.upToDate.message">
        <source>No newer versions were found for your apps.</source>
        <translation>No newer versions were found for your apps.</translation>
    </message>
    <message id="updates.ignored">
        <source>%1 ignored</source>
        <translation>%1 ignored</translation>
    </message>
    <message id="updates.ignored.restore">
        <source>Show ignored</source>
        <translation>Show ignored</translation>
    </message>
    <message id="updates.notify.title">
        <source>Tell me about outdated apps</source>
        <translation>Tell me about outdated apps</translation>
    </message>
    <message id="updates.notify.detail">
        <source>A daily notice when updates are waiting</source>
        <translation>A daily notice when updates are waiting</translation>
    </message>
    <message id="menubar.notify.title">
        <source>Apps to update: %1</source>
        <translation>Apps to update: %1</translation>
    </message>
    <message id="menubar.notify.body">
        <source>Open Zephrane to see the updates</source>
        <translation>Open Zephrane to see the updates</translation>
    </message>
    <message id="menubar.notify.action">
        <source>Show updates</source>
        <translation>Show updates</translation>
    </message>
    <message id="updates.notify.unavailable">
        <source>No notification service is running, so the daily notice can't be shown</source>
        <translation>No notification service is running, so the daily notice can't be shown</translation>
    </message>
    <message id="updates.outdated">
        <source>Outdated apps: %1</source>
        <translation>Outdated apps: %1</translation>
    </message>
    <message id="updates.outdated.label">
        <source>Outdated</source>
        <translation>Outdated</translation>
    </message>
    <message id="updates.checked">
        <source>Last checked %1</source>
        <translation>Last checked %1</translation>
    </message>
    <message id="updates.checked.now">
        <source>Checked just now</source>
        <translation>Checked just now</translation>
    </message>
    <message id="updates.checked.never">
        <source>Never checked</source>
        <translation>Never checked</translation>
    </message>
    <message id="updates.menu.notes">
        <source>Release notes (N)</source>
        <translation>Release notes (N)</translation>
    </message>
    <message id="updates.menu.ignore">
        <source>Ignore this version (I)</source>
        <translation>Ignore this version (I)</translation>
    </message>
    <message id="updates.notes.title">
        <source>Release notes</source>
        <translation>Release notes</translation>
    </message>
    <message id="updates.notes.language">
        <source>Language: %1</source>
        <translation>Language: %1</translation>
    </message>
    <message id="updates.notes.empty">
        <source>This update has no notes.</source>
        <translation>This update has no notes.</translation>
    </message>
    <message id="updates.notes.open">
        <source>Open full notes</source>
        <translation>Open full notes</translation>
    </message>
    <message id="updates.notes.close">
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
</TS>
