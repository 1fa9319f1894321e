// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/recorded/Subjects.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillmark::platform::recorded {

namespace {

constexpr std::array<std::string_view, 3> families = {"link", "ipv4", "ipv6"};
constexpr std::array<std::string_view, 4> statuses = {"invalid", "satisfied", "unsatisfied", "satisfiable"};
constexpr std::array<std::string_view, 5> interfaceTypes = {"other", "wifi", "cellular", "wired", "loopback"};

/// The recorded path never changes: it is reported at once, and that was all.
class RecordedPathWatch final : public PathWatch
{
};

struct Facts
{
    std::vector<InterfaceEntry> interfaces;
    std::optional<NetworkPath> path;
    std::optional<WifiReading> wifi;
    std::vector<LinkReading> ethernetLinks;
    std::optional<BluetoothReading> bluetooth;
};

class RecordedNetwork final : public Network
{
public:
    explicit RecordedNetwork(Facts facts)
        : m_facts(std::move(facts))
    {}

    std::vector<InterfaceEntry> interfaces() const override { return m_facts.interfaces; }
    std::optional<NetworkPath> currentPath() const override { return m_facts.path; }
    std::optional<WifiReading> wifi() const override { return m_facts.wifi; }
    std::vector<LinkReading> ethernetLinks() const override { return m_facts.ethernetLinks; }
    std::optional<BluetoothReading> bluetooth() const override { return m_facts.bluetooth; }

    std::unique_ptr<PathWatch> watchPath(PathHandler handler) const override
    {
        if (!m_facts.path)
            return nullptr;
        handler(*m_facts.path);
        return std::make_unique<RecordedPathWatch>();
    }

private:
    Facts m_facts;
};

std::optional<NetworkPath> readPath(const Members &recording)
{
    const auto members = recording.members("networkPath");
    if (!members)
        return std::nullopt;
    NetworkPath path;
    path.status =
        static_cast<NetworkPath::Status>(members->required(members->word("status", statuses), "status"));
    path.isExpensive = members->boolean("isExpensive").value_or(false);
    path.isConstrained = members->boolean("isConstrained").value_or(false);
    path.supportsIPv4 = members->boolean("supportsIPv4").value_or(false);
    path.supportsIPv6 = members->boolean("supportsIPv6").value_or(false);
    path.supportsDNS = members->boolean("supportsDNS").value_or(false);
    if (const auto *types = members->elements("interfaceTypes")) {
        for (const auto &type : *types) {
            const auto *word = std::get_if<std::string>(&type.value);
            const auto place = word ? std::ranges::find(interfaceTypes, *word) : interfaceTypes.end();
            if (place == interfaceTypes.end())
                members->fail("interfaceTypes",
                              R"(may hold "other", "wifi", "cellular", "wired" and "loopback")");
            else
                path.interfaceTypes.push_back(static_cast<InterfaceType>(place - interfaceTypes.begin()));
        }
    }
    return path;
}

/// The one member whose null is an answer: there is no Wi-Fi.
std::optional<WifiReading> readWifi(const Members &recording)
{
    if (!recording.has("wifi"))
        return std::nullopt;
    const auto members = recording.members("wifi");
    if (!members)
        return WifiReading{};
    return WifiReading{.isPresent = true,
                       .powerOn = members->boolean("powerOn"),
                       .activePHYMode = members->integer<int>("activePHYMode"),
                       .channelBand = members->integer<int>("channelBand"),
                       .rssi = members->integer<int>("rssiValue"),
                       .transmitRate = members->number("transmitRate")};
}

std::vector<LinkReading> readEthernetLinks(const Members &recording)
{
    std::vector<LinkReading> links;
    for (const auto &link : recording.list("ethernetLinks").value_or(std::vector<Members>())) {
        links.push_back({.name = link.required(link.text("name"), "name"),
                         .speed = link.integer<std::int64_t>("speed"),
                         .duplex = link.text("duplex")});
    }
    return links;
}

std::optional<BluetoothReading> readBluetooth(const Members &recording)
{
    const auto members = recording.members("bluetooth");
    if (!members)
        return std::nullopt;
    return BluetoothReading{.isPresent = members->required(members->boolean("present"), "present"),
                            .isBlocked = members->boolean("blocked").value_or(false)};
}

void writeInterface(json::Writer &writer, const InterfaceEntry &entry, RecordedNames names)
{
    writer.beginObject();
    writer.member("name", std::string_view(entry.name));
    writer.member("family", families[static_cast<std::size_t>(entry.family)]);
    writer.member("up", entry.up);
    writer.member("loopback", entry.loopback);
    if (entry.address && (names == RecordedNames::Keep || entry.loopback))
        writer.member("address", std::string_view(*entry.address));
    if (entry.receivedBytes)
        writer.member("receivedBytes", std::int64_t{*entry.receivedBytes});
    if (entry.sentBytes)
        writer.member("sentBytes", std::int64_t{*entry.sentBytes});
    writer.endObject();
}

void writePath(json::Writer &writer, const NetworkPath &path)
{
    writer.key("networkPath");
    writer.beginObject();
    writer.member("status", statuses[static_cast<std::size_t>(path.status)]);
    writer.member("isExpensive", path.isExpensive);
    writer.member("isConstrained", path.isConstrained);
    writer.key("interfaceTypes");
    writer.beginArray();
    for (const auto type : path.interfaceTypes)
        writer.string(interfaceTypes[static_cast<std::size_t>(type)]);
    writer.endArray();
    writer.member("supportsIPv4", path.supportsIPv4);
    writer.member("supportsIPv6", path.supportsIPv6);
    writer.member("supportsDNS", path.supportsDNS);
    writer.endObject();
}

void writeWifi(json::Writer &writer, const WifiReading &wifi)
{
    writer.key("wifi");
    if (!wifi.isPresent) {
        writer.null();
        return;
    }
    writer.beginObject();
    if (wifi.powerOn)
        writer.member("powerOn", *wifi.powerOn);
    if (wifi.activePHYMode)
        writer.member("activePHYMode", *wifi.activePHYMode);
    if (wifi.channelBand)
        writer.member("channelBand", *wifi.channelBand);
    if (wifi.rssi)
        writer.member("rssiValue", *wifi.rssi);
    if (wifi.transmitRate)
        writer.member("transmitRate", *wifi.transmitRate);
    writer.endObject();
}

void writeEthernetLinks(json::Writer &writer, const std::vector<LinkReading> &links)
{
    writer.key("ethernetLinks");
    writer.beginArray();
    for (const auto &link : links) {
        writer.beginObject();
        writer.member("name", std::string_view(link.name));
        if (link.speed)
            writer.member("speed", *link.speed);
        if (link.duplex)
            writer.member("duplex", std::string_view(*link.duplex));
        writer.endObject();
    }
    writer.endArray();
}

} // namespace

std::vector<InterfaceEntry> readInterfaces(const Members &object)
{
    std::vector<InterfaceEntry> entries;
    for (const auto &one : object.list("interfaces").value_or(std::vector<Members>())) {
        entries.push_back(
            {.name = one.required(one.text("name"), "name"),
             .family = static_cast<AddressFamily>(one.required(one.word("family", families), "family")),
             .up = one.boolean("up").value_or(false),
             .loopback = one.boolean("loopback").value_or(false),
             .address = one.text("address"),
             .receivedBytes = one.integer<std::uint32_t>("receivedBytes"),
             .sentBytes = one.integer<std::uint32_t>("sentBytes")});
    }
    return entries;
}

std::unique_ptr<Network> readNetwork(const Members &recording)
{
    return std::make_unique<RecordedNetwork>(Facts{.interfaces = readInterfaces(recording),
                                                   .path = readPath(recording),
                                                   .wifi = readWifi(recording),
                                                   .ethernetLinks = readEthernetLinks(recording),
                                                   .bluetooth = readBluetooth(recording)});
}

void write(json::Writer &writer, const Network &network, RecordedNames names)
{
    writer.key("interfaces");
    writer.beginArray();
    for (const auto &entry : network.interfaces())
        writeInterface(writer, entry, names);
    writer.endArray();
    if (const auto path = network.currentPath())
        writePath(writer, *path);
    if (const auto wifi = network.wifi())
        writeWifi(writer, *wifi);
    if (const auto links = network.ethernetLinks(); !links.empty())
        writeEthernetLinks(writer, links);
    if (const auto bluetooth = network.bluetooth()) {
        writer.key("bluetooth");
        writer.beginObject();
        writer.member("present", bluetooth->isPresent);
        writer.member("blocked", bluetooth->isBlocked);
        writer.endObject();
    }
}

} // namespace quillmark::platform::recorded
