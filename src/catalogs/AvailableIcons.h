#pragma once

#include "document/IconKinds.h"
#include "document/Labels.h"
#include "document/Slot.h"

#include <span>
#include <string>
#include <vector>

/// What the catalogs offer for a new label. Lists are in the catalog's order; texts are Latin-1.
namespace vypx {

/// An entry of a catalog.
struct AvailableIcon {
    std::string name;          ///< of the application; of the launcher's icons with the size suffix
    std::string type, creator; ///< of an application or system item; empty for the launcher's
    std::string id;            ///< resource ID of an icon of the launcher; empty for all others

    friend bool operator==(const AvailableIcon&, const AvailableIcon&) = default;
};

/// Labels that are waiting to be added, in the order of the list.
using AddedLabels = std::span<const std::string>;

/// The whole of AppTable, PalmTable, VYTable. Entries without a name are none.
std::vector<AvailableIcon> FillAppCombo();
std::vector<AvailableIcon> FillPalmCombo();
std::vector<AvailableIcon> FillVYCombo();

/// The same without what the open document has in that size and what is waiting to be added. The
/// whole catalog while no document is open.
std::vector<AvailableIcon> FilterAppCombo(SizeClass size, AddedLabels added);
std::vector<AvailableIcon> FilterPalmCombo(SizeClass size, AddedLabels added);

/// What an icon that exists brings along, where it is to get another label.
struct PictureInHand {
    bool assigns = false; ///< whether there is one: the list is for Assign or Change
    PixelSize highRes;    ///< its high-res picture on show; 0 x 0: none
};

/// The same for the launcher's icons, of that size alone. In hand a picture that is larger than
/// 44 x 22 keeps the small icons out.
std::vector<AvailableIcon> FilterVYCombo(
    SizeClass size, AddedLabels added, const PictureInHand& inHand);

/// The one of the three that the catalog says.
std::vector<AvailableIcon> FilterCombo(
    Catalog catalog, SizeClass size, AddedLabels added, const PictureInHand& inHand);

/// Whether an icon with that picture can become a small one by Change: it is 32 x 22 at most. No
/// picture can.
bool CanBeSmall(const PixelSize& highRes);

/// The label that an entry stands for: an entry of the launcher is its own.
std::string LabelOfEntry(Catalog catalog, SizeClass size, const std::string& name);

/// The labels of an entry in both sizes, the large one first, without those that the document or
/// `added` have already and that the launcher does not list.
std::vector<std::string> LabelsInBothSizes(
    Catalog catalog, const std::string& name, AddedLabels added);

} // namespace vypx
