// The game's files on this system.
#pragma once

#include <QString>
#include <cstddef>
#include <optional>
#include <string>

namespace zarpel {

// The path as this system writes it: where the separator is "/", every "\" of the game's paths is read as
// "/".
QString SystemPath(const std::string& path);

// True for a file with content of its own, followed through links: no folder, pipe or device. A name that
// begins with ":/" is a file built into the program.
bool IsRegularFile(const QString& path);

// As Desktop::ReadFile and Desktop::WriteFile.
std::optional<std::string> ReadFile(const std::string& path, std::size_t limit);
bool WriteFile(const std::string& path, const std::string& bytes);

}  // namespace zarpel
