// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/Machine.h"
#include "platform/macos/MacCapture.h"
#include "platform/macos/MacCounters.h"
#include "platform/macos/MacDisplays.h"
#include "platform/macos/MacGraphics.h"
#include "platform/macos/MacIntelligence.h"
#include "platform/macos/MacKernelValues.h"
#include "platform/macos/MacMedia.h"
#include "platform/macos/MacNetwork.h"
#include "platform/macos/MacPower.h"
#include "platform/macos/MacRegistry.h"
#include "platform/macos/MacSecurity.h"
#include "platform/macos/MacSystemInformation.h"
#include "platform/macos/MacVolumes.h"

namespace quillmark::platform {

namespace {

class MacMachine final : public Machine
{
public:
    const KernelValues &kernelValues() const override { return m_kernelValues; }
    const SystemInformation &system() const override { return m_system; }
    const Counters &counters() const override { return m_counters; }
    const Power &power() const override { return m_power; }
    const Registry &registry() const override { return m_registry; }
    const Graphics &graphics() const override { return m_graphics; }
    const Intelligence &intelligence() const override { return m_intelligence; }
    const Displays &displays() const override { return m_displays; }
    const Media &media() const override { return m_media; }
    const Capture &capture() const override { return m_capture; }
    const Volumes &volumes() const override { return m_volumes; }
    const Network &network() const override { return m_network; }
    const Security &security() const override { return m_security; }

private:
    MacKernelValues m_kernelValues;
    MacSystemInformation m_system;
    MacCounters m_counters;
    MacPower m_power;
    MacRegistry m_registry;
    MacGraphics m_graphics;
    MacIntelligence m_intelligence;
    MacDisplays m_displays;
    MacMedia m_media;
    MacCapture m_capture;
    MacVolumes m_volumes;
    MacNetwork m_network;
    MacSecurity m_security;
};

} // namespace

std::unique_ptr<Machine> thisMachine()
{
    return std::make_unique<MacMachine>();
}

} // namespace quillmark::platform
