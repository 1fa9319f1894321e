// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxMedia.h"

#include "platform/posix/ChildProcess.h"
#include "platform/linux/TextFields.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <string_view>

#include <unistd.h>

namespace quillmark::platform {

namespace {

constexpr std::string_view program = "/usr/bin/vainfo";
constexpr std::string_view folder = "/sys/class/drm/";
constexpr std::string_view prefix = "renderD";
constexpr std::chrono::seconds timeLimit(2);

bool isAccessible(const Files &files, const std::string &path, int mode)
{
    return ::access(files.pathOf(path).c_str(), mode) == 0;
}

/// The numbers of the render nodes, ascending.
std::vector<unsigned> renderNodes(const Files &files)
{
    std::vector<unsigned> nodes;
    for (const std::string &name : files.names(folder, prefix)) {
        if (const auto number = parseNumber<unsigned>(std::string_view(name).substr(prefix.size())))
            nodes.push_back(*number);
    }
    std::ranges::sort(nodes);
    return nodes;
}

/// The first node of a device that may be used and is awake, as the path of its device file.
std::expected<std::string, NoAnswer> awakeNode(const Files &files, const std::vector<unsigned> &nodes)
{
    NoAnswer reason = NoAnswer::Failed;
    for (const unsigned number : nodes) {
        const std::string name = std::string(prefix) + std::to_string(number);
        std::string node = "/dev/dri/" + name;
        // Opening a node wakes its device; asking for permission does not.
        if (!isAccessible(files, node, R_OK | W_OK))
            continue;
        const auto status = files.value(std::string(folder) + name + "/device/power/runtime_status");
        if (status == "active" || status == "unsupported")
            return node;
        if (status == "suspended" || status == "suspending" || status == "resuming")
            reason = NoAnswer::Asleep;
    }
    return std::unexpected(reason);
}

} // namespace

LinuxMedia::LinuxMedia(const Files &files)
    : m_files(files)
{}

std::expected<CommandAnswer, NoAnswer> LinuxMedia::vainfo() const
{
    const std::vector<unsigned> nodes = renderNodes(m_files);
    if (nodes.empty())
        return std::unexpected(m_files.exists("/sys/class") ? NoAnswer::NoDevice : NoAnswer::Failed);
    if (!isAccessible(m_files, std::string(program), X_OK))
        return std::unexpected(NoAnswer::NotInstalled);
    const auto node = awakeNode(m_files, nodes);
    if (!node)
        return std::unexpected(node.error());
    const auto deadline = ChildProcess::Clock::now() + timeLimit;
    // Mesa's drivers would leave a cache of shaders behind in the home folder.
    ChildProcess child({m_files.pathOf(program), "--display", "drm", "--device", m_files.pathOf(*node)},
                       {"MESA_SHADER_CACHE_DISABLE=true"});
    auto answer = child.answer(deadline);
    if (!answer)
        return std::unexpected(NoAnswer::Failed);
    return std::move(*answer);
}

} // namespace quillmark::platform
