#pragma once

#include "App/Channel.hpp"

#include <optional>

class AppModel;
class Preferences;
class QWindow;

// Whether the program lives on in the tray once its window is closed, and how it comes back.
namespace AgentLifecycle {

// The main window's object name.
inline constexpr const char* mainWindowID = "main";

// The user's choice; a key never written means on.
bool isAgentOn(const Preferences& preferences);

// With no tray to hold it the agent is off in effect: nothing could bring the window back.
constexpr bool inEffect(bool agentOn, bool trayAvailable) { return agentOn && trayAvailable; }

// Shows the main window again, on `channel` when one is given, raised and asking for focus.
void showMainWindow(AppModel& model, QWindow& window, std::optional<Channel> channel = std::nullopt);

} // namespace AgentLifecycle
