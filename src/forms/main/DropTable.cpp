#include "forms/main/DropTable.h"

#include "forms/common/Text.h"

#include <algorithm>
#include <array>

namespace vypx {

namespace {

constexpr DropQuestion OfIconset{
    .text = "The current iconset has been modified.\nAre you sure you want to load a different "
            "iconset?",
    .title = "Current Iconset Was Changed!",
};
constexpr DropQuestion OfIconPack{
    .text = "The current IconPack has been modified.\nAre you sure you want to load a different "
            "IconPack?",
    .title = "Current IconPack Was Changed!",
};

const DropDestination ToLG{ SlotLG, Command::ImportLG };
const DropDestination ToSM{ SlotSM, Command::ImportSM };

constexpr std::string_view SelectIconFirst = "You must first select an icon in the tree.";

constexpr std::array<std::string_view, 2> Databases{ "prc", "pdb" };
// On purpose: a ".prc" does nothing there.
constexpr std::array<std::string_view, 1> OnlyPdb{ "pdb" };

constexpr DropTargetRow Window(std::string_view control)
{
    return { control, nullptr, false, {}, {}, Databases, OfIconset };
}

// clang-format off
const std::array Targets{
    Window("MDIForm1"),
    Window("Form1"),
    Window("TreeView1"),
    Window("frameKey"),
    Window("frameLG"),
    Window("frameSM"),
    Window("frameTC_LG"),
    Window("frameTC_SM"),
    //             control     goes to  picture no icons      none selected         databases  question
    DropTargetRow{ "picLG",    &ToLG,   false,  {},           SelectIconFirst,      OnlyPdb,   OfIconPack },
    DropTargetRow{ "picLGfrm", &ToLG,   true,   AddIconFirst, SelectValidIconFirst, Databases, OfIconset },
    DropTargetRow{ "picSM",    &ToSM,   false,  {},           SelectValidIconFirst, Databases, OfIconset },
    DropTargetRow{ "picSMfrm", &ToSM,   false,  {},           SelectValidIconFirst, Databases, OfIconset },
};
// clang-format on

} // namespace

std::span<const DropTargetRow> DropTargets() { return Targets; }

const DropTargetRow& WindowTarget() { return Targets.front(); }

bool HasDatabaseEnding(const QString& path, std::span<const std::string_view> endings)
{
    const QString ending = path.right(3).toLower();
    return std::any_of(endings.begin(), endings.end(),
        [&](std::string_view word) { return ending == FromLatin1(word); });
}

} // namespace vypx
