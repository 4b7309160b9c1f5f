// Where on this system the files are that the game names by its paths (platform/paths.h).
//
// What the game writes into the application folder goes to the player's own folder when the player cannot
// write there, as in a game that is installed for everyone; it is read from there as long as it is there. A
// disk that is full, or a file that cannot be replaced, is no reason to go elsewhere.
#pragma once

#include <QString>
#include <string>

#include "platform/desktop.h"

namespace zarpel {

// The folder that holds the running program, in the system's own bytes.
std::string ProgramFolder();

class GamePaths {
  public:
    // `folder`: the application folder, in the system's own bytes.
    explicit GamePaths(const std::string& folder);

    // The application folder as the game writes it: UTF-8, whatever its bytes are.
    const std::string& Folder() const { return folder_; }

    // The system's path of the file that the game reads, or writes, under this path.
    QString ToRead(const std::string& path) const { return PlaceOf(path, FileUse::Reading, place_); }
    // Makes the player's folder when the file belongs there.
    QString ToWrite(const std::string& path) const;
    // The same for people to read.
    std::string ShownPath(const std::string& path, FileUse use) const;

    // What the game is to call a file that the player has chosen.
    std::string ForTheGame(const QString& chosen) const;

  private:
    QString PlaceOf(const std::string& path, FileUse use, const QString& applicationFolder) const;

    std::string folder_;
    QString place_;  // the application folder's path by which the toolkit can open what is in it
};

}  // namespace zarpel
