#pragma once

#include "document/ShippedState.h"
#include "platform/Platform.h"

#include <map>
#include <string>
#include <string_view>

namespace vypx {

/// What stands in a folder of shipped data for the user's folder, by path from there.
using Shipment = std::map<std::string, platform::FileIdentity>;

Shipment ShipmentIn(const std::string& shipped);

/// An identity as the state keeps it, without the volume, whose number may be another after each
/// mount.
std::string TextOfIdentity(const platform::FileIdentity& file);

/// Whether a shipped file is still as it was when it was last dealt with.
bool IsSeen(const ShippedState& state, const std::string& name, const platform::FileIdentity& file);

/// Whether a start of that version has nothing to take: all is seen, or a newer one was there.
bool HasNothingToDo(const ShippedState& state, const Shipment& shipment, std::string_view version);

} // namespace vypx
