#pragma once

#include "support/PicturesFixture.h"
#include "writer/TemplateExport.h"

namespace vypx::test {

/// Templates of a document with icons of every sort, at `t.vpt`.
class TemplateFixture : public Pictures {
protected:
    TemplateFixture()
    {
        TemplatePath.clear();
        ExportingTemplate = false;
        VYTable = { {}, { "Category", "11000", "" } };
    }

    std::string Path() const { return folder.File("t.vpt"); }
    SaveReport Export(ColorDepth depth = ColorDepth::Bits16)
    {
        return ExportTemplate(Path(), depth);
    }
    LoadResult LoadTemplate(const std::string& path)
    {
        TemplateMode = true;
        const LoadResult result = Load(path);
        TemplateMode = false;
        return result;
    }
    /// The template's bytes, its two dates as 0.
    Bytes FileWithoutDates() const
    {
        Bytes file = ReadBytes(Path());
        std::fill(file.begin() + 36, file.begin() + 44, std::uint8_t{ 0 });
        return file;
    }
    std::vector<std::string> TemplateKeys() const
    {
        const Bytes file = ReadBytes(Path());
        const ByteView view(file);
        std::vector<std::string> keys;
        for (std::size_t i = 0, entry = 78; i < view.U16(76); ++i, entry += 10)
            keys.push_back(view.Text(entry, 4) + std::to_string(view.U16(entry + 4)));
        return keys;
    }
    /// The records of its index: type, creator, large and small ID.
    std::vector<std::string> Index() const
    {
        const Bytes file = ReadBytes(Path());
        const ByteView view(file);
        std::vector<std::string> records;
        const std::size_t last = 78 + 10 * (view.U16(76) - 1u);
        if (view.Text(last, 4) != "iTbl")
            return records;
        for (std::size_t at = view.U32(last + 6); at < file.size(); at += 16)
            records.push_back(view.Text(at, 4) + " " + view.Text(at + 4, 4) + " "
                + std::to_string(view.U16(at + 8)) + " " + std::to_string(view.U16(at + 10)));
        return records;
    }
};

} // namespace vypx::test
