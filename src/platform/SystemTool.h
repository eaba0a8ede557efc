#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vypx::platform {

/// A value as it lies in the registry, as text: one of type 1 (text, single bytes) less its last
/// character if that is a NUL, one of type 4 (a 32-bit number, its lowest byte first) in decimal.
/// Of another type: empty.
std::string RegistryText(std::uint32_t type, std::string_view data);

/// The value `name` of a key of the local machine, at most 1024 bytes; empty when it can't be
/// read, always on systems without a registry. Asks for all rights to the key, as a program may
/// that is run by an administrator.
std::optional<std::string> MachineValue(const std::string& key, const std::string& name);

/// How MachineValue is asked, and whether a file exists.
struct SystemToolDoors {
    std::function<std::optional<std::string>(const std::string& key, const std::string& name)>
        value = MachineValue;
    std::function<bool(const std::string& file)> exists;
};

/// The program of the platform that tells about the system; empty where there is none.
std::optional<std::string> FindSystemTool(const SystemToolDoors& doors);

} // namespace vypx::platform
