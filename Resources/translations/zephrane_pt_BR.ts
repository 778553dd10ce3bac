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
        <translation>Grandes e antigos</translation>
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
        <source>Orphans</source>
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
    <message id="action.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="confirm.title">
        <source>Confirm cleanup</source>
        <translation>Confirmar limpeza</translation>
    </message>
    <message id="confirm.question.trash">
        <source>Move the selected items to the Trash?</source>
        <translation>Mover os itens selecionados para a Lixeira?</translation>
    </message>
    <message id="confirm.question.delete">
        <source>Delete the selected items for good?</source>
        <translation>Apagar os itens selecionados para sempre?</translation>
    </message>
    <message id="confirm.body.trash">
        <source>They stay in the Trash until you empty it, so you can still put them back.</source>
        <translation>Eles ficam na Lixeira até você esvaziá-la, então ainda dá para recuperá-los.</translation>
    </message>
    <message id="confirm.body.delete">
        <source>They are removed at once and can't be recovered.</source>
        <translation>Eles são removidos na hora e não podem ser recuperados.</translation>
    </message>
    <message id="confirm.hint.trash">
        <source>You can change where cleaned items go in Settings.</source>
        <translation>Você pode mudar para onde vão os itens limpos nos Ajustes.</translation>
    </message>
    <message id="confirm.hint.delete">
        <source>Hold the key until it fills up to confirm.</source>
        <translation>Mantenha a tecla pressionada até ela encher para confirmar.</translation>
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
        <translation>Destino: %1</translation>
    </message>
    <message id="confirm.clean">
        <source>Clean</source>
        <translation>Limpar</translation>
    </message>
    <message id="hold.confirm.message">
        <source>This can't be undone. Delete the selected items for good?</source>
        <translation>Isso não pode ser desfeito. Apagar os itens selecionados para sempre?</translation>
    </message>
    <message id="phase.announce.scanning">
        <source>Scanning</source>
        <translation>Verificando</translation>
    </message>
    <message id="phase.announce.results">
        <source>Scan finished, %1 found</source>
        <translation>Verificação concluída, %1 encontrados</translation>
    </message>
    <message id="phase.announce.cleaning">
        <source>Cleaning</source>
        <translation>Limpando</translation>
    </message>
    <message id="phase.announce.success">
        <source>Cleanup finished, %1 freed</source>
        <translation>Limpeza concluída, %1 liberados</translation>
    </message>
    <message id="phase.announce.empty">
        <source>Scan finished, nothing to clean</source>
        <translation>Verificação concluída, nada para limpar</translation>
    </message>
    <message id="phase.announce.step">
        <source>%1 done</source>
        <translation>%1 concluído</translation>
    </message>
    <message id="phase.cleaning.total">
        <source>Cleaning</source>
        <translation>Limpando</translation>
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
        <translation>Nada para limpar</translation>
    </message>
    <message id="phase.empty.zero">
        <source>0</source>
        <translation>0</translation>
    </message>
    <message id="phase.rescan">
        <source>Scan again</source>
        <translation>Verificar de novo</translation>
    </message>
    <message id="phase.scan">
        <source>Scan</source>
        <translation>Verificar</translation>
    </message>
    <message id="phase.scan.count">
        <source>Found</source>
        <translation>Encontrados</translation>
    </message>
    <message id="phase.scan.elapsed">
        <source>Elapsed</source>
        <translation>Tempo</translation>
    </message>
    <message id="phase.scan.items">
        <source>Found: %1</source>
        <translation>Encontrados: %1</translation>
    </message>
    <message id="phase.scan.progress">
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message id="phase.scan.progress.value">
        <source>%1 of %2 steps</source>
        <translation>%1 de %2 etapas</translation>
    </message>
    <message id="phase.scan.stop">
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message id="phase.scan.unit.one">
        <source>item</source>
        <translation>item</translation>
    </message>
    <message id="phase.scan.unit.other">
        <source>items</source>
        <translation>itens</translation>
    </message>
    <message id="phase.status.clean">
        <source>All clean</source>
        <translation>Tudo limpo</translation>
    </message>
    <message id="phase.status.cleaning">
        <source>Cleaning</source>
        <translation>Limpando</translation>
    </message>
    <message id="phase.status.idle">
        <source>Ready to scan</source>
        <translation>Pronto para verificar</translation>
    </message>
    <message id="phase.status.scanning">
        <source>Scanning</source>
        <translation>Verificando</translation>
    </message>
    <message id="phase.step.scanning">
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message id="phase.step.waiting">
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message id="success.status">
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message id="success.title">
        <source>Cleanup complete</source>
        <translation>Limpeza concluída</translation>
    </message>
    <message id="success.freed">
        <source>Freed</source>
        <translation>Liberado</translation>
    </message>
    <message id="success.body.trash">
        <source>The items are in the Trash. Empty it to get the space back.</source>
        <translation>Os itens estão na Lixeira. Esvazie-a para recuperar o espaço.</translation>
    </message>
    <message id="success.body.delete">
        <source>The items were deleted for good.</source>
        <translation>Os itens foram apagados para sempre.</translation>
    </message>
    <message id="success.report">
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message id="success.report.ok">
        <source>%1 · %2 removed</source>
        <translation>%1 · %2 removidos</translation>
    </message>
    <message id="success.report.time">
        <source>Took %1</source>
        <translation>Levou %1</translation>
    </message>
    <message id="success.done">
        <source>Done</source>
        <translation>Concluir</translation>
    </message>
    <message id="success.emptyTrash">
        <source>Empty Trash</source>
        <translation>Esvaziar a Lixeira</translation>
    </message>
    <message id="success.failures">
        <source>Not removed: %1</source>
        <translation>Não removidos: %1</translation>
    </message>
    <message id="success.failures.collapsed">
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message id="success.failures.expanded">
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message id="junk.idle.message">
        <source>Caches, logs, build leftovers and unfinished downloads pile up in your home folder. Scan to see what can go.</source>
        <translation>Caches, logs, restos de compilação e downloads inacabados se acumulam na sua pasta pessoal. Analise para ver o que pode sair.</translation>
    </message>
    <message id="junk.empty.message">
        <source>No junk was found in your home folder.</source>
        <translation>Nenhum resíduo foi encontrado na sua pasta pessoal.</translation>
    </message>
    <message id="junk.confirm.note">
        <source>Applications rebuild their caches as needed; the first launch afterwards may be a little slower.</source>
        <translation>Os aplicativos recriam seus caches quando precisam; a próxima abertura pode ser um pouco mais lenta.</translation>
    </message>
    <message id="junk.found">
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message id="junk.summary">
        <source>Files that applications and tools can do without. Open a category to choose item by item.</source>
        <translation>Arquivos que aplicativos e ferramentas dispensam. Abra uma categoria para escolher item por item.</translation>
    </message>
    <message id="junk.selected">
        <source>%1 selected</source>
        <translation>%1 selecionados</translation>
    </message>
    <message id="junk.selected.detail">
        <source>%1 in %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message id="junk.category.count.one">
        <source>%1 category</source>
        <translation>%1 categoria</translation>
    </message>
    <message id="junk.category.count.other">
        <source>%1 categories</source>
        <translation>%1 categorias</translation>
    </message>
    <message id="junk.categories">
        <source>Categories</source>
        <translation>Categorias</translation>
    </message>
    <message id="junk.clean">
        <source>Clean</source>
        <translation>Limpar</translation>
    </message>
    <message id="junk.destination">
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message id="junk.tag.review">
        <source>Review</source>
        <translation>Revisar</translation>
    </message>
    <message id="junk.category.items">
        <source>Holds %1</source>
        <translation>Contém %1</translation>
    </message>
    <message id="junk.category.mixed">
        <source>partly selected</source>
        <translation>parcialmente selecionada</translation>
    </message>
    <message id="junk.category.expand">
        <source>Show items</source>
        <translation>Mostrar itens</translation>
    </message>
    <message id="junk.category.collapse">
        <source>Hide items</source>
        <translation>Ocultar itens</translation>
    </message>
    <message id="destination.trash">
        <source>Trash</source>
        <translation>Lixeira</translation>
    </message>
    <message id="destination.delete">
        <source>Delete</source>
        <translation>Apagar</translation>
    </message>
    <message id="lens.idle.message">
        <source>See what takes up space in your home folder as a map of rings, then mark what can go.</source>
        <translation>Veja o que ocupa espaço na sua pasta pessoal como um mapa de anéis e marque o que pode sair.</translation>
    </message>
    <message id="lens.idle.chooseOther">
        <source>Choose folder…</source>
        <translation>Escolher pasta…</translation>
    </message>
    <message id="lens.chooseOther">
        <source>Other folder…</source>
        <translation>Outra pasta…</translation>
    </message>
    <message id="lens.choose.prompt">
        <source>Scan</source>
        <translation>Analisar</translation>
    </message>
    <message id="lens.choose.message">
        <source>Choose a folder to map</source>
        <translation>Escolha uma pasta para mapear</translation>
    </message>
    <message id="lens.empty.message">
        <source>This folder holds nothing that takes up space.</source>
        <translation>Esta pasta não tem nada que ocupe espaço.</translation>
    </message>
    <message id="lens.confirm.note">
        <source>Marked folders go with everything inside them.</source>
        <translation>As pastas marcadas saem com tudo o que há dentro delas.</translation>
    </message>
    <message id="lens.step.tree">
        <source>Folder tree</source>
        <translation>Árvore de pastas</translation>
    </message>
    <message id="lens.home">
        <source>Home</source>
        <translation>Pasta pessoal</translation>
    </message>
    <message id="lens.items.one">
        <source>%1 item</source>
        <translation>%1 item</translation>
    </message>
    <message id="lens.items">
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message id="lens.center.share">
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message id="lens.announce.folder">
        <source>Showing %1</source>
        <translation>Mostrando %1</translation>
    </message>
    <message id="lens.map">
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message id="lens.list">
        <source>Contents</source>
        <translation>Conteúdo</translation>
    </message>
    <message id="lens.path">
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message id="lens.path.current">
        <source>%1, current folder</source>
        <translation>%1, pasta atual</translation>
    </message>
    <message id="lens.up">
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message id="lens.size">
        <source>Marked</source>
        <translation>Marcado</translation>
    </message>
    <message id="lens.destination">
        <source>Goes to</source>
        <translation>Destino</translation>
    </message>
    <message id="lens.remove">
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message id="lens.row.open">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="lens.row.mark">
        <source>Mark</source>
        <translation>Marcar</translation>
    </message>
    <message id="lens.row.unmark">
        <source>Unmark</source>
        <translation>Desmarcar</translation>
    </message>
    <message id="lens.row.marked">
        <source>marked</source>
        <translation>marcado</translation>
    </message>
    <message id="lens.row.mixed">
        <source>some items inside marked</source>
        <translation>alguns itens dentro marcados</translation>
    </message>
    <message id="lens.row.inside">
        <source>inside a marked folder</source>
        <translation>dentro de uma pasta marcada</translation>
    </message>
    <message id="lens.row.hint">
        <source>Space marks, Return opens</source>
        <translation>Espaço marca, Enter abre</translation>
    </message>
    <message id="settings.toggle.menuBar.noTray">
        <source>No system tray was found on this desktop, so closing the window quits the program.</source>
        <translation>Nenhuma bandeja do sistema foi encontrada nesta área de trabalho, então fechar a janela encerra o programa.</translation>
    </message>
    <message id="menubar.title">
        <source>Zephrane monitor</source>
        <translation>Monitor do Zephrane</translation>
    </message>
    <message id="menubar.item.summary">
        <source>Zephrane: %1 free on disk</source>
        <translation>Zephrane: %1 livres no disco</translation>
    </message>
    <message id="menubar.status.ok">
        <source>All good</source>
        <translation>Tudo certo</translation>
    </message>
    <message id="menubar.status.diskAlmostFull">
        <source>Disk almost full</source>
        <translation>Disco quase cheio</translation>
    </message>
    <message id="menubar.meter.cpu">
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message id="menubar.meter.memory">
        <source>Memory</source>
        <translation>Memória</translation>
    </message>
    <message id="menubar.meter.disk">
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message id="menubar.meter.value">
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message id="menubar.cpu.cores">
        <source>%1 cores</source>
        <translation>%1 núcleos</translation>
    </message>
    <message id="menubar.measuring">
        <source>Measuring…</source>
        <translation>Medindo…</translation>
    </message>
    <message id="menubar.memory.detail">
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message id="menubar.disk.free">
        <source>%1 free</source>
        <translation>%1 livres</translation>
    </message>
    <message id="menubar.meter.cpu.a11y">
        <source>Processor load, %1</source>
        <translation>Carga do processador, %1</translation>
    </message>
    <message id="menubar.meter.memory.a11y">
        <source>Memory used, %1</source>
        <translation>Memória usada, %1</translation>
    </message>
    <message id="menubar.meter.disk.a11y">
        <source>Disk used, %1</source>
        <translation>Disco usado, %1</translation>
    </message>
    <message id="menubar.network.value">
        <source>Down %1/s · Up %2/s</source>
        <translation>Recebe %1/s · Envia %2/s</translation>
    </message>
    <message id="menubar.battery.short">
        <source>Battery %1%</source>
        <translation>Bateria %1%</translation>
    </message>
    <message id="menubar.battery.charging">
        <source>Charging %1%</source>
        <translation>Carregando %1%</translation>
    </message>
    <message id="menubar.hogs.section">
        <source>Top memory users</source>
        <translation>Maiores usos de memória</translation>
    </message>
    <message id="menubar.hogs.title">
        <source>Applications using the most memory</source>
        <translation>Aplicativos que mais usam memória</translation>
    </message>
    <message id="menubar.hogs.empty">
        <source>No application to show</source>
        <translation>Nenhum aplicativo para mostrar</translation>
    </message>
    <message id="menubar.hogs.quit">
        <source>Quit</source>
        <translation>Encerrar</translation>
    </message>
    <message id="menubar.hogs.quit.a11y">
        <source>Quit %1</source>
        <translation>Encerrar %1</translation>
    </message>
    <message id="menubar.hogs.confirm">
        <source>Quit %1?</source>
        <translation>Encerrar %1?</translation>
    </message>
    <message id="menubar.hogs.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="menubar.hogs.confirm.hint">
        <source>Asks the application to quit; unsaved work may ask first</source>
        <translation>Pede ao aplicativo que encerre; trabalho não salvo pode perguntar antes</translation>
    </message>
    <message id="menubar.hogs.announce.quitting">
        <source>Asking %1 to quit</source>
        <translation>Pedindo a %1 que encerre</translation>
    </message>
    <message id="menubar.action.scanning">
        <source>Scanning…</source>
        <translation>Analisando…</translation>
    </message>
    <message id="menubar.action.cleaning">
        <source>Cleaning…</source>
        <translation>Limpando…</translation>
    </message>
    <message id="menubar.action.cleanJunk">
        <source>Review %1 of junk</source>
        <translation>Revisar %1 de lixo</translation>
    </message>
    <message id="menubar.action.cleanJunk.hint">
        <source>Opens the junk channel in the window to review it</source>
        <translation>Abre o canal de lixo na janela para revisá-lo</translation>
    </message>
    <message id="menubar.action.rescanJunk">
        <source>Scan for junk again</source>
        <translation>Procurar lixo de novo</translation>
    </message>
    <message id="menubar.action.scanJunk">
        <source>Scan for junk</source>
        <translation>Procurar lixo</translation>
    </message>
    <message id="menubar.action.emptyTrash">
        <source>Empty trash</source>
        <translation>Esvaziar Lixeira</translation>
    </message>
    <message id="menubar.action.emptyTrash.hint">
        <source>Opens the trash channel in the window</source>
        <translation>Abre o canal da Lixeira na janela</translation>
    </message>
    <message id="menubar.action.open">
        <source>Open Zephrane</source>
        <translation>Abrir o Zephrane</translation>
    </message>
    <message id="menubar.junk.announce.found">
        <source>Found %1 of junk</source>
        <translation>Encontrados %1 de lixo</translation>
    </message>
</context>
</TS>
