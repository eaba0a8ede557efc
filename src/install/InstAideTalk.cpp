#include "install/InstAideTalk.h"

#include <algorithm>
#include <vector>

namespace vypx {

namespace {

constexpr std::size_t ResultBytes = 4;

std::optional<std::string> Bounded(std::string message)
{
    if (message.size() > MostInstAideBytes)
        return std::nullopt;
    return message;
}

/// The two texts, each with a zero behind it; empty where one holds a zero itself.
std::optional<std::string> WriteTexts(const std::string& user, const std::string& file)
{
    if ((user + file).find('\0') != std::string::npos)
        return std::nullopt;
    return user + '\0' + file + '\0';
}

/// A request, and what stands behind the result in a reply.
std::optional<InstAideRequest> ReadTexts(std::string_view texts)
{
    if (std::count(texts.begin(), texts.end(), '\0') != 2 || texts.back() != '\0')
        return std::nullopt;
    texts.remove_suffix(1);
    const std::size_t end = texts.find('\0');
    return InstAideRequest{
        .user = std::string(texts.substr(0, end)),
        .file = std::string(texts.substr(end + 1)),
    };
}

/// With room for what the library may write there.
std::vector<char> Buffer(const std::string& text)
{
    std::vector<char> buffer(std::max(text.size() + 1, LeastInstAideBuffer));
    std::copy(text.begin(), text.end(), buffer.begin());
    return buffer;
}

/// Ends with the buffer where the library left no zero in it.
std::string TextIn(const std::vector<char>& buffer)
{
    return { buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0') };
}

} // namespace

std::optional<std::string> WriteInstAideRequest(const InstAideRequest& request)
{
    const std::optional<std::string> texts = WriteTexts(request.user, request.file);
    return texts ? Bounded(*texts) : std::nullopt;
}

std::optional<InstAideRequest> ReadInstAideRequest(std::string_view message)
{
    return message.size() > MostInstAideBytes ? std::nullopt : ReadTexts(message);
}

std::optional<std::string> WriteInstAideReply(const InstAideReply& reply)
{
    const std::optional<std::string> texts = WriteTexts(reply.user, reply.file);
    if (!texts)
        return std::nullopt;
    std::string message;
    for (int shift = 24; shift >= 0; shift -= 8)
        message += static_cast<char>(reply.result >> shift & 0xFF);
    return Bounded(message + *texts);
}

std::optional<InstAideReply> ReadInstAideReply(std::string_view message)
{
    if (message.size() < ResultBytes || message.size() > MostInstAideBytes)
        return std::nullopt;
    std::optional<InstAideRequest> texts = ReadTexts(message.substr(ResultBytes));
    if (!texts)
        return std::nullopt;
    InstAideReply reply{ .user = std::move(texts->user), .file = std::move(texts->file) };
    for (const char byte : message.substr(0, ResultBytes))
        reply.result = reply.result << 8 | static_cast<unsigned char>(byte);
    return reply;
}

std::int16_t InstallResultOf(std::uint32_t result) { return static_cast<std::int16_t>(result); }

std::optional<std::string> AnswerInstAide(std::string_view request, const InstAideLibrary& library)
{
    const std::optional<InstAideRequest> asked = ReadInstAideRequest(request);
    if (!asked)
        return std::nullopt;
    const std::optional<std::string> userBytes = library.toCodePage(asked->user);
    const std::optional<std::string> fileBytes = library.toCodePage(asked->file);
    if (!userBytes || !fileBytes)
        return std::nullopt;
    std::vector<char> user = Buffer(*userBytes);
    std::vector<char> file = Buffer(*fileBytes);
    const std::uint32_t result = library.install(user.data(), file.data());
    return WriteInstAideReply({
        .result = result,
        .user = library.fromCodePage(TextIn(user)),
        .file = library.fromCodePage(TextIn(file)),
    });
}

} // namespace vypx
