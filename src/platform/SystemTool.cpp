#include "platform/SystemTool.h"

#include <algorithm>

#ifdef _WIN32
#include "platform/WindowsApi.h"

#include <array>
#endif

namespace vypx::platform {

namespace {

constexpr std::uint32_t Text = 1, Number = 4;

/// The bytes from last to first are the digits of a hexadecimal number, which has a sign.
std::string Decimal(std::string_view data)
{
    std::uint32_t number = 0;
    const std::size_t bytes = std::min(data.size(), sizeof number);
    for (std::size_t i = bytes; i > 0; --i)
        number = number << 8 | static_cast<unsigned char>(data[i - 1]);
    return std::to_string(static_cast<std::int32_t>(number));
}

} // namespace

std::string RegistryText(std::uint32_t type, std::string_view data)
{
    if (data.ends_with('\0') && type == Text)
        data.remove_suffix(1);
    return type == Text ? std::string(data) : type == Number ? Decimal(data) : std::string();
}

#ifdef _WIN32

std::optional<std::string> MachineValue(const std::string& key, const std::string& name)
{
    constexpr DWORD AllRights = 0x2003F;
    HKEY open = nullptr;
    if (::RegOpenKeyExA(HKEY_LOCAL_MACHINE, key.c_str(), 0, AllRights, &open) != ERROR_SUCCESS)
        return std::nullopt;
    std::array<char, 1024> buffer{};
    DWORD size = buffer.size(), type = 0;
    const LSTATUS status = ::RegQueryValueExA(
        open, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &size);
    ::RegCloseKey(open);
    if (status != ERROR_SUCCESS)
        return std::nullopt;
    return RegistryText(type, { buffer.data(), size });
}

#else

std::optional<std::string> MachineValue(const std::string&, const std::string&)
{
    return std::nullopt;
}

#endif

std::optional<std::string> FindSystemTool(const SystemToolDoors& doors)
{
    if (auto program = doors.value("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH"))
        return program;
    if (const auto folder = doors.value("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO")) {
        const std::string program = *folder + "\\MSINFO32.EXE";
        if (doors.exists(program))
            return program;
    }
    return std::nullopt;
}

} // namespace vypx::platform
