#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace vypx::test {

/// A program that runs beside the test. It is killed with this object, if it still runs.
class Child {
public:
    /// `command` is the program and its arguments, `environment` what is added ("A=1").
    explicit Child(
        const std::vector<std::string>& command, const std::vector<std::string>& environment = {});
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child();

    /// The next line of its standard output without the line's end; empty at the output's end.
    std::string ReadLine() const;
    /// A line to its standard input.
    void Say(const std::string& line) const;
    void Kill() const;
    /// Waits for its end and gives its exit code; -1 when it was killed.
    int Wait();

private:
    pid_t m_process = -1;
    int m_input = -1, m_output = -1;
};

} // namespace vypx::test
