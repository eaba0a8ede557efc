#pragma once

#include "ReadingFixture.h"

namespace vypx::test {

/// For `thumbnail`: `set.prc` becomes `out.png`.
class ThumbnailFixture : public ReadingFixture {
protected:
    ToolRun Run(const std::vector<std::string>& more = {}, const std::string& environment = {})
    {
        std::vector<std::string> arguments{ "thumbnail", folder.File("set.prc"),
            folder.File("out.png") };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments, environment);
    }
    /// netpbm's view of the thumbnail: its colours, and its opacity as greys.
    Picture Colours() const
    {
        return PictureFrom("pngtopnm -quiet '" + folder.File("out.png") + "'");
    }
    Picture Opacity() const
    {
        return PictureFrom("pngtopnm -quiet -alpha '" + folder.File("out.png") + "'");
    }
    /// The colours of opaque pixels, each once, by rows of icons from the left.
    std::vector<Rgb> ColoursInOrder() const
    {
        const Picture colours = Colours(), opacity = Opacity();
        std::vector<Rgb> seen;
        for (int y = 0; y < colours.Height(); ++y)
            for (int x = 0; x < colours.Width(); ++x)
                if (const Rgb colour = colours.At(x, y); opacity.At(x, y) == Opaque
                    && std::find(seen.begin(), seen.end(), colour) == seen.end())
                    seen.push_back(colour);
        return seen;
    }

    static constexpr Rgb Opaque{ 255, 255, 255 };
};

} // namespace vypx::test
