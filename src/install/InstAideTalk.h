#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// What the program, of 64 bits, and its helper of 32 bits, which alone can load `InstAide.dll`,
/// say to each other. Texts are UTF-8; none can hold a zero. Bytes that are no whole message, or
/// more than MostInstAideBytes, read as none.
///
///   request:  user, 0, file, 0
///   reply:    result (4 bytes, big-endian), user, 0, file, 0
namespace vypx {

inline constexpr std::size_t MostInstAideBytes = 128 * 1024; ///< of a message; beyond any path
/// What the library may write into each of its two strings, the zero at its end among it.
inline constexpr std::size_t LeastInstAideBuffer = 1024;

struct InstAideRequest {
    std::string user, file;
};
struct InstAideReply {
    std::uint32_t result = 0; ///< as the library gave it
    std::string user, file;   ///< as it left them
};

/// Empty where it can't be told.
std::optional<std::string> WriteInstAideRequest(const InstAideRequest& request);
std::optional<InstAideRequest> ReadInstAideRequest(std::string_view message);
std::optional<std::string> WriteInstAideReply(const InstAideReply& reply);
std::optional<InstAideReply> ReadInstAideReply(std::string_view message);

/// On purpose: the low 16 bits alone, signed.
std::int16_t InstallResultOf(std::uint32_t result);

/// The helper's view of the library and its system.
struct InstAideLibrary {
    /// Of a UTF-8 text in the system's code page; empty where it lacks a character of it.
    std::function<std::optional<std::string>(const std::string& text)> toCodePage;
    std::function<std::string(const std::string& bytes)> fromCodePage;
    /// PltInstallFile. Both strings end in a zero and may be rewritten.
    std::function<std::uint32_t(char* user, char* file)> install;
};

/// The helper's work: calls the library as `request` says. Empty, and without a call, where that is
/// no request or the code page can't hold it.
std::optional<std::string> AnswerInstAide(std::string_view request, const InstAideLibrary& library);

} // namespace vypx
