#include "App/GoCommands.hpp"

GoCommands::GoCommands(QObject* parent) : QObject(parent) {}

void GoCommands::setModel(AppModel* model) {
    if (appModel == model)
        return;
    if (appModel)
        disconnect(appModel, nullptr, this, nullptr);
    appModel = model;
    if (appModel)
        connect(appModel, &AppModel::selectionChanged, this, &GoCommands::checkedChanged);
    emit modelChanged();
    emit checkedChanged();
}

QString GoCommands::title() const { return qtTrId("menu.go"); }

int GoCommands::count() const { return static_cast<int>(Channels::allCases.size()); }

QString GoCommands::itemTitle(int raw) const {
    auto channel = Channels::fromRaw(raw);
    return channel ? qtTrId("menu.go.item").arg(Channels::title(*channel)) : QString();
}

QString GoCommands::shortcut(int raw) const {
    auto channel = Channels::fromRaw(raw);
    return channel ? QStringLiteral("Ctrl+") + Channels::keyEquivalent(*channel) : QString();
}

bool GoCommands::isChecked(int raw) const { return appModel && appModel->selectionRaw() == raw; }

void GoCommands::choose(int raw) {
    if (appModel)
        appModel->openRaw(raw);
}
