#pragma once

#include "companion/PalmDatabase.h"
#include "companion/PalmRecord.h"

#include <unordered_map>

namespace vypx {

/// The whole of a file in the working folder, a path with a separator at its end. Throws
/// CompileFailure.
Bytes ReadWorkingBytes(const std::string& workFolder, const std::string& name);

/// The bitmap families of resources, made of the pictures in the working folder.
class PictureFamilies {
public:
    PictureFamilies(std::span<const TransparencyRow> transparency, const RecordForm& form,
        const std::string& workFolder);

    /// Throws CompileFailure.
    Bytes Of(const ResourceRow& row) const;

private:
    using Colour = std::optional<Rgb>;

    template <typename Encode>
    Bytes Encoded(const std::string& name, const Encode& encode) const;
    Picture ReadPicture(const std::string& name) const;
    Colour ColourOf(const std::string& file) const;

    RecordForm m_form;
    std::string m_workFolder;
    std::unordered_map<std::string, const TransparencyRow*> m_transparency;
};

/// A template's family: one white pixel in each slot that the row names.
Bytes FamilyWithoutPictures(const ResourceRow& row, Palette palette4);

} // namespace vypx
