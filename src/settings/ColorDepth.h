#pragma once

#include <string>
#include <string_view>

namespace vypx {

/// How many colours pictures have in a document: bits per pixel.
enum class ColorDepth {
    Bits4,
    Bits8,
    Bits16,
    Other, ///< the settings file holds another word: files are read and written as at 16 bits
};

inline ColorDepth DefaultColorDepth = ColorDepth::Bits16;
/// The settings file's word where DefaultColorDepth is `Other`.
inline std::string OtherDepthWord;

/// Takes a word of the settings file: "4-Bit", "8-Bit" or "16-Bit" in any letter case, or another.
void SetDefaultColorDepth(std::string_view word);

/// The word for DefaultColorDepth, as the settings file holds it and the main form shows it.
std::string DefaultColorDepthWord();

/// 4, 8 or 16.
int BitsOf(ColorDepth depth);

} // namespace vypx
