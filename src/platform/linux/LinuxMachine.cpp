// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxMachine.h"

#include "platform/linux/Files.h"
#include "platform/linux/LinuxAbsent.h"
#include "platform/linux/LinuxCapture.h"
#include "platform/linux/LinuxCounters.h"
#include "platform/linux/LinuxDisplays.h"
#include "platform/linux/LinuxGraphics.h"
#include "platform/linux/LinuxIntelligence.h"
#include "platform/linux/LinuxKernelValues.h"
#include "platform/linux/LinuxMedia.h"
#include "platform/linux/LinuxNetwork.h"
#include "platform/linux/LinuxPower.h"
#include "platform/linux/LinuxProcessor.h"
#include "platform/linux/LinuxSecurity.h"
#include "platform/linux/LinuxSystemInformation.h"
#include "platform/linux/LinuxVolumes.h"
#include "platform/linux/MountTable.h"

namespace quillmark::platform {

namespace {

class LinuxMachine final : public Machine
{
public:
    explicit LinuxMachine(const Files &files)
        : m_processor(files)
        , m_mountTable(files)
        , m_kernelValues(files, m_processor)
        , m_system(files, m_processor)
        , m_counters(files)
        , m_power(files)
        , m_graphics(files)
        , m_intelligence(files)
        , m_displays(files)
        , m_media(files)
        , m_capture(files)
        , m_volumes(files, m_mountTable)
        , m_network(files)
        , m_security(files, m_mountTable)
    {}

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
    LinuxProcessor m_processor;
    MountTable m_mountTable;
    LinuxKernelValues m_kernelValues;
    LinuxSystemInformation m_system;
    LinuxCounters m_counters;
    LinuxPower m_power;
    LinuxRegistry m_registry;
    LinuxGraphics m_graphics;
    LinuxIntelligence m_intelligence;
    LinuxDisplays m_displays;
    LinuxMedia m_media;
    LinuxCapture m_capture;
    LinuxVolumes m_volumes;
    LinuxNetwork m_network;
    LinuxSecurity m_security;
};

} // namespace

std::unique_ptr<Machine> linuxMachine(const std::filesystem::path &root)
{
    return std::make_unique<LinuxMachine>(Files(root));
}

std::unique_ptr<Machine> thisMachine()
{
    return linuxMachine();
}

} // namespace quillmark::platform
