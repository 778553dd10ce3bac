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
    <message id="settings.title">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="settings.short">
        <source>Prefs</source>
        <translation>Config</translation>
    </message>
    <message id="settings.switches.section">
        <source>Switches</source>
        <translation>Chaves</translation>
    </message>
    <message id="settings.toggle.menuBar">
        <source>Show the agent in the system tray</source>
        <translation>Mostrar o agente na bandeja do sistema</translation>
    </message>
    <message id="settings.toggle.launchAtLogin">
        <source>Open at login</source>
        <translation>Abrir ao iniciar a sessão</translation>
    </message>
    <message id="settings.toggle.outdatedApps">
        <source>Notify me about outdated apps</source>
        <translation>Avisar sobre apps desatualizados</translation>
    </message>
    <message id="settings.language.title">
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message id="settings.language.system">
        <source>System</source>
        <translation>Sistema</translation>
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
        <translation>O novo idioma passa a valer depois que o Zephrane reiniciar.</translation>
    </message>
    <message id="settings.language.relaunch">
        <source>Restart now</source>
        <translation>Reiniciar agora</translation>
    </message>
    <message id="settings.cleaning.section">
        <source>Cleaning</source>
        <translation>Limpeza</translation>
    </message>
    <message id="settings.cleaning.title">
        <source>Where removed items go</source>
        <translation>Para onde vão os itens removidos</translation>
    </message>
    <message id="settings.cleaning.subtitle">
        <source>The trash lets you bring items back. Deleting frees the space at once and cannot be undone.</source>
        <translation>Na lixeira, dá para recuperar os itens. Apagar libera o espaço na hora e não tem volta.</translation>
    </message>
    <message id="settings.cleaning.trash">
        <source>Move to trash</source>
        <translation>Mover para a lixeira</translation>
    </message>
    <message id="settings.cleaning.delete">
        <source>Delete for good</source>
        <translation>Apagar de vez</translation>
    </message>
    <message id="settings.accent.title">
        <source>Accent colour</source>
        <translation>Cor de destaque</translation>
    </message>
    <message id="settings.accent.orange">
        <source>Orange</source>
        <translation>Laranja</translation>
    </message>
    <message id="settings.accent.lime">
        <source>Lime</source>
        <translation>Verde-limão</translation>
    </message>
    <message id="settings.accent.blue">
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message id="settings.disk.section">
        <source>Disk access</source>
        <translation>Acesso ao disco</translation>
    </message>
    <message id="settings.disk.title">
        <source>Full disk access</source>
        <translation>Acesso total ao disco</translation>
    </message>
    <message id="settings.disk.granted">
        <source>Granted</source>
        <translation>Concedido</translation>
    </message>
    <message id="settings.disk.off">
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message id="settings.about.section">
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message id="settings.about.version">
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message id="settings.about.checkForUpdates">
        <source>Check for updates</source>
        <translation>Procurar atualizações</translation>
    </message>
    <message id="settings.about.checkForUpdates.off">
        <source>Updates are not available in this build.</source>
        <translation>Atualizações não estão disponíveis nesta versão.</translation>
    </message>
    <message id="settings.about.welcome">
        <source>Show the welcome again</source>
        <translation>Mostrar as boas-vindas de novo</translation>
    </message>
    <message id="fda.banner.title">
        <source>Zephrane can't see all of your files</source>
        <translation>O Zephrane não consegue ver todos os seus arquivos</translation>
    </message>
    <message id="fda.banner.body">
        <source>Without full disk access some folders stay hidden, and their space is left out of every count.</source>
        <translation>Sem acesso total ao disco, algumas pastas ficam ocultas e o espaço delas fica fora de todas as contas.</translation>
    </message>
    <message id="fda.action.openSettings">
        <source>Open settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message id="fda.action.check">
        <source>Check again</source>
        <translation>Verificar de novo</translation>
    </message>
    <message id="fda.announce.granted">
        <source>Full disk access granted</source>
        <translation>Acesso total ao disco concedido</translation>
    </message>
    <message id="fda.announce.stillOff">
        <source>Full disk access is still off</source>
        <translation>O acesso total ao disco continua desativado</translation>
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
        <translation>Mantenha pressionado para confirmar, ou pressione para confirmar numa caixa de diálogo</translation>
    </message>
    <message id="painel.confirm.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="shell.disk.freeOf">
        <source>free of %1</source>
        <translation>livres de %1</translation>
    </message>
</context>
</TS>
