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
        <source>Left</source>
        <translation>Left</translation>
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
    <message id="shell.channel.notBuilt">
        <source>This channel is not available in this version yet.</source>
        <translation>This channel is not available in this version yet.</translation>
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
</context>
</TS>
