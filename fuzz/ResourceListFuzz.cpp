// A database of any bytes through the resource list, the walk and the icon index.

#include "Database.h"

using namespace vypx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    WalkState walk;
    if (size < 69 || size > 1u << 16 || !fuzz::WalkDatabase(data, size, walk))
        return 0;
    for (std::int32_t row = 0; row < walk.TLstCnt; ++row) {
        const IconRow& icon = IconTable.at(static_cast<std::size_t>(row));
        fuzz::Require(!icon.IconLabel.empty() && !icon.ResourceKey.empty());
        fuzz::Require(Tree.Find(icon.IconLabel) != nullptr);
    }
    return 0;
}
