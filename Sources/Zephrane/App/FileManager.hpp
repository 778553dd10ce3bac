#pragma once

#include <QString>

// The desktop's file manager.
namespace FileManager {

// Opens the folder holding `path` with the file selected: asks the file manager over D-Bus
// (org.freedesktop.FileManager1.ShowItems) and, when none answers, opens the folder itself.
void showItem(const QString& path);

} // namespace FileManager
