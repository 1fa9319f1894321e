// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

namespace quillmark::support {

/// Another machine with some of its subjects exchanged. Owns neither.
class ChangedMachine final : public platform::Machine
{
public:
    explicit ChangedMachine(const platform::Machine &machine)
        : m_machine(machine)
    {}

    const platform::KernelValues *otherKernelValues = nullptr;
    const platform::SystemInformation *otherSystem = nullptr;
    const platform::Counters *otherCounters = nullptr;
    const platform::Registry *otherRegistry = nullptr;
    const platform::Network *otherNetwork = nullptr;
    const platform::Power *otherPower = nullptr;

    const platform::KernelValues &kernelValues() const override
    {
        return otherKernelValues ? *otherKernelValues : m_machine.kernelValues();
    }
    const platform::SystemInformation &system() const override
    {
        return otherSystem ? *otherSystem : m_machine.system();
    }
    const platform::Counters &counters() const override
    {
        return otherCounters ? *otherCounters : m_machine.counters();
    }
    const platform::Power &power() const override { return otherPower ? *otherPower : m_machine.power(); }
    const platform::Registry &registry() const override
    {
        return otherRegistry ? *otherRegistry : m_machine.registry();
    }
    const platform::Graphics &graphics() const override { return m_machine.graphics(); }
    const platform::Intelligence &intelligence() const override { return m_machine.intelligence(); }
    const platform::Displays &displays() const override { return m_machine.displays(); }
    const platform::Media &media() const override { return m_machine.media(); }
    const platform::Capture &capture() const override { return m_machine.capture(); }
    const platform::Volumes &volumes() const override { return m_machine.volumes(); }
    const platform::Network &network() const override
    {
        return otherNetwork ? *otherNetwork : m_machine.network();
    }
    const platform::Security &security() const override { return m_machine.security(); }

private:
    const platform::Machine &m_machine;
};

} // namespace quillmark::support
