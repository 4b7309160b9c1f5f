// Paths as the game writes them, and what a desktop makes of them. A path of the game's own is the
// application folder, "\" and a name, whatever the system's separator is. Every other path is one of the
// system's, such as a player chooses: it is opened as it is, and a "\" in it may be a letter of a name.
#pragma once

#include <optional>
#include <string>

namespace zarpel {

// The name, when `path` is one of the game's own; `folder` is the application folder.
inline std::optional<std::string> OwnName(const std::string& folder, const std::string& path) {
    const std::string start = folder + '\\';
    if (!path.starts_with(start) || path.find('/', start.size()) != std::string::npos) return std::nullopt;
    return path.substr(start.size());
}

// What the game is to call the system's file `path`: the same path, or, when it would take that for one of
// its own, another that leads to the same file. Only a file beside the application folder can look so, where
// "\" does not divide paths.
inline std::string PathForTheGame(const std::string& folder, const std::string& path) {
    const std::size_t name = path.rfind('/') + 1;
    if (name == 0 || !OwnName(folder, path)) return path;
    return path.substr(0, name) + "./" + path.substr(name);
}

}  // namespace zarpel
