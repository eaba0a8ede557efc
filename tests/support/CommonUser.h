#pragma once

#ifndef _WIN32

#include <gtest/gtest.h>
#include <unistd.h>

namespace vypx::test {

/// Gives up the superuser's rights, if this process has them, as long as it lives.
class CommonUser {
public:
    CommonUser()
    {
        constexpr uid_t Nobody = 65534;
        EXPECT_TRUE(m_before != 0 || ::seteuid(Nobody) == 0);
    }
    ~CommonUser() { EXPECT_EQ(::seteuid(m_before), 0); }

private:
    const uid_t m_before = ::geteuid();
};

} // namespace vypx::test

#endif
