#pragma once

#include "companion/ByteView.h"

#include <string>
#include <string_view>

namespace vypx::test {

/// Bytes from hexadecimal digits; blanks and line ends between them don't count.
Bytes Hex(std::string_view digits);

/// The whole file; fails the test when it can't be read.
Bytes ReadBytes(const std::string& path);
std::string ReadText(const std::string& path);
/// The same of a text that the program made anew: the system's ends of lines come as "\n".
std::string ReadSystemText(const std::string& path);

void WriteBytes(const std::string& path, const Bytes& bytes);
void WriteText(const std::string& path, std::string_view text);

/// The files of a folder that a writer has not given their name yet: how many; takes them away.
std::size_t PassingFiles(const std::string& folder);
void RemovePassingFiles(const std::string& folder);

/// Path of a file of tests/data.
std::string TestData(const std::string& name);

} // namespace vypx::test
