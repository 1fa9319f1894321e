// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/macos/MacKernelValues.h"
#include "platform/macos/hostStatistics.h"
#include "platform/macos/interfaces.h"
#include "platform/macos/mountedVolumes.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/FileLock.h"
#include "platform/posix/writeFile.h"

using namespace quillmark::platform;

// Never run: it holds what is linked.
int main()
{
    const HostPort host;
    const bool isTold = processorTicks(host) && virtualMemory(host) && hostPageSize(host) &&
                        MacKernelValues().read("hw.model") && mountedVolumes() &&
                        !readInterfaces(InterfaceEntries::All).empty();
    FileLock lock;
    const bool isKept = makeFolder("folder", 0700) && lock.take("folder/lock", {}) &&
                        writeFile("folder/file", {}, Existing::Keep);
    return isTold && isKept && ChildProcess({"/usr/bin/true"}).answer({}) ? 0 : 1;
}
