// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

// What the C++ library of a Mac calls in the end, and the ones of Linux, which it is linked with, have
// otherwise.

#include <cstdlib>
#include <version>

_LIBCPP_BEGIN_NAMESPACE_STD
[[noreturn]] void __libcpp_verbose_abort(const char *, ...)
{
    std::abort();
}
_LIBCPP_END_NAMESPACE_STD

extern "C" {

int *__error()
{
    static int number = 0;
    return &number;
}

[[noreturn]] void _ZNSt9bad_allocC1Ev(void *) // std::bad_alloc::bad_alloc()
{
    std::abort();
}
[[noreturn]] void _ZNSt20bad_array_new_lengthC1Ev(void *) // std::bad_array_new_length::bad_array_new_length()
{
    std::abort();
}
}
