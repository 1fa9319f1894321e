// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Capture.h"
#include "platform/Counters.h"
#include "platform/Displays.h"
#include "platform/Graphics.h"
#include "platform/Intelligence.h"
#include "platform/KernelValues.h"
#include "platform/Media.h"
#include "platform/Network.h"
#include "platform/Power.h"
#include "platform/Registry.h"
#include "platform/Security.h"
#include "platform/SystemInformation.h"
#include "platform/Volumes.h"

#include <memory>

namespace quillmark::platform {

/// The operating system as this program sees it: every question that it may ask of one, by subject.
///
/// Answers are raw: what the system's own interface returned, before any conclusion and without any wording.
/// What is not there is absent, never a stand-in value. Every call may be made from any thread and leaves no
/// trace: it does not prompt, ask for a password, wake sleeping hardware, or send a packet. What may block
/// has a time limit.
class Machine
{
public:
    virtual ~Machine() = default;

    virtual const KernelValues &kernelValues() const = 0;
    virtual const SystemInformation &system() const = 0;
    virtual const Counters &counters() const = 0;
    virtual const Power &power() const = 0;
    virtual const Registry &registry() const = 0;
    virtual const Graphics &graphics() const = 0;
    virtual const Intelligence &intelligence() const = 0;
    virtual const Displays &displays() const = 0;
    virtual const Media &media() const = 0;
    virtual const Capture &capture() const = 0;
    virtual const Volumes &volumes() const = 0;
    virtual const Network &network() const = 0;
    virtual const Security &security() const = 0;
};

/// The machine that this program runs on. Each system's family of answers defines it; the build chooses one.
std::unique_ptr<Machine> thisMachine();

} // namespace quillmark::platform
