#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vypx::platform {

struct RegistryValue {
    std::string name, data; ///< UTF-8; data without its terminator, empty when it is no text
};

struct RegistryValues {
    std::vector<RegistryValue> values;
    bool isWhole = true; ///< false: there was one that could not be read
};

/// The values of a key of the current user, as texts of less than 255 characters each. Empty when
/// there is no such key; always on systems without a registry.
std::optional<RegistryValues> UserRegistryValues(const std::string& key);

} // namespace vypx::platform
