#include "Agent/AgentLifecycle.hpp"

#include "App/AppModel.hpp"
#include "App/Preferences.hpp"

#include <QWindow>

namespace AgentLifecycle {

bool isAgentOn(const Preferences& preferences) { return preferences.showMenuBarAgent(); }

void showMainWindow(AppModel& model, QWindow& window, std::optional<Channel> channel) {
    if (channel)
        model.open(*channel);
    // A minimized window would only flash in the taskbar.
    if (window.windowStates() & Qt::WindowMinimized)
        window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.requestActivate();
}

} // namespace AgentLifecycle
