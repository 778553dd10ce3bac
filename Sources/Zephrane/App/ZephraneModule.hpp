#pragma once

// Where the QML module's files are: a file's path below Sources/Zephrane, after this root.
namespace ZephraneModule {
inline constexpr const char* root = "qrc:/qt-project.org/imports/Zephrane/";
} // namespace ZephraneModule
