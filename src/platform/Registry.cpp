#include "platform/Registry.h"

#ifdef _WIN32

#include "platform/Platform.h"
#include "platform/WideText.h"
#include "platform/WindowsApi.h"

#include <algorithm>
#include <array>

namespace vypx::platform {

namespace {

constexpr DWORD Buffer = 255; // characters, each terminator among them

/// A text of UTF-16 as it lies in memory, up to its terminator.
std::string Utf8(const wchar_t* text, std::size_t most)
{
    const wchar_t* const end = std::find(text, text + most, L'\0');
    return Utf8FromWide(std::wstring_view(text, static_cast<std::size_t>(end - text)));
}

bool IsText(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ; }

} // namespace

std::optional<RegistryValues> UserRegistryValues(const std::string& key)
{
    HKEY open = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, NativePath(key).c_str(), 0, KEY_READ, &open)
        != ERROR_SUCCESS)
        return std::nullopt;
    RegistryValues found;
    for (DWORD i = 0;; ++i) {
        std::array<wchar_t, Buffer> name{}, data{};
        DWORD nameLength = Buffer, dataBytes = sizeof data, type = REG_NONE;
        const LSTATUS status = ::RegEnumValueW(open, i, name.data(), &nameLength, nullptr, &type,
            reinterpret_cast<BYTE*>(data.data()), &dataBytes);
        if (status == ERROR_SUCCESS) {
            const std::size_t letters =
                IsText(type) ? std::min<std::size_t>(dataBytes / sizeof(wchar_t), Buffer) : 0;
            found.values.push_back({ Utf8(name.data(), nameLength), Utf8(data.data(), letters) });
            continue;
        }
        if (status == ERROR_NO_MORE_ITEMS)
            break;
        found.isWhole = false;
        if (status != ERROR_MORE_DATA)
            break;
    }
    ::RegCloseKey(open);
    return found;
}

} // namespace vypx::platform

#else

namespace vypx::platform {

std::optional<RegistryValues> UserRegistryValues(const std::string&) { return std::nullopt; }

} // namespace vypx::platform

#endif
