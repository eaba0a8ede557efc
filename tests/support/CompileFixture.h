#pragma once

#include "companion/BmpFile.h"
#include "support/LoadFixture.h"
#include "writer/CompileIconset.h"

namespace vypx::test {

/// A document without icons, three applications and an item of Palm OS to give them to.
class Compiling : public LoadFixture {
protected:
    Compiling()
    {
        WriteText(folder.File("AppList.dat"),
            "[Alpha]\nType=appl\nCreator={ALPH}\n[Beta]\nType=panl\nCreator={B   }\n"
            "[Gamma]\nType=data\nCreator={GAMM}\n");
        WriteText(folder.File("PalmApp.dat"), "[Palm Clock]\nType=appl\nCreator={clck}\n");
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "panl", "B   ", "" } };
        PalmTable = { {}, { "Palm Clock", "appl", "clck", "" } };
        FileLoaded = true;
        SavingAs = false;
        DatabaseName = "Set";
        FileName = folder.File("out.prc");
        IconTable.clear();
        BitmapTable.clear();
    }

    /// A row and its pictures, which are made.
    void Add(const std::string& label, int id, bool low, bool high, const std::string& kind = "APP",
        int state = 1, const std::string& type = "tAIB")
    {
        const std::string key = type + std::to_string(id);
        const auto file = [&](bool wanted, const std::string& name, int width) {
            if (wanted)
                WriteBytes(WorkPath(name), EncodeBmp24(vypx::Picture(width, 2)));
            return wanted ? name : std::string("NEW");
        };
        IconTable.push_back({ label, key, file(low, key + ".bmp", 3),
            file(high, key + "-d144.bmp", 6), state, kind });
    }

    /// The resources of the file that was saved.
    std::vector<Resource> Saved() const
    {
        const Bytes file = ReadBytes(FileName);
        const ByteView view(file);
        std::vector<Resource> saved;
        const std::size_t count = view.U16(76);
        const auto from = [&](std::size_t i) {
            return static_cast<std::ptrdiff_t>(i < count ? view.U32(78 + 10 * i + 6) : file.size());
        };
        for (std::size_t i = 0; i < count; ++i)
            saved.push_back({ std::string(view.Text(78 + 10 * i, 4)), view.U16(78 + 10 * i + 4),
                Bytes(file.begin() + from(i), file.begin() + from(i + 1)) });
        return saved;
    }
    std::vector<std::string> SavedKeys() const
    {
        std::vector<std::string> keys;
        for (const Resource& resource : Saved())
            keys.push_back(resource.type + std::to_string(resource.id));
        return keys;
    }
    /// Why a save fails; empty when it doesn't.
    static std::string WhyNot()
    {
        try {
            CompileIconset(TargetFromFlags());
            return {};
        } catch (const SaveFailure& failure) {
            return failure.what();
        }
    }

    std::vector<std::string> Keys() const
    {
        std::vector<std::string> keys;
        for (const ResourceRow& row : PictureRows())
            keys.push_back(row.key);
        return keys;
    }
};

} // namespace vypx::test
