// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/recordMachine.h"

#include "platform/recorded/Subjects.h"

namespace quillmark::platform {

std::string recordMachine(const Machine &machine, RecordedNames names)
{
    json::Writer writer;
    writer.beginObject();
    writer.member("format", "quillmark-machine-1");
    recorded::write(writer, machine.system(), names);
    recorded::write(writer, machine.kernelValues());
    recorded::write(writer, machine.counters());
    recorded::write(writer, machine.power());
    recorded::write(writer, machine.registry());
    recorded::write(writer, machine.graphics());
    recorded::write(writer, machine.intelligence());
    recorded::write(writer, machine.displays(), names);
    recorded::write(writer, machine.media());
    recorded::write(writer, machine.capture(), names);
    recorded::write(writer, machine.volumes(), names);
    recorded::write(writer, machine.network(), names);
    recorded::write(writer, machine.security());
    writer.endObject();
    return writer.take() + '\n';
}

} // namespace quillmark::platform
