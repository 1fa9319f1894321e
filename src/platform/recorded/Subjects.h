// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "json/Writer.h"
#include "platform/Machine.h"
#include "platform/recorded/Members.h"
#include "platform/recorded/recordMachine.h"

#include <memory>

// Each subject of a recorded machine, in a source file of its own: how its members are read, what it answers,
// and how another machine's answers are written down as those members.

namespace quillmark::platform::recorded {

std::unique_ptr<KernelValues> readKernelValues(const Members &recording);
std::unique_ptr<SystemInformation> readSystemInformation(const Members &recording);
std::unique_ptr<Counters> readCounters(const Members &recording);
std::unique_ptr<Power> readPower(const Members &recording);
std::unique_ptr<Registry> readRegistry(const Members &recording);
std::unique_ptr<Graphics> readGraphics(const Members &recording);
std::unique_ptr<Intelligence> readIntelligence(const Members &recording);
std::unique_ptr<Displays> readDisplays(const Members &recording);
std::unique_ptr<Media> readMedia(const Members &recording);
std::unique_ptr<Capture> readCapture(const Members &recording);
std::unique_ptr<Volumes> readVolumes(const Members &recording);
std::unique_ptr<Network> readNetwork(const Members &recording);
std::unique_ptr<Security> readSecurity(const Members &recording);

void write(json::Writer &writer, const KernelValues &kernelValues);
void write(json::Writer &writer, const SystemInformation &system, RecordedNames names);
void write(json::Writer &writer, const Counters &counters);
void write(json::Writer &writer, const Power &power);
void write(json::Writer &writer, const Registry &registry);
void write(json::Writer &writer, const Graphics &graphics);
void write(json::Writer &writer, const Intelligence &intelligence);
void write(json::Writer &writer, const Displays &displays, RecordedNames names);
void write(json::Writer &writer, const Media &media);
void write(json::Writer &writer, const Capture &capture, RecordedNames names);
void write(json::Writer &writer, const Volumes &volumes, RecordedNames names);
void write(json::Writer &writer, const Network &network, RecordedNames names);
void write(json::Writer &writer, const Security &security);

/// A four-character code as text: "hvc1". None when it has characters that no recording can hold.
std::optional<std::string> textFromCode(std::uint32_t code);

/// The value of one member of a "sysctl" object; none when it is absent, null or at fault.
std::optional<Bytes> readKernelValue(const Members &values, std::string_view name);

/// The entries of an "interfaces" member; empty when it is absent.
std::vector<InterfaceEntry> readInterfaces(const Members &object);

/// A dictionary without what must not be recorded: serial numbers, hardware addresses, identifiers.
PropertyMap withoutIdentifiers(const PropertyMap &properties);

} // namespace quillmark::platform::recorded
