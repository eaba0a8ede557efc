#include "Child.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vypx::test {

namespace {

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> OwnEnvironment()
{
    std::vector<std::string> all;
    for (char** entry = environ; *entry; ++entry)
        all.emplace_back(*entry);
    return all;
}

} // namespace

Child::Child(const std::vector<std::string>& command, const std::vector<std::string>& environment)
{
    std::vector<std::string> words = command, variables = OwnEnvironment();
    variables.insert(variables.end(), environment.begin(), environment.end());
    std::array<int, 2> input{}, output{};
    // No other child inherits these, or an end of file would never come.
    EXPECT_EQ(::pipe2(input.data(), O_CLOEXEC), 0);
    EXPECT_EQ(::pipe2(output.data(), O_CLOEXEC), 0);
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    EXPECT_EQ(posix_spawn(&m_process, words[0].c_str(), &actions, nullptr, Pointers(words).data(),
                  Pointers(variables).data()),
        0)
        << words[0];
    posix_spawn_file_actions_destroy(&actions);
    ::close(input[0]);
    ::close(output[1]);
    m_input = input[1];
    m_output = output[0];
}

Child::~Child()
{
    if (m_process > 0) {
        Kill();
        Wait();
    }
    ::close(m_input);
    ::close(m_output);
}

std::string Child::ReadLine() const
{
    std::string line;
    for (char letter = 0; ::read(m_output, &letter, 1) == 1 && letter != '\n';)
        line += letter;
    return line;
}

void Child::Say(const std::string& line) const
{
    const std::string text = line + "\n";
    EXPECT_EQ(::write(m_input, text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

void Child::Kill() const { ::kill(m_process, SIGKILL); }

int Child::Wait()
{
    int status = 0;
    EXPECT_EQ(::waitpid(m_process, &status, 0), m_process);
    m_process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace vypx::test
