// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "kernel.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <arpa/inet.h>
#include <mach/mach.h>
#include <sys/sysctl.h>

namespace standin {

std::map<std::string, std::string> kernelValues;
int kernelValueGrows = 0;
std::vector<std::uint32_t> ticks;
bool ticksAreTold = true;
std::vector<std::int32_t> memoryWords;
bool memoryIsTold = true;
std::uint64_t kernelPage = 16384;
long hostReferences = 0;
long mappedBytes = 0;
long interfaceLists = 0;
std::vector<ifaddrs> interfaces;
bool interfacesAreTold = true;
std::vector<struct statfs> mounts;
int mountFlags = 0;

} // namespace standin

using namespace standin;

extern "C" {

mach_port_t mach_task_self_ = 77;
vm_size_t vm_kernel_page_size = 4096;

int sysctlbyname(const char *name, void *value, std::size_t *size, void *, std::size_t)
{
    const auto found = kernelValues.find(name);
    if (found == kernelValues.end()) {
        errno = ENOENT;
        return -1;
    }
    if (value && kernelValueGrows > 0) {
        --kernelValueGrows;
        found->second += '+';
    }
    if (value && *size < found->second.size()) {
        errno = ENOMEM;
        return -1;
    }
    *size = found->second.size();
    if (value)
        std::memcpy(value, found->second.data(), *size);
    return 0;
}

mach_port_t mach_host_self()
{
    ++hostReferences;
    return 55;
}
kern_return_t mach_port_deallocate(ipc_space_t task, mach_port_name_t name)
{
    hostReferences -= task == mach_task_self_ && name == 55;
    return KERN_SUCCESS;
}
kern_return_t host_processor_info(host_t, processor_flavor_t flavor, natural_t *cores,
                                  processor_info_array_t *words, mach_msg_type_number_t *count)
{
    if (!ticksAreTold || flavor != PROCESSOR_CPU_LOAD_INFO)
        return KERN_FAILURE;
    *count = static_cast<mach_msg_type_number_t>(ticks.size());
    *cores = *count / 4;
    *words = static_cast<integer_t *>(std::malloc(ticks.size() * 4 + 4));
    std::memcpy(*words, ticks.data(), ticks.size() * 4);
    mappedBytes += static_cast<long>(ticks.size() * 4);
    return KERN_SUCCESS;
}
kern_return_t vm_deallocate(vm_map_t, vm_address_t address, vm_size_t size)
{
    mappedBytes -= static_cast<long>(size);
    std::free(reinterpret_cast<void *>(address));
    return KERN_SUCCESS;
}
kern_return_t host_statistics64(host_t, host_flavor_t flavor, host_info64_t words,
                                mach_msg_type_number_t *count)
{
    if (!memoryIsTold || flavor != HOST_VM_INFO64)
        return KERN_FAILURE;
    *count = std::min(*count, static_cast<mach_msg_type_number_t>(memoryWords.size()));
    std::copy_n(memoryWords.begin(), *count, words);
    return KERN_SUCCESS;
}
kern_return_t host_page_size(host_t, vm_size_t *size)
{
    *size = kernelPage;
    return kernelPage == 0 ? KERN_FAILURE : KERN_SUCCESS;
}

int getifaddrs(ifaddrs **list)
{
    if (!interfacesAreTold)
        return -1;
    for (std::size_t i = 0; i + 1 < interfaces.size(); ++i)
        interfaces[i].ifa_next = &interfaces[i + 1];
    *list = interfaces.data();
    interfaceLists += !interfaces.empty();
    return 0;
}
void freeifaddrs(ifaddrs *)
{
    --interfaceLists;
}

// Linux's own knows other numbers for the families.
const char *inet_ntop(int family, const void *address, char *text, socklen_t size)
{
    const auto *bytes = static_cast<const unsigned char *>(address);
    std::string written;
    for (int i = 0; i < (family == AF_INET ? 4 : 16); ++i)
        written += (i > 0 ? "." : "") + std::to_string(bytes[i]);
    if ((family != AF_INET && family != AF_INET6) || written.size() >= size)
        return nullptr;
    return std::strcpy(text, written.c_str());
}

int getfsstat(struct statfs *list, int size, int flags)
{
    mountFlags = flags;
    const auto count = static_cast<int>(mounts.size());
    if (!list)
        return count;
    const int fitting = std::min(count, size / static_cast<int>(sizeof *list));
    std::copy_n(mounts.begin(), fitting, list);
    return fitting;
}
}
