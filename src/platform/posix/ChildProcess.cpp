// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/posix/ChildProcess.h"

#include "platform/posix/spawning.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmark::platform {

namespace {

constexpr std::size_t outputLimit = std::size_t{1024} * 1024;

/// The texts as exec() takes them, which does not write to them. Valid as long as they are.
std::vector<char *> pointers(const std::vector<std::string> &texts)
{
    std::vector<char *> result;
    result.reserve(texts.size() + 1);
    for (const std::string &text : texts)
        result.push_back(const_cast<char *>(text.c_str()));
    result.push_back(nullptr);
    return result;
}

/// How the child differs from its parent.
class SpawnSettings
{
public:
    SpawnSettings(int output, int error)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_adddup2(&m_actions, output, STDOUT_FILENO);
        ::posix_spawn_file_actions_adddup2(&m_actions, error, STDERR_FILENO);

        // A group of its own, so that whatever the program starts can be ended with it.
        ::posix_spawnattr_init(&m_attributes);
        constexpr int flags = POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        ::posix_spawnattr_setflags(&m_attributes, static_cast<short>(flags | spawnFlags()));
        sigset_t signals; // the functions below are macros on some systems
        sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigaddset(&signals, SIGPIPE);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signals);
    }
    SpawnSettings(const SpawnSettings &) = delete;
    SpawnSettings &operator=(const SpawnSettings &) = delete;
    ~SpawnSettings()
    {
        ::posix_spawn_file_actions_destroy(&m_actions);
        ::posix_spawnattr_destroy(&m_attributes);
    }

    const posix_spawn_file_actions_t *actions() const { return &m_actions; }
    const posix_spawnattr_t *attributes() const { return &m_attributes; }

private:
    posix_spawn_file_actions_t m_actions;
    posix_spawnattr_t m_attributes;
};

/// Milliseconds for poll(), rounded up so that it does not spin at the end; at most a minute, which is more
/// than any program is waited for.
int remaining(ChildProcess::Clock::time_point deadline)
{
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - ChildProcess::Clock::now()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, 60'000));
}

/// Appends what is there; false at the end of the stream.
bool readSome(const FileDescriptor &stream, std::string &text)
{
    std::array<char, 16384> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init): read() fills it
    const ssize_t count = ::read(stream.number(), buffer.data(), buffer.size());
    if (count > 0)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && errno == EINTR);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string> &command,
                           const std::vector<std::string> &environment)
{
    Pipe output = makePipe();
    Pipe error = makePipe();
    if (!output.writingEnd || !error.writingEnd)
        return;
    std::vector<std::string> allVariables = {"LC_ALL=C"};
    allVariables.insert(allVariables.end(), environment.begin(), environment.end());
    const SpawnSettings settings(output.writingEnd.number(), error.writingEnd.number());
    pid_t id = 0;
    if (::posix_spawn(&id, command.front().c_str(), settings.actions(), settings.attributes(),
                      pointers(command).data(), pointers(allVariables).data()) != 0)
        return;
    m_id = id;
    m_streams[Output] = std::move(output.readingEnd);
    m_streams[Error] = std::move(error.readingEnd);
}

ChildProcess::~ChildProcess()
{
    if (m_id == 0)
        return;
    ::kill(-m_id, SIGKILL);
    while (::waitpid(m_id, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::optional<CommandAnswer> ChildProcess::answer(Clock::time_point deadline)
{
    if (m_id == 0 || !readToEnd(deadline))
        return std::nullopt;
    const auto status = waitStatus(deadline);
    if (!status || !WIFEXITED(*status))
        return std::nullopt;
    return CommandAnswer{.exitStatus = WEXITSTATUS(*status), .output = m_texts[Output] + m_texts[Error]};
}

bool ChildProcess::readToEnd(Clock::time_point deadline)
{
    // A stream that has ended is passed over, as poll() does with a negative number.
    std::array<pollfd, StreamCount> polled = {
        {{m_streams[Output].number(), POLLIN, 0}, {m_streams[Error].number(), POLLIN, 0}}};
    while (polled[Output].fd >= 0 || polled[Error].fd >= 0) {
        const int ready = ::poll(polled.data(), polled.size(), remaining(deadline));
        if (ready == 0 || (ready < 0 && errno != EINTR))
            return false;
        for (std::size_t i = 0; ready > 0 && i < polled.size(); ++i) {
            if (polled[i].fd >= 0 && polled[i].revents != 0 && !readSome(m_streams[i], m_texts[i]))
                polled[i].fd = -1;
        }
        if (m_texts[Output].size() + m_texts[Error].size() > outputLimit)
            return false;
    }
    return true;
}

std::optional<int> ChildProcess::waitStatus(Clock::time_point deadline)
{
    // Nearly always the end of the streams is that of the program; one that only closed them is waited for.
    for (;;) {
        int status = 0;
        const pid_t ended = ::waitpid(m_id, &status, WNOHANG);
        if (ended == m_id) {
            m_id = 0;
            return status;
        }
        if ((ended < 0 && errno != EINTR) || Clock::now() >= deadline)
            return std::nullopt;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace quillmark::platform
