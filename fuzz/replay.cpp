// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// What stands in for libFuzzer where there is none: FUZZER FOLDER [CHANGES] goes through the inputs in the
// folder, and then through so many random changes of them, the same ones at every run.

#include "fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

class Changes
{
public:
    explicit Changes(const std::vector<std::string> &inputs)
        : m_inputs(inputs)
    {}

    std::string next()
    {
        auto text = m_inputs[below(m_inputs.size())];
        for (auto count = 1 + below(3); count > 0; --count)
            change(text);
        return text;
    }

private:
    std::size_t below(std::size_t limit) { return limit ? m_random() % limit : 0; }

    std::string piece(const std::string &text)
    {
        const auto begin = below(text.size());
        return text.substr(begin, 1 + below(std::min<std::size_t>(64, text.size() - begin)));
    }

    void change(std::string &text)
    {
        static const std::vector<std::string> oddities = {"",      "0",    "-1",   "18446744073709551616",
                                                          "1e999", "nan",  "null", "\"\"",
                                                          "[]",    "{}",   "\"",   "\\u0000",
                                                          "\n",    "\xff", "\xc3"};
        const auto place = below(text.size());
        switch (below(12)) {
        case 0:
            if (!text.empty())
                text[place] = static_cast<char>(below(256));
            break;
        case 1:
            text.erase(place, 1 + below(64));
            break;
        case 2:
            text.insert(place, piece(m_inputs[below(m_inputs.size())]));
            break;
        case 3:
            text.resize(place);
            break;
        default: { // a number or a word becomes another: most texts are still well-formed after that
            const char *ends = " \n,:[]{}<>=";
            const auto begin = text.find_last_of(ends, place) + 1;
            const auto end = std::min(text.find_first_of(ends, begin), text.size());
            text.replace(begin, end - begin, oddities[below(oddities.size())]);
            break;
        }
        }
    }

    const std::vector<std::string> &m_inputs;
    std::mt19937_64 m_random{1};
};

void run(const std::string &input)
{
    // A copy of its exact size, so that a sanitizer sees a read beyond its end.
    const std::vector<std::uint8_t> bytes(input.begin(), input.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const auto changes = argumentCount > 2 ? std::strtol(arguments[1], nullptr, 10) : -1;
    if (changes < 0) {
        std::fprintf(stderr, "usage: %s CHANGES FOLDER...\n", arguments[0]);
        return 2;
    }
    std::vector<std::filesystem::path> files;
    for (int i = 2; i < argumentCount; ++i) {
        for (const auto &entry : std::filesystem::directory_iterator(arguments[i]))
            files.push_back(entry.path());
    }
    std::ranges::sort(files);
    std::vector<std::string> inputs;
    for (const auto &path : files) {
        std::ifstream file(path, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        std::printf("%s\n", path.c_str());
        std::fflush(stdout);
        run(inputs.back());
    }
    quillmark::fuzzing::require(!inputs.empty(), "there are inputs");

    const char *kept = std::getenv("KEEP");
    Changes changed(inputs);
    for (long count = 0; count < changes; ++count) {
        const auto input = changed.next();
        if (kept)
            std::ofstream(kept, std::ios::binary) << input;
        run(input);
    }
    std::printf("%zu inputs, %ld changes of them\n", inputs.size(), changes);
}
