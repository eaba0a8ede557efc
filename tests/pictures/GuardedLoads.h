#pragma once

#include "companion/ByteView.h"

#include <cstdint>
#include <functional>
#include <string>

namespace vypx::test {

/// Loads files in processes of their own, so that a crash, a hang or a thirst for memory is told by
/// the file's number and ends nothing else. A load may take 5 seconds of the processor's time, and
/// the process 1 GB, or 600 MB as long as no file has claimed 25 million pixels. This process must
/// not have loaded pictures itself: the readers' threads don't come along.
class GuardedLoads {
public:
    /// `file` gives the bytes of each of `count` files. Fails the test for each bad load.
    void Run(int count, const std::function<Bytes(int number)>& file);

    /// How many could be loaded, and how many were refused with words.
    int Loaded() const { return m_loaded; }
    int Refused() const { return m_refused; }

private:
    /// Loads files from `first` on and gives the number of the first one that another process is to
    /// load.
    int RunSome(int first, int count, const std::function<Bytes(int number)>& file);

    int m_loaded = 0, m_refused = 0;
};

} // namespace vypx::test
