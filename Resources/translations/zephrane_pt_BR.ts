<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Zephrane</name>
    <message id="Zephrane">
        <source>Zephrane</source>
        <translation>Zephrane</translation>
    </message>
    <message id="menu.go">
        <source>Go</source>
        <translation>Ir</translation>
    </message>
    <message id="menu.go.item">
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message id="channel.a11y.name">
        <source>%1 channel</source>
        <translation>Canal %1</translation>
    </message>
    <message id="channel.home.short">
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message id="channel.home.title">
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message id="channel.junk.short">
        <source>Junk</source>
        <translation>Lixo</translation>
    </message>
    <message id="channel.junk.title">
        <source>System Junk</source>
        <translation>Lixo do sistema</translation>
    </message>
    <message id="channel.lens.short">
        <source>Lens</source>
        <translation>Lente</translation>
    </message>
    <message id="channel.lens.title">
        <source>Space Lens</source>
        <translation>Lente de espaço</translation>
    </message>
    <message id="channel.large.short">
        <source>Large</source>
        <translation>Grandes</translation>
    </message>
    <message id="channel.large.title">
        <source>Large &amp; Old Files</source>
        <translation>Arquivos grandes e antigos</translation>
    </message>
    <message id="channel.apps.short">
        <source>Apps</source>
        <translation>Apps</translation>
    </message>
    <message id="channel.apps.title">
        <source>Uninstaller</source>
        <translation>Desinstalador</translation>
    </message>
    <message id="channel.leftovers.short">
        <source>Left</source>
        <translation>Restos</translation>
    </message>
    <message id="channel.leftovers.title">
        <source>Leftovers</source>
        <translation>Restos de apps</translation>
    </message>
    <message id="channel.trash.short">
        <source>Trash</source>
        <translation>Lixeira</translation>
    </message>
    <message id="channel.trash.title">
        <source>Trash</source>
        <translation>Lixeira</translation>
    </message>
    <message id="channel.updates.short">
        <source>Upd</source>
        <translation>Atual.</translation>
    </message>
    <message id="channel.updates.title">
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message id="shell.channel.notBuilt">
        <source>This channel is not available in this version yet.</source>
        <translation>Este canal ainda não está disponível nesta versão.</translation>
    </message>
    <message id="shell.disk.label">
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message id="shell.disk.a11y">
        <source>Disk space in use</source>
        <translation>Espaço em disco em uso</translation>
    </message>
    <message id="shell.disk.free">
        <source>%1 free of %2</source>
        <translation>%1 livres de %2</translation>
    </message>
    <message id="shell.window.minimize">
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message id="shell.window.maximize">
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message id="shell.window.close">
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
