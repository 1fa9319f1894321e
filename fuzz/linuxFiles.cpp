// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// Whatever the kernel and the system write into their files: a tree of them is made from the input, and
// inspected. The input is text, in which a line that begins with a slash begins a file or is a link:
//
//     /proc/cpuinfo
//     content up to the next such line
//     /sys/class/net/eth0 -> ../../devices/eth0

#include "fuzzing.h"
#include "inspectAll.h"
#include "platform/linux/LinuxMachine.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <system_error>

using namespace quillmark;

namespace {

namespace fs = std::filesystem;

/// A folder of this process alone, made anew for every input.
class Tree
{
public:
    Tree()
        : m_root((folder() / "quillmark-fuzz-XXXXXX").string())
    {
        fuzzing::require(mkdtemp(m_root.data()) != nullptr, "there is a temporary folder");
    }
    ~Tree() { fs::remove_all(m_root); }
    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;

    const std::string &root() const { return m_root; }

    /// Nothing is written through a link: folders and files come first, and a link never takes the place of
    /// one.
    void fill(std::string_view text)
    {
        std::map<std::string, std::string> files, links;
        std::string *content = nullptr;
        while (!text.empty()) {
            const auto line = text.substr(0, text.find('\n'));
            text.remove_prefix(std::min(text.size(), line.size() + 1));
            const auto arrow = line.find(" -> "), colon = line.find(": ");
            if (!line.starts_with('/')) {
                if (content)
                    content->append(line).push_back('\n');
            } else if (arrow < colon) {
                links[std::string(line.substr(0, arrow))] = line.substr(arrow + 4);
            } else if (colon != line.npos) {
                files[std::string(line.substr(0, colon))].append(line.substr(colon + 2)).push_back('\n');
            } else {
                content = &files[std::string(line.substr(0, line.find(':')))];
            }
        }
        std::error_code ignored; // what cannot be made is not there
        for (const auto &[path, target] : links)
            makeFolder(path);
        for (const auto &[path, bytes] : files) {
            if (makeFolder(path))
                std::ofstream(m_root + path) << bytes;
        }
        for (const auto &[path, target] : links) {
            if (isInside(path))
                fs::create_symlink(target, m_root + path, ignored);
        }
    }

private:
    /// In memory, where there is such a place.
    static fs::path folder()
    {
        std::error_code ignored;
        return fs::is_directory("/dev/shm", ignored) ? "/dev/shm" : fs::temp_directory_path();
    }

    static bool isInside(const std::string &path)
    {
        return path.size() < 200 && path.find("..") == path.npos && path.find('\0') == path.npos;
    }

    bool makeFolder(const std::string &path) const
    {
        std::error_code failure;
        if (isInside(path))
            fs::create_directories(fs::path(m_root + path).parent_path(), failure);
        return isInside(path) && !failure;
    }

    std::string m_root;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Tree tree;
    tree.fill(std::string_view(reinterpret_cast<const char *>(data), size));
    fuzzing::inspectAll(*platform::linuxMachine(tree.root()));
    return 0;
}
