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
    <message id="menu.checkForUpdates">
        <source>Check for Updates…</source>
        <translation>Procurar atualizações…</translation>
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
    <message id="large.idle.message">
        <source>Find the biggest files in your home folder: videos, disk images and archives you may have forgotten.</source>
        <translation>Encontre os maiores arquivos da sua pasta pessoal: vídeos, imagens de disco e arquivos compactados que você talvez tenha esquecido.</translation>
    </message>
    <message id="large.empty.message">
        <source>No file of 50 MB or more in your home folder.</source>
        <translation>Nenhum arquivo de 50 MB ou mais na sua pasta pessoal.</translation>
    </message>
    <message id="large.confirm.note">
        <source>These are your own files, not caches: check that none of them is still needed.</source>
        <translation>Estes são arquivos seus, não caches: confira se nenhum deles ainda é necessário.</translation>
    </message>
    <message id="large.scan.otherFolders">
        <source>Other folders</source>
        <translation>Outras pastas</translation>
    </message>
    <message id="large.found">
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message id="large.found.detail">
        <source>%1 in %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message id="large.fileCount.one">
        <source>%1 file</source>
        <translation>%1 arquivo</translation>
    </message>
    <message id="large.fileCount.other">
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
    </message>
    <message id="large.files">
        <source>Showing %1</source>
        <translation>Mostrando %1</translation>
    </message>
    <message id="large.filters">
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message id="large.filter.size">
        <source>At least</source>
        <translation>No mínimo</translation>
    </message>
    <message id="large.filter.age">
        <source>Last used</source>
        <translation>Último uso</translation>
    </message>
    <message id="large.filter.kind">
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message id="large.age.any">
        <source>Any time</source>
        <translation>Qualquer data</translation>
    </message>
    <message id="large.age.threeMonths">
        <source>3+ months</source>
        <translation>3+ meses</translation>
    </message>
    <message id="large.age.sixMonths">
        <source>6+ months</source>
        <translation>6+ meses</translation>
    </message>
    <message id="large.age.oneYear">
        <source>1+ year</source>
        <translation>1+ ano</translation>
    </message>
    <message id="large.age.threeMonths.spoken">
        <source>more than three months ago</source>
        <translation>há mais de três meses</translation>
    </message>
    <message id="large.age.sixMonths.spoken">
        <source>more than six months ago</source>
        <translation>há mais de seis meses</translation>
    </message>
    <message id="large.age.oneYear.spoken">
        <source>more than a year ago</source>
        <translation>há mais de um ano</translation>
    </message>
    <message id="large.kind.all">
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message id="large.kind.all.spoken">
        <source>all kinds</source>
        <translation>todos os tipos</translation>
    </message>
    <message id="large.kind.video">
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message id="large.kind.audio">
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message id="large.kind.image">
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message id="large.kind.archive">
        <source>Archive</source>
        <translation>Compactado</translation>
    </message>
    <message id="large.kind.diskImage">
        <source>Disk image</source>
        <translation>Imagem de disco</translation>
    </message>
    <message id="large.kind.document">
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message id="large.kind.other">
        <source>Other</source>
        <translation>Outros</translation>
    </message>
    <message id="large.column.file">
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message id="large.column.kind">
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message id="large.column.lastUsed">
        <source>Last used</source>
        <translation>Último uso</translation>
    </message>
    <message id="large.column.weight">
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message id="large.column.size">
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message id="large.sort">
        <source>Sort by %1</source>
        <translation>Ordenar por %1</translation>
    </message>
    <message id="large.selectAll">
        <source>Select all shown</source>
        <translation>Selecionar todos os exibidos</translation>
    </message>
    <message id="large.selectAll.on">
        <source>all selected</source>
        <translation>todos selecionados</translation>
    </message>
    <message id="large.selectAll.off">
        <source>none selected</source>
        <translation>nenhum selecionado</translation>
    </message>
    <message id="large.selectAll.mixed">
        <source>some selected</source>
        <translation>alguns selecionados</translation>
    </message>
    <message id="large.row.lastUsed">
        <source>used %1</source>
        <translation>usado %1</translation>
    </message>
    <message id="large.row.noDate">
        <source>no date of use</source>
        <translation>sem data de uso</translation>
    </message>
    <message id="large.row.reveal">
        <source>Show %1 in the file manager</source>
        <translation>Mostrar %1 no gerenciador de arquivos</translation>
    </message>
    <message id="large.filtered.empty">
        <source>No file passes these filters</source>
        <translation>Nenhum arquivo passa por estes filtros</translation>
    </message>
    <message id="large.filtered.empty.hint">
        <source>Choose a smaller size, an earlier date or another kind.</source>
        <translation>Escolha um tamanho menor, uma data mais antiga ou outro tipo.</translation>
    </message>
    <message id="large.selected">
        <source>%1 selected</source>
        <translation>%1 selecionados</translation>
    </message>
    <message id="large.selected.detail">
        <source>%1 in the selection</source>
        <translation>%1 na seleção</translation>
    </message>
    <message id="large.destination">
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message id="large.remove">
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message id="large.remove.value">
        <source>Remove %1</source>
        <translation>Remover %1</translation>
    </message>
    <message id="apps.step.apps">
        <source>Installed apps</source>
        <translation>Apps instalados</translation>
    </message>
    <message id="apps.step.leftovers">
        <source>Their files</source>
        <translation>Arquivos deles</translation>
    </message>
    <message id="apps.idle.message">
        <source>See every app you installed — Flatpaks, AppImages and bundles — with the files each one keeps in your home folder, and remove an app together with them.</source>
        <translation>Veja cada app que você instalou — Flatpaks, AppImages e pacotes — com os arquivos que cada um guarda na sua pasta pessoal, e remova um app junto com eles.</translation>
    </message>
    <message id="apps.empty.message">
        <source>No installed apps were found that could be removed from here.</source>
        <translation>Não foi encontrado nenhum app instalado que possa ser removido daqui.</translation>
    </message>
    <message id="apps.search">
        <source>Search by name or id</source>
        <translation>Buscar por nome ou id</translation>
    </message>
    <message id="apps.search.clear">
        <source>Clear the search</source>
        <translation>Limpar a busca</translation>
    </message>
    <message id="apps.search.none">
        <source>No app matches this search.</source>
        <translation>Nenhum app corresponde a esta busca.</translation>
    </message>
    <message id="apps.sort">
        <source>Sort</source>
        <translation>Ordem</translation>
    </message>
    <message id="apps.sort.size">
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message id="apps.sort.name">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="apps.sort.lastUsed">
        <source>Last used</source>
        <translation>Último uso</translation>
    </message>
    <message id="apps.list">
        <source>Installed apps</source>
        <translation>Apps instalados</translation>
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
        <translation>Pacote de app</translation>
    </message>
    <message id="apps.kind.flatpakUser">
        <source>Flatpak, yours</source>
        <translation>Flatpak, seu</translation>
    </message>
    <message id="apps.kind.flatpakSystem">
        <source>Flatpak, system-wide</source>
        <translation>Flatpak, do sistema</translation>
    </message>
    <message id="apps.kind.appImage">
        <source>AppImage</source>
        <translation>AppImage</translation>
    </message>
    <message id="apps.version">
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message id="apps.lastUsed">
        <source>Last used %1</source>
        <translation>Último uso %1</translation>
    </message>
    <message id="apps.lastUsed.never">
        <source>Never used, as far as the desktop knows</source>
        <translation>Nunca usado, até onde o ambiente sabe</translation>
    </message>
    <message id="apps.files.label">
        <source>Files that go with it</source>
        <translation>Arquivos que vão junto</translation>
    </message>
    <message id="apps.uninstall">
        <source>Uninstall</source>
        <translation>Desinstalar</translation>
    </message>
    <message id="apps.destination">
        <source>Files go to</source>
        <translation>Arquivos vão para</translation>
    </message>
    <message id="apps.selected">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="apps.confirm.note">
        <source>%1 will be uninstalled, with the files you ticked.</source>
        <translation>%1 será desinstalado, com os arquivos que você marcou.</translation>
    </message>
    <message id="apps.blocked.running">
        <source>%1 is open. Quit it before uninstalling it.</source>
        <translation>%1 está aberto. Encerre-o antes de desinstalá-lo.</translation>
    </message>
    <message id="apps.blocked.apple">
        <source>%1 is part of the system and stays.</source>
        <translation>%1 faz parte do sistema e fica.</translation>
    </message>
    <message id="apps.blocked.self">
        <source>Zephrane can't uninstall itself.</source>
        <translation>O Zephrane não pode desinstalar a si mesmo.</translation>
    </message>
    <message id="apps.blocked.button.running">
        <source>Quit the app first</source>
        <translation>Encerre o app antes</translation>
    </message>
    <message id="apps.blocked.button.apple">
        <source>Part of the system</source>
        <translation>Parte do sistema</translation>
    </message>
    <message id="apps.blocked.button.self">
        <source>This is Zephrane</source>
        <translation>Este é o Zephrane</translation>
    </message>
    <message id="apps.blocked.quit">
        <source>Ask it to quit</source>
        <translation>Pedir para encerrar</translation>
    </message>
    <message id="apps.success.flatpak.trash">
        <source>Flatpak uninstalled the app. The files you ticked went to the Trash, where you can still get them back.</source>
        <translation>O Flatpak desinstalou o app. Os arquivos que você marcou foram para a Lixeira, de onde ainda podem voltar.</translation>
    </message>
    <message id="apps.success.flatpak.delete">
        <source>Flatpak uninstalled the app, and the files you ticked were deleted for good.</source>
        <translation>O Flatpak desinstalou o app, e os arquivos que você marcou foram apagados de vez.</translation>
    </message>
    <message id="leftovers.step.library">
        <source>Your home's app folders</source>
        <translation>Pastas de apps da sua pasta pessoal</translation>
    </message>
    <message id="leftovers.idle.message">
        <source>Apps you removed often leave settings, caches and data behind. Scan to find what belongs to no installed app.</source>
        <translation>Apps que você removeu costumam deixar configurações, caches e dados para trás. Analise para achar o que não pertence a nenhum app instalado.</translation>
    </message>
    <message id="leftovers.empty.message">
        <source>Nothing here belongs to an app that is gone.</source>
        <translation>Nada aqui pertence a um app que já foi removido.</translation>
    </message>
    <message id="leftovers.empty.partial">
        <source>Nothing was found in the folders Zephrane could read. Some places could not be read, so this may not be everything.</source>
        <translation>Nada foi encontrado nas pastas que o Zephrane conseguiu ler. Alguns lugares não puderam ser lidos, então isto pode não ser tudo.</translation>
    </message>
    <message id="leftovers.confirm.note">
        <source>These files were judged by their names alone. Look them over before they go.</source>
        <translation>Estes arquivos foram julgados só pelos nomes. Confira antes que saiam.</translation>
    </message>
    <message id="leftovers.found">
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message id="leftovers.summary">
        <source>Leftovers of removed apps</source>
        <translation>Restos de apps removidos</translation>
    </message>
    <message id="leftovers.summary.apps">
        <source>Removed apps with leftovers: %1</source>
        <translation>Apps removidos com restos: %1</translation>
    </message>
    <message id="leftovers.summary.detail">
        <source>Grouped by the id in their names. Nothing is ticked: tick what you recognise.</source>
        <translation>Agrupados pelo id nos nomes. Nada vem marcado: marque o que você reconhecer.</translation>
    </message>
    <message id="leftovers.partial">
        <source>Some places could not be read, so this may not be everything. Full Disk Access is in Settings.</source>
        <translation>Alguns lugares não puderam ser lidos, então isto pode não ser tudo. O Acesso Total ao Disco fica nos Ajustes.</translation>
    </message>
    <message id="leftovers.groups">
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message id="leftovers.selected">
        <source>Selected</source>
        <translation>Selecionado</translation>
    </message>
    <message id="leftovers.selected.value">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="leftovers.clean">
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message id="leftovers.destination">
        <source>Remove to</source>
        <translation>Remover para</translation>
    </message>
    <message id="leftovers.group.items">
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message id="leftovers.group.mixed">
        <source>some ticked</source>
        <translation>alguns marcados</translation>
    </message>
    <message id="leftovers.group.expand">
        <source>Show the files</source>
        <translation>Mostrar os arquivos</translation>
    </message>
    <message id="leftovers.group.collapse">
        <source>Hide the files</source>
        <translation>Ocultar os arquivos</translation>
    </message>
    <message id="leftovers.item.in">
        <source>in %1</source>
        <translation>em %1</translation>
    </message>
    <message id="apps.selected.label">
        <source>Selected</source>
        <translation>Selecionado</translation>
    </message>
    <message id="apps.lastUsed.now">
        <source>Used just now</source>
        <translation>Usado agora há pouco</translation>
    </message>
    <message id="apps.confirm.question.flatpak">
        <source>Uninstall %1 with Flatpak?</source>
        <translation>Desinstalar %1 pelo Flatpak?</translation>
    </message>
    <message id="trash.idle.message">
        <source>Everything you deleted waits in the Trash, on every drive, until it is emptied. Read it to see how much space it holds.</source>
        <translation>Tudo o que você apagou espera na Lixeira, em cada disco, até ser esvaziada. Leia-a para ver quanto espaço ocupa.</translation>
    </message>
    <message id="trash.empty.message">
        <source>Nothing is waiting in the Trash on any drive.</source>
        <translation>Não há nada na Lixeira em nenhum disco.</translation>
    </message>
    <message id="trash.noAccess.status">
        <source>No access</source>
        <translation>Sem acesso</translation>
    </message>
    <message id="trash.noAccess.title">
        <source>The Trash can't be read</source>
        <translation>A Lixeira não pode ser lida</translation>
    </message>
    <message id="trash.noAccess.body">
        <source>Zephrane isn't allowed to list your Trash folder. Give it access to your files, then try again; nothing is shown until the Trash can be read.</source>
        <translation>O Zephrane não tem permissão para listar a pasta da Lixeira. Dê acesso aos seus arquivos e tente de novo; nada é mostrado até a Lixeira poder ser lida.</translation>
    </message>
    <message id="trash.noAccess.retry">
        <source>Try again</source>
        <translation>Tentar de novo</translation>
    </message>
    <message id="trash.size">
        <source>In the Trash</source>
        <translation>Na Lixeira</translation>
    </message>
    <message id="trash.size.caption">
        <source>What you deleted still takes up space until the Trash is emptied. You can restore any item from your file manager's Trash until then.</source>
        <translation>O que você apagou ainda ocupa espaço até a Lixeira ser esvaziada. Até lá, qualquer item pode ser restaurado pela Lixeira do gerenciador de arquivos.</translation>
    </message>
    <message id="trash.items.one">
        <source>%1 item</source>
        <translation>%1 item</translation>
    </message>
    <message id="trash.items.other">
        <source>%1 items</source>
        <translation>%1 itens</translation>
    </message>
    <message id="trash.list">
        <source>In your Trash</source>
        <translation>Na sua Lixeira</translation>
    </message>
    <message id="trash.list.header.name">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="trash.list.header.added">
        <source>Deleted</source>
        <translation>Apagado</translation>
    </message>
    <message id="trash.list.header.size">
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message id="trash.list.rest">
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message id="trash.when.today">
        <source>today</source>
        <translation>hoje</translation>
    </message>
    <message id="trash.bins">
        <source>Trash on each drive</source>
        <translation>Lixeira em cada disco</translation>
    </message>
    <message id="trash.bins.startup">
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message id="trash.bins.others.note">
        <source>Each drive keeps its own Trash. Emptying empties them all.</source>
        <translation>Cada disco tem a sua própria Lixeira. Esvaziar esvazia todas.</translation>
    </message>
    <message id="trash.bins.photos">
        <source>Photo apps keep their own bin</source>
        <translation>Apps de fotos têm a sua própria lixeira</translation>
    </message>
    <message id="trash.bins.photos.where">
        <source>Photos deleted inside a photo app stay in that app's recently deleted album; empty it there.</source>
        <translation>Fotos apagadas dentro de um app de fotos ficam no álbum de apagados recentemente desse app; esvazie-o por lá.</translation>
    </message>
    <message id="trash.warning.title">
        <source>Emptying can't be undone</source>
        <translation>Esvaziar não pode ser desfeito</translation>
    </message>
    <message id="trash.warning.body">
        <source>Every item in the Trash, on every drive, is removed for good. Restore what you want to keep first.</source>
        <translation>Cada item da Lixeira, em todos os discos, é apagado para sempre. Restaure antes o que quiser manter.</translation>
    </message>
    <message id="trash.empty.key">
        <source>Empty Trash</source>
        <translation>Esvaziar a Lixeira</translation>
    </message>
    <message id="trash.empty.hold">
        <source>Hold the key down to empty the Trash, or press it to confirm in a dialog.</source>
        <translation>Mantenha a tecla pressionada para esvaziar a Lixeira, ou pressione-a para confirmar numa caixa de diálogo.</translation>
    </message>
    <message id="trash.empty.confirm.title">
        <source>Empty the Trash for good?</source>
        <translation>Esvaziar a Lixeira para sempre?</translation>
    </message>
    <message id="trash.empty.action">
        <source>Empty</source>
        <translation>Esvaziar</translation>
    </message>
    <message id="trash.empty.confirm.message">
        <source>%1 (%2) will be removed for good from the Trash of every drive. This can't be undone.</source>
        <translation>Sai para sempre da Lixeira de todos os discos: %1 (%2). Isso não pode ser desfeito.</translation>
    </message>
    <message id="trash.announce.noAccess">
        <source>The Trash can't be read: no access.</source>
        <translation>A Lixeira não pode ser lida: sem acesso.</translation>
    </message>
    <message id="trash.announce.empty">
        <source>The Trash is empty.</source>
        <translation>A Lixeira está vazia.</translation>
    </message>
    <message id="trash.announce.reading">
        <source>The Trash holds %1, %2.</source>
        <translation>A Lixeira contém %1, %2.</translation>
    </message>
    <message id="trash.report.line">
        <source>Trash</source>
        <translation>Lixeira</translation>
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
    <message id="home.disk.name">
        <source>System disk</source>
        <translation>Disco do sistema</translation>
    </message>
    <message id="home.disk.free">
        <source>%1 free of %2</source>
        <translation>%1 livres de %2</translation>
    </message>
    <message id="home.reading.scanning">
        <source>Scanning…</source>
        <translation>Analisando…</translation>
    </message>
    <message id="home.reading.found">
        <source>%1 found</source>
        <translation>%1 encontrados</translation>
    </message>
    <message id="home.reading.nothing">
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message id="home.reading.notScanned">
        <source>Not scanned yet</source>
        <translation>Ainda não analisado</translation>
    </message>
    <message id="home.reading.mapped">
        <source>%1 mapped</source>
        <translation>%1 mapeados</translation>
    </message>
    <message id="home.reading.files">
        <source>Files: %1 · %2</source>
        <translation>Arquivos: %1 · %2</translation>
    </message>
    <message id="home.reading.apps">
        <source>Apps: %1</source>
        <translation>Apps: %1</translation>
    </message>
    <message id="home.reading.noAccess">
        <source>No access to the trash</source>
        <translation>Sem acesso à Lixeira</translation>
    </message>
    <message id="home.reading.trash.empty">
        <source>Empty</source>
        <translation>Vazia</translation>
    </message>
    <message id="home.reading.trash">
        <source>%1 in the trash</source>
        <translation>%1 na Lixeira</translation>
    </message>
    <message id="home.reading.updates">
        <source>Updates: %1</source>
        <translation>Atualizações: %1</translation>
    </message>
    <message id="home.reading.upToDate">
        <source>Everything up to date</source>
        <translation>Tudo atualizado</translation>
    </message>
    <message id="home.scan.done">
        <source>Smart scan finished: %1 found</source>
        <translation>Análise inteligente concluída: %1 encontrados</translation>
    </message>
    <message id="home.scan.done.none">
        <source>Smart scan finished: nothing to clean</source>
        <translation>Análise inteligente concluída: nada para limpar</translation>
    </message>
    <message id="home.visor.intro">
        <source>Run a smart scan to see what can be cleaned.</source>
        <translation>Faça uma análise inteligente para ver o que pode ser limpo.</translation>
    </message>
    <message id="home.visor.never">
        <source>No scan yet</source>
        <translation>Nenhuma análise ainda</translation>
    </message>
    <message id="home.visor.scanning">
        <source>Scanning</source>
        <translation>Analisando</translation>
    </message>
    <message id="home.visor.total">
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message id="home.visor.junk">
        <source>Junk: %1</source>
        <translation>Lixo: %1</translation>
    </message>
    <message id="home.visor.scannedAt">
        <source>Scanned at %1</source>
        <translation>Analisado às %1</translation>
    </message>
    <message id="home.visor.empty">
        <source>All clean: nothing to remove.</source>
        <translation>Tudo limpo: nada para remover.</translation>
    </message>
    <message id="home.scan.intro">
        <source>The smart scan looks for junk and for what removed apps left behind, side by side.</source>
        <translation>A análise inteligente procura lixo e o que apps removidos deixaram para trás, ao mesmo tempo.</translation>
    </message>
    <message id="home.scan.start">
        <source>Smart scan</source>
        <translation>Análise inteligente</translation>
    </message>
    <message id="home.scan.running.body">
        <source>Looking for junk and leftovers…</source>
        <translation>Procurando lixo e restos…</translation>
    </message>
    <message id="home.scan.progress">
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message id="home.scan.progress.value">
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message id="home.step.idle">
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message id="home.step.queued">
        <source>Queued</source>
        <translation>Na fila</translation>
    </message>
    <message id="home.step.running">
        <source>Scanning</source>
        <translation>Analisando</translation>
    </message>
    <message id="home.step.done">
        <source>Done</source>
        <translation>Pronto</translation>
    </message>
    <message id="home.scan.items">
        <source>Items: %1</source>
        <translation>Itens: %1</translation>
    </message>
    <message id="home.pair">
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message id="home.scan.found.body">
        <source>Review what was found before anything is removed.</source>
        <translation>Revise o que foi encontrado antes de remover qualquer coisa.</translation>
    </message>
    <message id="home.scan.review">
        <source>Review</source>
        <translation>Revisar</translation>
    </message>
    <message id="home.scan.again">
        <source>Scan again</source>
        <translation>Analisar de novo</translation>
    </message>
    <message id="onboarding.power.a11yTitle">
        <source>Power</source>
        <translation>Ligar</translation>
    </message>
    <message id="onboarding.channels.a11yTitle">
        <source>The channels</source>
        <translation>Os canais</translation>
    </message>
    <message id="onboarding.disk.title">
        <source>Disk access</source>
        <translation>Acesso ao disco</translation>
    </message>
    <message id="onboarding.preferences.a11yTitle">
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message id="onboarding.ready.a11yTitle">
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message id="onboarding.channels.section">
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message id="onboarding.disk.section">
        <source>Disk access</source>
        <translation>Acesso ao disco</translation>
    </message>
    <message id="onboarding.preferences.section">
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message id="onboarding.ready.section">
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message id="onboarding.progress">
        <source>Step %1 of %2</source>
        <translation>Passo %1 de %2</translation>
    </message>
    <message id="onboarding.progress.announce">
        <source>Now: %1</source>
        <translation>Agora: %1</translation>
    </message>
    <message id="onboarding.topBar">
        <source>Setup · %1</source>
        <translation>Configuração · %1</translation>
    </message>
    <message id="onboarding.back">
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message id="onboarding.continue">
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message id="onboarding.power.tagline">
        <source>A control panel for a tidy disk.</source>
        <translation>Um painel de controle para um disco em ordem.</translation>
    </message>
    <message id="onboarding.power.hint">
        <source>Press to switch on</source>
        <translation>Pressione para ligar</translation>
    </message>
    <message id="onboarding.power.button">
        <source>Power on</source>
        <translation>Ligar</translation>
    </message>
    <message id="onboarding.channels.headline1">
        <source>Eight channels,</source>
        <translation>Oito canais,</translation>
    </message>
    <message id="onboarding.channels.headline2">
        <source>one panel.</source>
        <translation>um painel.</translation>
    </message>
    <message id="onboarding.channels.intro">
        <source>Each channel looks after one kind of clutter. Nothing is removed until you confirm.</source>
        <translation>Cada canal cuida de um tipo de bagunça. Nada é removido sem a sua confirmação.</translation>
    </message>
    <message id="onboarding.channels.home">
        <source>The smart scan and your disk at a glance</source>
        <translation>A análise inteligente e o seu disco num relance</translation>
    </message>
    <message id="onboarding.channels.junk">
        <source>Caches, logs and leftovers of downloads</source>
        <translation>Caches, registros e downloads incompletos</translation>
    </message>
    <message id="onboarding.channels.lens">
        <source>A map of what fills the disk</source>
        <translation>Um mapa do que ocupa o disco</translation>
    </message>
    <message id="onboarding.channels.large">
        <source>Big files you have not opened in a while</source>
        <translation>Arquivos grandes que você não abre há tempos</translation>
    </message>
    <message id="onboarding.channels.apps">
        <source>Remove apps with everything they brought</source>
        <translation>Remova apps com tudo o que trouxeram</translation>
    </message>
    <message id="onboarding.channels.leftovers">
        <source>What removed apps left behind</source>
        <translation>O que apps removidos deixaram para trás</translation>
    </message>
    <message id="onboarding.channels.trash">
        <source>See and empty the trash</source>
        <translation>Veja e esvazie a Lixeira</translation>
    </message>
    <message id="onboarding.channels.updates">
        <source>Newer versions of your apps</source>
        <translation>Versões novas dos seus apps</translation>
    </message>
    <message id="onboarding.disk.headline1">
        <source>Let it see</source>
        <translation>Deixe-o ver</translation>
    </message>
    <message id="onboarding.disk.headline2">
        <source>the whole disk.</source>
        <translation>o disco inteiro.</translation>
    </message>
    <message id="onboarding.disk.body">
        <source>Some folders are only readable with full disk access. Without it the channels find less.</source>
        <translation>Algumas pastas só podem ser lidas com acesso total ao disco. Sem ele os canais encontram menos.</translation>
    </message>
    <message id="onboarding.disk.step1">
        <source>Open the system's privacy settings.</source>
        <translation>Abra os ajustes de privacidade do sistema.</translation>
    </message>
    <message id="onboarding.disk.step2">
        <source>Choose full disk access.</source>
        <translation>Escolha acesso total ao disco.</translation>
    </message>
    <message id="onboarding.disk.step3">
        <source>Add Zephrane to the list and switch it on.</source>
        <translation>Adicione o Zephrane à lista e ative-o.</translation>
    </message>
    <message id="onboarding.disk.openSettings">
        <source>Open settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message id="onboarding.disk.waiting">
        <source>Waiting for access…</source>
        <translation>Aguardando acesso…</translation>
    </message>
    <message id="onboarding.disk.safety">
        <source>Zephrane only reads to show you what it finds; it removes nothing you have not confirmed.</source>
        <translation>O Zephrane só lê para mostrar o que encontra; não remove nada que você não confirmou.</translation>
    </message>
    <message id="onboarding.disk.skip">
        <source>Skip for now</source>
        <translation>Pular por enquanto</translation>
    </message>
    <message id="onboarding.disk.granted">
        <source>Access granted.</source>
        <translation>Acesso concedido.</translation>
    </message>
    <message id="onboarding.disk.grantedBody">
        <source>Every channel can read what it needs.</source>
        <translation>Todos os canais podem ler o que precisam.</translation>
    </message>
    <message id="onboarding.disk.selfTest">
        <source>Self-test</source>
        <translation>Autoteste</translation>
    </message>
    <message id="onboarding.check.diskAccess">
        <source>Disk access</source>
        <translation>Acesso ao disco</translation>
    </message>
    <message id="onboarding.check.ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="onboarding.check.pending">
        <source>Pending</source>
        <translation>Pendente</translation>
    </message>
    <message id="onboarding.check.skipped">
        <source>Skipped</source>
        <translation>Pulado</translation>
    </message>
    <message id="onboarding.check.destination">
        <source>Removed items go to</source>
        <translation>Itens removidos vão para</translation>
    </message>
    <message id="onboarding.check.trash">
        <source>Trash</source>
        <translation>Lixeira</translation>
    </message>
    <message id="onboarding.check.delete">
        <source>Deleted for good</source>
        <translation>Apagados de vez</translation>
    </message>
    <message id="onboarding.check.menuBar">
        <source>Menu bar monitor</source>
        <translation>Monitor na barra de menus</translation>
    </message>
    <message id="onboarding.check.on">
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message id="onboarding.check.off">
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message id="onboarding.preferences.headline1">
        <source>Make it</source>
        <translation>Deixe-o</translation>
    </message>
    <message id="onboarding.preferences.headline2">
        <source>yours.</source>
        <translation>do seu jeito.</translation>
    </message>
    <message id="onboarding.preferences.trash">
        <source>Move to the trash</source>
        <translation>Mover para a Lixeira</translation>
    </message>
    <message id="onboarding.preferences.trash.detail">
        <source>You can still get things back until you empty it.</source>
        <translation>Você ainda pode recuperar tudo até esvaziá-la.</translation>
    </message>
    <message id="onboarding.preferences.recommended">
        <source>Recommended</source>
        <translation>Recomendado</translation>
    </message>
    <message id="onboarding.preferences.delete">
        <source>Delete for good</source>
        <translation>Apagar de vez</translation>
    </message>
    <message id="onboarding.preferences.delete.detail">
        <source>Frees the space at once; there is no way back.</source>
        <translation>Libera o espaço na hora; não há volta.</translation>
    </message>
    <message id="onboarding.preferences.menuBar">
        <source>Monitor in the menu bar</source>
        <translation>Monitor na barra de menus</translation>
    </message>
    <message id="onboarding.preferences.menuBar.detail">
        <source>Memory, processor and disk at a glance.</source>
        <translation>Memória, processador e disco num relance.</translation>
    </message>
    <message id="onboarding.preferences.login.detail">
        <source>Starts the monitor when you log in.</source>
        <translation>Inicia o monitor quando você entra na sessão.</translation>
    </message>
    <message id="onboarding.preferences.outdated.detail">
        <source>Tells you when apps have newer versions.</source>
        <translation>Avisa quando os apps têm versões novas.</translation>
    </message>
    <message id="onboarding.ready.headline1">
        <source>All set.</source>
        <translation>Tudo pronto.</translation>
    </message>
    <message id="onboarding.ready.headline2">
        <source>Panel on,</source>
        <translation>Painel ligado,</translation>
    </message>
    <message id="onboarding.ready.headline3">
        <source>channels live.</source>
        <translation>canais no ar.</translation>
    </message>
    <message id="onboarding.ready.body">
        <source>Here is what was set up.</source>
        <translation>Veja o que foi configurado.</translation>
    </message>
    <message id="onboarding.ready.selfTest">
        <source>Self-test</source>
        <translation>Autoteste</translation>
    </message>
    <message id="onboarding.ready.question">
        <source>Run the first scan now?</source>
        <translation>Fazer a primeira análise agora?</translation>
    </message>
    <message id="onboarding.ready.scan">
        <source>Scan now</source>
        <translation>Analisar agora</translation>
    </message>
    <message id="onboarding.ready.goHome">
        <source>Go to Home</source>
        <translation>Ir para o Início</translation>
    </message>
    <message id="onboarding.ready.firstScan">
        <source>The first scan looks for junk and leftovers; it removes nothing.</source>
        <translation>A primeira análise procura lixo e restos; não remove nada.</translation>
    </message>
    <message id="updates.idle.message">
        <source>Check which of your apps have a newer version.</source>
        <translation>Veja quais dos seus apps têm uma versão mais nova.</translation>
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
        <translation>Feeds de atualização</translation>
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
        <translation>%1 encontradas</translation>
    </message>
    <message id="updates.source.sparkle">
        <source>Update feed</source>
        <translation>Feed do app</translation>
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
        <translation>Instalar</translation>
    </message>
    <message id="updates.action.open">
        <source>Open app</source>
        <translation>Abrir app</translation>
    </message>
    <message id="updates.action.store">
        <source>Open store</source>
        <translation>Abrir loja</translation>
    </message>
    <message id="updates.action.copy">
        <source>Copy command</source>
        <translation>Copiar comando</translation>
    </message>
    <message id="updates.stage.downloading">
        <source>Downloading…</source>
        <translation>Baixando…</translation>
    </message>
    <message id="updates.stage.verifying">
        <source>Verifying…</source>
        <translation>Verificando…</translation>
    </message>
    <message id="updates.stage.installing">
        <source>Installing…</source>
        <translation>Instalando…</translation>
    </message>
    <message id="updates.row.installed">
        <source>Installed</source>
        <translation>Instalado</translation>
    </message>
    <message id="updates.row.needsQuit">
        <source>Quit the app to update it</source>
        <translation>Feche o app para atualizá-lo</translation>
    </message>
    <message id="updates.failure.swap">
        <source>Could not replace the app</source>
        <translation>Não foi possível substituir o app</translation>
    </message>
    <message id="updates.failure.noApp">
        <source>The download has no app in it</source>
        <translation>O download não contém o app</translation>
    </message>
    <message id="updates.failure.otherApp">
        <source>The download is a different app</source>
        <translation>O download é de outro app</translation>
    </message>
    <message id="updates.failure.notNewer">
        <source>The download is not newer</source>
        <translation>O download não é mais novo</translation>
    </message>
    <message id="updates.failure.signature">
        <source>The signature could not be verified</source>
        <translation>Não foi possível verificar a assinatura</translation>
    </message>
    <message id="updates.failure.notarization">
        <source>The download is not notarized</source>
        <translation>O download não é autenticado</translation>
    </message>
    <message id="updates.failure.team">
        <source>The developer does not match</source>
        <translation>O desenvolvedor não confere</translation>
    </message>
    <message id="updates.failure.download">
        <source>The download failed</source>
        <translation>O download falhou</translation>
    </message>
    <message id="updates.announce.copied">
        <source>Command copied. Paste it in a terminal.</source>
        <translation>Comando copiado. Cole-o em um terminal.</translation>
    </message>
    <message id="updates.announce.opened">
        <source>Opened %1</source>
        <translation>%1 aberto</translation>
    </message>
    <message id="updates.announce.ignored">
        <source>%1: this version is ignored</source>
        <translation>%1: esta versão será ignorada</translation>
    </message>
    <message id="updates.announce.finished">
        <source>Updates finished: %1</source>
        <translation>Atualizações concluídas: %1</translation>
    </message>
    <message id="updates.announce.stopped">
        <source>Installing stopped: %1 of %2 apps done</source>
        <translation>Instalação interrompida: %1 de %2 apps concluídos</translation>
    </message>
    <message id="updates.column.app">
        <source>App</source>
        <translation>App</translation>
    </message>
    <message id="updates.column.version">
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message id="updates.column.source">
        <source>Source</source>
        <translation>Origem</translation>
    </message>
    <message id="updates.column.action">
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message id="updates.installAll">
        <source>Install %1</source>
        <translation>Instalar %1</translation>
    </message>
    <message id="updates.installAll.none">
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message id="updates.confirm.title">
        <source>Updates to install: %1</source>
        <translation>Atualizações a instalar: %1</translation>
    </message>
    <message id="updates.confirm.message">
        <source>Each app is downloaded, checked and replaced in turn. The old copy goes to the Trash.</source>
        <translation>Cada app é baixado, verificado e substituído, um por vez. A cópia antiga vai para a Lixeira.</translation>
    </message>
    <message id="updates.confirm.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="updates.confirm.install">
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message id="updates.rescan">
        <source>Check again</source>
        <translation>Verificar de novo</translation>
    </message>
    <message id="updates.stop">
        <source>Stop installing</source>
        <translation>Parar a instalação</translation>
    </message>
    <message id="updates.stopping">
        <source>Stopping…</source>
        <translation>Parando…</translation>
    </message>
    <message id="updates.upToDate.title">
        <source>All apps are up to date</source>
        <translation>Todos os apps estão atualizados</translation>
    </message>
    <message id="updates.upToDate.message">
        <source>No newer versions were found for your apps.</source>
        <translation>Não há versões mais novas dos seus apps.</translation>
    </message>
    <message id="updates.ignored">
        <source>%1 ignored</source>
        <translation>%1 ignoradas</translation>
    </message>
    <message id="updates.ignored.restore">
        <source>Show ignored</source>
        <translation>Mostrar ignoradas</translation>
    </message>
    <message id="updates.notify.title">
        <source>Tell me about outdated apps</source>
        <translation>Avisar sobre apps desatualizados</translation>
    </message>
    <message id="updates.notify.detail">
        <source>A daily notice when updates are waiting</source>
        <translation>Um aviso diário quando houver atualizações</translation>
    </message>
    <message id="menubar.notify.title">
        <source>Apps to update: %1</source>
        <translation>Apps para atualizar: %1</translation>
    </message>
    <message id="menubar.notify.body">
        <source>Open Zephrane to see the updates</source>
        <translation>Abra o Zephrane para ver as atualizações</translation>
    </message>
    <message id="menubar.notify.action">
        <source>Show updates</source>
        <translation>Mostrar atualizações</translation>
    </message>
    <message id="updates.notify.unavailable">
        <source>No notification service is running, so the daily notice can't be shown</source>
        <translation>Nenhum serviço de notificações está em execução, então o aviso diário não pode ser mostrado</translation>
    </message>
    <message id="updates.outdated">
        <source>Outdated apps: %1</source>
        <translation>Apps desatualizados: %1</translation>
    </message>
    <message id="updates.outdated.label">
        <source>Outdated</source>
        <translation>Desatualizados</translation>
    </message>
    <message id="updates.checked">
        <source>Last checked %1</source>
        <translation>Última verificação %1</translation>
    </message>
    <message id="updates.checked.now">
        <source>Checked just now</source>
        <translation>Verificado agora mesmo</translation>
    </message>
    <message id="updates.checked.never">
        <source>Never checked</source>
        <translation>Nunca verificado</translation>
    </message>
    <message id="updates.menu.notes">
        <source>Release notes (N)</source>
        <translation>Notas da versão (N)</translation>
    </message>
    <message id="updates.menu.ignore">
        <source>Ignore this version (I)</source>
        <translation>Ignorar esta versão (I)</translation>
    </message>
    <message id="updates.notes.title">
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message id="updates.notes.language">
        <source>Language: %1</source>
        <translation>Idioma: %1</translation>
    </message>
    <message id="updates.notes.empty">
        <source>This update has no notes.</source>
        <translation>Esta atualização não tem notas.</translation>
    </message>
    <message id="updates.notes.open">
        <source>Open full notes</source>
        <translation>Abrir notas completas</translation>
    </message>
    <message id="updates.notes.close">
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
</TS>
