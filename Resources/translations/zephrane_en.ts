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
</context>
</TS>
