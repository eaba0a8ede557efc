#include "install/InstAideWay.h"

#include "companion/Latin1.h"
#include "install/InstAideTalk.h"
#include "install/InstallResult.h"
#include "platform/Platform.h"

namespace vypx {

namespace {

class InstAideWay : public InstallWay {
public:
    explicit InstAideWay(InstAideHelper helper)
        : m_helper(std::move(helper))
    {
    }

    bool UsesUser() const override { return true; }

    std::int16_t Install(std::string& user, std::string& file) override
    {
        // The library is older than the other separator.
        const std::string path = platform::Utf8Path(platform::NativePath(file).make_preferred());
        const std::optional<std::string> request =
            WriteInstAideRequest({ .user = Utf8FromLatin1(user), .file = path });
        if (!request)
            return InstallResult::Unknown;
        const std::optional<InstAideReply> reply = ReadInstAideReply(m_helper(*request));
        if (!reply)
            return InstallResult::Unknown;
        const std::string newUser = Latin1FromUtf8(reply->user);
        if (Utf8FromLatin1(newUser) == reply->user) // else it is a name that no setting can hold
            user = newUser;
        file = reply->file;
        return InstallResultOf(reply->result);
    }

    std::string Description() const override { return "the Palm Install Tool (InstAide.dll)"; }

    std::string WhatNext(const std::string& user, const std::string&) const override
    {
        return "It waits in the Palm Install Tool for the user " + Utf8FromLatin1(user)
            + ". See that HotSync Manager is running, then press HotSync on the handheld.";
    }

private:
    InstAideHelper m_helper;
};

} // namespace

std::unique_ptr<InstallWay> MakeInstAideWay(InstAideHelper helper)
{
    return std::make_unique<InstAideWay>(std::move(helper));
}

} // namespace vypx
