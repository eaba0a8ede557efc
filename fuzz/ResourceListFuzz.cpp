// A database of any bytes through the resource list, the walk and the icon index. Catalogs are
// there, so that rows of every kind can come up.

#include "document/Catalogs.h"
#include "document/Document.h"
#include "reader/ResourceList.h"
#include "reader/WalkResources.h"

#include <cstdint>
#include <cstdlib>

namespace {

using namespace vypx;

class Silent : public LoadListener {
    void Message(std::string_view) override { }
};

void KeepFile(const std::uint8_t* data, std::size_t size)
{
    FileCashe.assign(size + 2, 0);
    std::copy(data, data + size, FileCashe.begin() + 1);
    IconFileSize = static_cast<std::int32_t>(size + 1);
}

void FillCatalogs()
{
    AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "ALPH", "" } };
    PalmTable = { {}, { "Palm Clock", "appl", "CLCK", "" } };
    VYTable = { {}, { "Launcher", "2000", "" }, { "Launcher", "2001", "" } };
}

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 69 || size > 1u << 16)
        return 0;
    ResetDocument();
    FillCatalogs();
    KeepFile(data, size);
    Silent listener;
    try {
        const int count = ReadResourceCount();
        Parent = ReadDatabaseName();
        Tree.SetRoot(Parent);
        IconTable.assign(static_cast<std::size_t>(2 * count + 1), {});
        WalkResources(listener);
    } catch (const std::out_of_range&) {
        return 0;
    }
    for (std::int32_t row = 0; row < TLstCnt; ++row) {
        const IconRow& icon = IconTable.at(static_cast<std::size_t>(row));
        Require(!icon.IconLabel.empty() && !icon.ResourceKey.empty());
        Require(Tree.Find(icon.IconLabel) != nullptr);
    }
    return 0;
}
