#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace vypx {

/// One way of having a file brought to the handheld at its next HotSync.
class InstallWay {
public:
    virtual ~InstallWay() = default;

    /// Whether Install needs the HotSync user's name.
    virtual bool UsesUser() const = 0;
    /// Queues a saved iconset: `user` is the HotSync user's name (Latin-1), `file` the iconset's
    /// absolute path (UTF-8). The way may rewrite both. The queue is the old or the new one,
    /// whatever goes wrong, and nothing is left beside it. See InstallResult.h.
    virtual std::int16_t Install(std::string& user, std::string& file) = 0;

    /// The way in words for the options window, without a full stop (UTF-8): "palm-sync, in
    /// /home/ada/palm".
    virtual std::string Description() const = 0;
    /// What is told after a success: sentences (UTF-8) that say where the file waits, and what is
    /// to be done next, on this machine and on the handheld.
    virtual std::string WhatNext(const std::string& user, const std::string& file) const = 0;
};

/// Where ways are looked for. Folders are UTF-8, without a separator at the end.
struct InstallPlaces {
    std::string programFolder;  ///< on Windows: holds InstAide.dll and the program that calls it
    std::string palmSyncFolder; ///< the sync folder of palm-sync as it is set; empty: none
    std::string jpilotFolder;   ///< J-Pilot's own, ".jpilot" in its home; empty: there is no home
};

/// As the settings and the system have them: ProgramFolder, PalmSyncFolder, and J-Pilot's folder by
/// its own rule ($JPILOT_HOME, else the user's home).
InstallPlaces PlacesForInstall();

/// The first way that is set up: on Windows the Palm Install Tool's library where it is there;
/// elsewhere palm-sync where its folder exists, else J-Pilot where its folder exists. Null: none.
std::unique_ptr<InstallWay> ChooseInstallWay(const InstallPlaces& places);

} // namespace vypx
