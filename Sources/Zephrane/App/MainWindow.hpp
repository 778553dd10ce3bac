#pragma once

class AppModel;
class QQmlApplicationEngine;
class QQuickWindow;

// Loads the main window (id "main") with the one AppModel handed to its root. Shared by the program
// and the tests so both see the same window.
namespace MainWindow {

QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model);

} // namespace MainWindow
