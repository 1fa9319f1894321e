// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/recorded/RecordedMachine.h"
#include "platform/recorded/recordMachine.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <memory>
#include <string_view>

namespace quillmark::support {

/// A path within the project's source folder.
inline QString sourcePath(const QString &relative)
{
    return QStringLiteral(QUILLMARK_SOURCE_DIR "/") + relative;
}

inline QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    return file.readAll();
}

/// The names of the recordings in machines/, without ".json".
inline QStringList recordingNames()
{
    auto names = QDir(sourcePath(QStringLiteral("machines")))
                     .entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (auto &name : names)
        name.chop(5);
    return names;
}

inline QByteArray recordingText(const QString &name)
{
    return contents(sourcePath(QStringLiteral("machines/%1.json").arg(name)));
}

inline std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// The machine of a recording that must be a good one.
inline std::unique_ptr<platform::Machine> machineFrom(const QByteArray &recording)
{
    auto machine = platform::parseRecording(view(recording), "recording");
    if (!machine)
        qFatal("%s", machine.error().text.c_str());
    return std::move(*machine);
}

/// The object with the members of `changes` put over its own; null takes a member away (RFC 7396).
inline QJsonObject merged(QJsonObject object, const QJsonObject &changes)
{
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change->isNull())
            object.remove(change.key());
        else if (change->isObject() && object.value(change.key()).isObject())
            object[change.key()] = merged(object.value(change.key()).toObject(), change->toObject());
        else
            object[change.key()] = *change;
    }
    return object;
}

/// A small Apple-silicon Mac with the changes, a JSON object, merged over it.
inline QByteArray changedRecording(const QByteArray &changes = "{}")
{
    constexpr auto base = R"({
        "format": "quillmark-machine-1",
        "operatingSystem": {"name": "macOS", "major": 15, "minor": 0, "patch": 0},
        "hostName": "Test Mac",
        "physicalMemory": 17179869184,
        "systemUptime": 3723,
        "sysctl": {
            "hw.model": "Mac15,3", "kern.osversion": "24A335", "machdep.cpu.brand_string": "Apple M3",
            "hw.optional.arm64": 1, "hw.physicalcpu": 8, "hw.logicalcpu": 8, "hw.nperflevels": 2,
            "hw.perflevel0.physicalcpu": 4, "hw.perflevel1.physicalcpu": 4,
            "hw.optional.arm.FEAT_SME": 0, "hw.optional.arm.FEAT_BF16": 1
        },
        "graphics": {"defaultDevice": 0, "devices": [
            {"name": "Apple M3", "hasUnifiedMemory": true, "recommendedMaxWorkingSetSize": 11453251584,
             "supportsRaytracing": true, "families": [1001, 1009, 5001]}]},
        "volume": {"name": "Macintosh HD", "total": 494384795648, "available": 200000000000}
    })";
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(changes, &error);
    if (!document.isObject())
        qFatal("%s: %s", changes.constData(), qPrintable(error.errorString()));
    return QJsonDocument(merged(QJsonDocument::fromJson(base).object(), document.object())).toJson();
}

inline std::unique_ptr<platform::Machine> changedMachine(const QByteArray &changes = "{}")
{
    return machineFrom(changedRecording(changes));
}

/// The changes that make of it a machine with Linux, and these members.
inline QByteArray onLinux(const QByteArray &members)
{
    return R"({"operatingSystem": {"name": "Debian GNU/Linux"}, )" + members + '}';
}

/// The machine as it comes back from a recording of it.
inline std::unique_ptr<platform::Machine>
recordedAgain(const platform::Machine &machine, platform::RecordedNames names = platform::RecordedNames::Keep)
{
    return machineFrom(QByteArray::fromStdString(recordMachine(machine, names)));
}

} // namespace quillmark::support
