#include "settings/ColorDepth.h"

#include "settings/LetterCase.h"

namespace vypx {

namespace {

struct DepthRow {
    ColorDepth depth;
    int bits;
    std::string_view word;
};

constexpr DepthRow Depths[] = {
    { ColorDepth::Bits4, 4, "4-Bit" },
    { ColorDepth::Bits8, 8, "8-Bit" },
    { ColorDepth::Bits16, 16, "16-Bit" },
};

} // namespace

void SetDefaultColorDepth(std::string_view word)
{
    for (const DepthRow& row : Depths) {
        if (LowerCase(row.word) != LowerCase(word))
            continue;
        DefaultColorDepth = row.depth;
        return;
    }
    DefaultColorDepth = ColorDepth::Other;
    OtherDepthWord = word;
}

std::string DefaultColorDepthWord()
{
    for (const DepthRow& row : Depths)
        if (row.depth == DefaultColorDepth)
            return std::string(row.word);
    return OtherDepthWord;
}

int BitsOf(ColorDepth depth)
{
    for (const DepthRow& row : Depths)
        if (row.depth == depth)
            return row.bits;
    return 16;
}

} // namespace vypx
