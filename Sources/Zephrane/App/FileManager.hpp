#pragma once

#include <QByteArray>
#include <QUrl>

// The desktop's file manager.
namespace FileManager {

// Opens the folder holding `path` (its bytes as the file system has them) with the file selected:
// asks the file manager over D-Bus (org.freedesktop.FileManager1.ShowItems) and, when none
// answers, opens the folder itself.
void showItem(const QByteArray& path);

// A file URL of those bytes, escaped so that a name that is not UTF-8 keeps them.
QUrl fileUrl(const QByteArray& path);

} // namespace FileManager
