// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacKernelValues.h"
#include "platform/macos/hostStatistics.h"
#include "platform/macos/interfaces.h"
#include "platform/macos/mountedVolumes.h"
#include "platform/posix/ChildProcess.h"

using namespace quillmark::platform;

// Never run: it holds what is linked.
int main()
{
    const HostPort host;
    const bool isTold = processorTicks(host) && virtualMemory(host) && hostPageSize(host) &&
                        MacKernelValues().read("hw.model") && mountedVolumes() &&
                        !readInterfaces(InterfaceEntries::All).empty();
    return isTold && ChildProcess({"/usr/bin/true"}).answer({}) ? 0 : 1;
}
