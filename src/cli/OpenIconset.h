#pragma once

#include "reader/LoadListener.h"

#include <string>
#include <string_view>
#include <vector>

namespace vypx {

/// What the command line says about the iconset to open and where.
struct OpenOptions {
    std::string file;             ///< the iconset or template
    std::string appFolder;        ///< folder with the catalogs
    std::string workFolder;       ///< for the working pictures; absent or empty
    std::string depth = "16-Bit"; ///< "4-Bit", "8-Bit" or "16-Bit"
    std::string only;             ///< "high", "low" or empty
    bool asTemplate = false;
};

/// Keeps the texts that the windows would show in boxes.
class CollectedMessages : public LoadListener {
public:
    void Message(std::string_view text) override { texts.emplace_back(text); }

    std::vector<std::string> texts;
};

/// UTF-8 with its control characters as `\x1B`, so that no name speaks to a terminal; line feeds
/// stay.
std::string WithoutControls(std::string_view utf8);

/// A line on standard error (UTF-8), without controls; nothing for an empty text.
void Tell(std::string_view text);

/// Reads the catalogs and opens the iconset, with the settings of a first run. False, and a word to
/// standard error, when the folders can't serve; whether a document was opened FileLoaded tells.
/// What no box says of catalogs and load goes to standard error as well.
bool OpenIconset(const OpenOptions& options, CollectedMessages& messages);

/// The same, and the texts of the boxes go to standard error.
bool OpenAndTell(const OpenOptions& options);

} // namespace vypx
