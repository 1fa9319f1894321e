// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace quillmark::history {

/// Makes one QString of all like texts: a history says the same again and again, so that most of its texts
/// cost neither memory nor conversion.
class TextPool
{
public:
    /// Keeps views of the texts that stand in `input`, which must outlive the pool.
    explicit TextPool(std::string_view input);

    QString text(std::string_view utf8);

private:
    struct Entry
    {
        std::string_view utf8; ///< without data: nothing is here yet
        QString text;
    };

    void grow();
    Entry &placeOf(std::string_view utf8);

    std::string_view m_input;
    std::vector<Entry> m_table; ///< open addressing; its size is a power of two, and half of it stays free
    std::size_t m_count = 0;
};

} // namespace quillmark::history
