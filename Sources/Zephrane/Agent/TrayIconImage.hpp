#pragma once

#include <QIcon>

// The tray's picture, drawn once in code: a small gauge in one light colour that reads on the dark
// and light panels desktops use.
namespace TrayIconImage {

QIcon icon();

} // namespace TrayIconImage
