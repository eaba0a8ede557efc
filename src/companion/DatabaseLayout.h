#pragma once

#include <cstddef>
#include <string>

namespace vypx {

/// Where the bodies of a database's resources stand, one after the other, and the refusal of what
/// is beyond the limits of companion/IconsetLimits.h. Nothing is written by it.
class DatabaseLayout {
public:
    /// `path` is what a failure names. Throws CompileFailure for too many resources.
    DatabaseLayout(std::size_t resources, std::string path);

    /// Offset of the next body, an even one. Throws CompileFailure.
    std::size_t Begin();
    /// The body that began there has that many bytes. `key` is its resource's. Throws
    /// CompileFailure.
    void End(const std::string& key, std::size_t bytes);

private:
    std::string m_path;
    std::size_t m_offset;
};

} // namespace vypx
