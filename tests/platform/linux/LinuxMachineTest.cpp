// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/LinuxMachine.h"

#include "platform/linux/FileTree.h"
#include "platform/linux/ProcessorFiles.h"

#include <QStringList>
#include <QTest>

#include <atomic>
#include <condition_variable>
#include <cstring>
#include <mutex>

#include <sys/statvfs.h>
#include <sys/utsname.h>
#include <unistd.h>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

namespace {

QString quoted(const std::string &text)
{
    return QString::fromStdString(text);
}

template <typename Number>
Number numberAt(const Bytes &bytes, std::size_t offset)
{
    Number number = 0;
    std::memcpy(&number, bytes.data() + offset, sizeof number);
    return number;
}

/// A number of 4 bytes plainly, of 8 bytes with an L, the record of the swap in MiB, a text in quotes.
QString shown(const Bytes &bytes)
{
    if (bytes.size() == 4)
        return QString::number(numberAt<std::int32_t>(bytes, 0));
    if (bytes.size() == 8)
        return QString::number(numberAt<std::int64_t>(bytes, 0)) + u'L';
    if (bytes.size() == 32 && bytes.back() == std::byte{0} && bytes[7] == std::byte{0}) {
        if (numberAt<std::uint32_t>(bytes, 24) != static_cast<std::uint32_t>(::sysconf(_SC_PAGESIZE)))
            return u"wrong page size"_s;
        const auto mebibytes = [&](std::size_t offset) {
            return numberAt<std::uint64_t>(bytes, offset) >> 20;
        };
        return u"total %1 available %2 used %3"_s.arg(mebibytes(0)).arg(mebibytes(8)).arg(mebibytes(16));
    }
    if (bytes.empty() || bytes.back() != std::byte{0})
        return u"a text without an end"_s;
    return u'\'' +
           QString::fromUtf8(reinterpret_cast<const char *>(bytes.data()), qsizetype(bytes.size()) - 1) +
           u'\'';
}

QStringList kernelValues(const Machine &machine)
{
    QStringList lines;
    for (const char *name : {"hw.model",
                             "machdep.cpu.brand_string",
                             "hw.logicalcpu",
                             "hw.physicalcpu",
                             "hw.nperflevels",
                             "hw.perflevel0.physicalcpu",
                             "hw.perflevel1.physicalcpu",
                             "hw.perflevel2.physicalcpu",
                             "hw.cpufrequency_max",
                             "hw.optional.avx2_0",
                             "hw.optional.avx512f",
                             "hw.optional.arm.FEAT_SME",
                             "hw.optional.arm.FEAT_BF16",
                             "hw.optional.arm.FEAT_I8MM",
                             "vm.swapusage",
                             "kern.memorystatus_vm_pressure_level",
                             "hw.optional.arm64",
                             "kern.osversion",
                             "hw.perflevel.physicalcpu",
                             "hw.optional."}) {
        if (const auto value = machine.kernelValues().read(name))
            lines << QString::fromLatin1(name) + u": "_s + shown(*value);
    }
    return lines;
}

/// What depends on the processor is left out where the tree has none, as it is then this machine's.
QStringList system(const Machine &machine, bool hasProcessor)
{
    const SystemInformation &system = machine.system();
    const OperatingSystem os = system.operatingSystem();
    const SystemWords words = system.words();
    QStringList lines;
    lines << u"os: %1 %2.%3.%4"_s.arg(quoted(os.name)).arg(os.major).arg(os.minor).arg(os.patch);
    lines << u"words: "_s + quoted(words.operatingSystem.value_or("none"));
    if (hasProcessor) {
        const auto set = system.instructionSet();
        lines << u"processor: "_s + quoted(words.processor.value_or("none")) + u", "_s +
                     quoted(words.architecture.value_or("none")) + u", set "_s +
                     QString::number(set ? int(*set) : -1);
    }
    if (const auto name = system.hostName())
        lines << u"host: "_s + quoted(*name);
    lines << u"memory: "_s + QString::number(system.physicalMemory());
    return lines;
}

QStringList power(const Machine &machine)
{
    QStringList lines;
    const auto sources = machine.power().powerSources();
    for (const PropertyMap &source : sources.value_or(std::vector<PropertyMap>())) {
        QStringList parts;
        for (const auto &[key, property] : source) {
            QString value = u"?"_s;
            if (const auto *flag = std::get_if<bool>(&property.value))
                value = *flag ? u"yes"_s : u"no"_s;
            else if (const auto *number = std::get_if<std::int64_t>(&property.value))
                value = QString::number(*number);
            else if (const auto *text = std::get_if<std::string>(&property.value))
                value = quoted(*text);
            parts << quoted(key) + u'=' + value;
        }
        lines << parts.join(u"; "_s);
    }
    return lines;
}

QStringList graphics(const Machine &machine)
{
    QStringList lines;
    if (machine.graphics().read().defaultDevice)
        lines << u"default device"_s;
    for (const GraphicsDevice &device : machine.graphics().read().devices)
        lines << u"graphics: "_s + quoted(device.name);
    return lines;
}

QStringList volume(const Machine &machine)
{
    const auto volume = machine.volumes().startupVolume();
    return volume ? QStringList(u"volume: "_s + quoted(volume->name) + u", "_s + quoted(volume->fileSystem))
                  : QStringList();
}

QStringList path(const Machine &machine)
{
    const auto path = machine.network().currentPath();
    if (!path)
        return {};
    QString line = path->status == NetworkPath::Status::Satisfied ? u"path:"_s : u"no path"_s;
    for (const InterfaceType type : path->interfaceTypes) {
        const QStringList words = {u" other"_s, u" wifi"_s, u" cellular"_s, u" wired"_s, u" loopback"_s};
        line += words.at(int(type));
    }
    line += path->supportsIPv4 ? u" IPv4"_s : QString();
    line += path->supportsIPv6 ? u" IPv6"_s : QString();
    line += path->supportsDNS ? u" DNS"_s : QString();
    return {line};
}

/// Memory in KiB, as the size of a page is this machine's.
QStringList counters(const Machine &machine, CounterReader &reader)
{
    const CounterReading reading = reader.read();
    QStringList lines;
    if (reading.processorTicks) {
        for (const ProcessorTicks &ticks : *reading.processorTicks)
            lines << u"ticks: user %1 nice %2 system %3 idle %4"_s.arg(ticks.user)
                         .arg(ticks.nice)
                         .arg(ticks.system)
                         .arg(ticks.idle);
    }
    if (reading.virtualMemory) {
        const auto kibibytes = [&](std::uint64_t pages) {
            return pages * static_cast<std::uint64_t>(machine.counters().pageSize()) / 1024;
        };
        lines << u"memory: active %1 wired %2 compressed %3"_s
                     .arg(kibibytes(reading.virtualMemory->activeCount))
                     .arg(kibibytes(reading.virtualMemory->wireCount))
                     .arg(kibibytes(reading.virtualMemory->compressorPageCount));
    }
    if (reading.swapUsage)
        lines << u"swap: "_s + shown(*reading.swapUsage);
    if (reading.pressureLevel)
        lines << u"pressure: "_s + shown(*reading.pressureLevel);
    if (reading.thermalState != machine.system().thermalState() ||
        reading.powerSources != machine.power().powerSources().value_or(std::vector<PropertyMap>()))
        lines << u"another state than when asked directly"_s;
    return lines;
}

QStringList linesOf(const char *text)
{
    return QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
}

constexpr const char *amdDesktop = R"(/proc/cpuinfo:
processor	: 0
vendor_id	: AuthenticAMD
model name	: AMD Ryzen 3 3100 4-Core Processor              
flags		: fpu lm sse2 avx avx2 avx512fake
power management:

processor	: 1
vendor_id	: AuthenticAMD
model name	: another
flags		: fpu
/sys/class/dmi/id/product_name: To Be Filled By O.E.M.
/sys/class/dmi/id/board_name: B450M Pro4
/sys/devices/system/cpu/online: 0-1,4-5
/sys/devices/system/cpu/cpu0/topology/core_cpus_list: 0,4
/sys/devices/system/cpu/cpu0/cpu_capacity: 1024
/sys/devices/system/cpu/cpu1/topology/core_cpus_list: 1,5
/sys/devices/system/cpu/cpu1/cpu_capacity: 981
/sys/devices/system/cpu/cpufreq/policy0/cpuinfo_max_freq: 3600000
/sys/devices/system/cpu/cpufreq/policy1/cpuinfo_max_freq: 3906250
/sys/devices/system/cpu/cpufreq/policy4/cpuinfo_max_freq: 3600000
/sys/devices/system/memory/block_size_bytes: 8000000
/sys/devices/system/memory/memory0/online: 1
/sys/devices/system/memory/memory1/online: 1
/sys/devices/system/memory/memory32/online: 0
/sys/devices/system/memory/power/control: auto
/proc/meminfo:
MemTotal:         380000 kB
Active:           102400 kB
Active(anon):      51200 kB
Inactive(anon):    20480 kB
Inactive:          99999 kB
Unevictable:        4096 kB
SwapTotal:       2097152 kB
SwapFree:        1572864 kB
Zswap:              8192 kB
Slab:              99999 kB
SUnreclaim:         2048 kB
KernelStack:        1024 kB
PageTables:          512 kB
Percpu:              512 kB
HugePages_Total:    7777
/proc/pressure/memory:
some avg10=12.34 avg60=80.00 avg300=0.10 total=123456
full avg10=9.99 avg60=70.00 avg300=0.05 total=12345
/proc/stat:
cpu  200 20 60 3000 40 2 4 6 0 0
cpu0 100 10 30 1500 20 1 2 3 50 0
cpu1 100 10 30 4294967300 0 1 2 3 0 0
intr 175507 0 0
/sys/block/zram0/mm_stat: 20971520 5000000 6291456 0 6291456 0 0 0 0
/sys/block/zram1/mm_stat:        0        0        0        0
/sys/block/sda/mm_stat: 1 1 1048576
/proc/sys/kernel/osrelease: 5.15.0-91-generic
/proc/sys/kernel/hostname: tower
/etc/os-release:
PRETTY_NAME="Ubuntu 22.04.3 LTS"
NAME="Ubuntu"
VERSION_ID="22.04"
VERSION_CODENAME=jammy
/sys/class/drm/card1/device/uevent:
DRIVER=amdgpu
PCI_CLASS=30000
PCI_ID=1002:67DF
/sys/class/drm/card1-HDMI-A-1/device/uevent: DRIVER=wrong
/sys/class/drm/card0/device/uevent: DRIVER=simple-framebuffer
/sys/class/drm/card10/device/uevent: PCI_ID=10DE:1F82
/sys/class/drm/renderD128/device/uevent: DRIVER=wrong
/sys/class/power_supply/hidpp_battery_0/uevent:
POWER_SUPPLY_TYPE=Battery
POWER_SUPPLY_SCOPE=Device
POWER_SUPPLY_CAPACITY=50
POWER_SUPPLY_SERIAL_NUMBER=4082-b2
)";

constexpr const char *hybridLaptop = R"(/proc/cpuinfo:
processor	: 0
vendor_id	: GenuineIntel
model name	: 12th Gen Intel(R) Core(TM) i5-1235U
flags		: fpu lm avx512f
bugs		: avx2

/sys/class/dmi/id/product_name: XPS 13 9315
/sys/devices/system/cpu/online: 0-5
/sys/devices/system/cpu/cpu0/topology/core_cpus_list: 0-1
/sys/devices/system/cpu/cpu2/topology/core_cpus_list: 2-3
/sys/devices/system/cpu/cpu4/topology/core_cpus_list: 4
/sys/devices/system/cpu/cpu5/topology/core_cpus_list: 5
/sys/devices/cpu_core/cpus: 0-1
/sys/devices/cpu_atom/cpus: 2-4
/sys/devices/cpu_lowpower/cpus: 5
/sys/devices/system/memory/block_size_bytes: 1000
/sys/devices/system/memory/memory0/online: 1
/proc/meminfo:
MemTotal:        8000000 kB
SwapTotal:             0 kB
SwapFree:              0 kB
/proc/pressure/memory:
some avg10=30.00 avg60=0.00 avg300=0.00 total=1
full avg10=10.00 avg60=0.00 avg300=0.00 total=1
/proc/sys/kernel/osrelease: 6.8.5
/proc/sys/kernel/hostname: localhost
/etc/machine-info:
PRETTY_HOSTNAME="Ada’s \`small\` lap\top"
CHASSIS=laptop
/etc/os-release:
NAME='Arch Linux'
PRETTY_NAME=Arch\ Linux
BUILD_ID=rolling
)";

constexpr const char *armBoard = R"(/proc/cpuinfo:
processor	: 0
BogoMIPS	: 108.00
Features	: fp asimd evtstrm aes i8mm bf16
CPU implementer	: 0x41
CPU architecture: 8
CPU part	: 0xd03

processor	: 4
Hardware	: BCM2835
Serial		: 10000000abcdef01
/proc/device-tree/model: Radxa ROCK 5B\0
/sys/devices/system/cpu/online: 0-3,8
/sys/devices/system/cpu/cpu0/topology/thread_siblings_list: 0
/sys/devices/system/cpu/cpu0/cpu_capacity: 446
/sys/devices/system/cpu/cpu1/topology/thread_siblings_list: 1
/sys/devices/system/cpu/cpu1/cpu_capacity: 446
/sys/devices/system/cpu/cpu2/topology/thread_siblings_list: 2
/sys/devices/system/cpu/cpu2/cpu_capacity: 446
/sys/devices/system/cpu/cpu3/topology/thread_siblings_list: 3
/sys/devices/system/cpu/cpu3/cpu_capacity: 1024
/sys/devices/system/cpu/cpu8/topology/thread_siblings_list: 8
/sys/devices/system/cpu/cpu8/cpu_capacity: 1024
/sys/devices/system/cpu/cpufreq/policy0/cpuinfo_max_freq: 0
/proc/pressure/memory:
some avg10=9.99 avg60=0.00 avg300=0.00 total=1
/proc/sys/kernel/osrelease: 6.1.21-v8+
/proc/sys/kernel/hostname: (none)
)";

constexpr const char *riscvBoard = R"(/proc/cpuinfo:
processor	: 0
hart		: 1
isa		: rv64imafdc
uarch		: sifive,u74-mc

/sys/class/dmi/id/product_name: Default string
/sys/class/dmi/id/board_name: None
/sys/firmware/devicetree/base/model: StarFive VisionFive 2\0
/sys/devices/system/cpu/online: 0-3
/usr/lib/os-release:
# a comment = not a name

NAME=Fedora
NAME="Fedora Linux"
VERSION_ID=40
)";

constexpr const char *lpar = R"(/proc/cpuinfo:
processor	: 0
cpu		: POWER9 (architected), altivec supported
clock		: 2200.000000MHz

/proc/stat:
cpu  1 1 1 1
cpu0 1 1 1 1
cpu7 1 1 1 1
/etc/os-release: VERSION_ID=v3.9999999999.1
)";

/// Every table and number that is read, none of which holds what it should.
QStringList tables()
{
    return {u"/proc/cpuinfo"_s,
            u"/proc/meminfo"_s,
            u"/proc/stat"_s,
            u"/proc/pressure/memory"_s,
            u"/proc/net/route"_s,
            u"/proc/net/ipv6_route"_s,
            u"/proc/self/mountinfo"_s,
            u"/etc/os-release"_s,
            u"/etc/machine-info"_s,
            u"/etc/resolv.conf"_s,
            u"/sys/devices/system/cpu/online"_s,
            u"/sys/devices/system/cpu/cpufreq/policy0/cpuinfo_max_freq"_s,
            u"/sys/devices/system/memory/block_size_bytes"_s,
            u"/sys/devices/system/memory/memory0/online"_s,
            u"/sys/class/power_supply/BAT0/uevent"_s,
            u"/sys/class/drm/card0/device/uevent"_s,
            u"/sys/class/thermal/thermal_zone0/temp"_s,
            u"/sys/class/thermal/thermal_zone0/trip_point_0_temp"_s,
            u"/sys/block/zram0/mm_stat"_s};
}

} // namespace

class LinuxMachineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void powerSources_data();
    void powerSources();
    void paths_data();
    void paths();
    void thermalStates_data();
    void thermalStates();
    void volumes_data();
    void volumes();
    void cpuLists_data();
    void cpuLists();
    void unreadable_data();
    void unreadable();
    void countersFollowTheirFiles();
    void thisMachineAnswers();
    void watchReportsUntilItEnds();
};

void LinuxMachineTest::answers_data()
{
    QTest::addColumn<QByteArray>("tree");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const char *tree, const char *expected) {
        QTest::newRow(name) << QByteArray(tree) << linesOf(expected);
    };
    row("AMD desktop", amdDesktop, R"(
hw.model: 'B450M Pro4'
machdep.cpu.brand_string: 'AMD Ryzen 3 3100 4-Core Processor'
hw.logicalcpu: 4
hw.physicalcpu: 2
hw.nperflevels: 1
hw.perflevel0.physicalcpu: 2
hw.cpufrequency_max: 3906250000L
hw.optional.avx2_0: 1
hw.optional.avx512f: 0
vm.swapusage: total 2048 available 1536 used 512
kern.memorystatus_vm_pressure_level: 2
os: Ubuntu 22.4.0
words: Ubuntu 22.04.3 LTS, Linux 5.15.0-91-generic
processor: x86 processor, AMD (x86_64), set 1
host: tower
memory: 402653184
graphics: simple-framebuffer
graphics: AMD (amdgpu)
graphics: NVIDIA
ticks: user 100 nice 10 system 36 idle 1520
ticks: user 100 nice 10 system 36 idle 4
memory: active 71680 wired 8192 compressed 14336
swap: total 2048 available 1536 used 512
pressure: 2)");
    row("Intel hybrid laptop", hybridLaptop, R"(
hw.model: 'XPS 13 9315'
machdep.cpu.brand_string: '12th Gen Intel(R) Core(TM) i5-1235U'
hw.logicalcpu: 6
hw.physicalcpu: 4
hw.nperflevels: 3
hw.perflevel0.physicalcpu: 1
hw.perflevel1.physicalcpu: 2
hw.perflevel2.physicalcpu: 1
hw.optional.avx2_0: 0
hw.optional.avx512f: 1
vm.swapusage: total 0 available 0 used 0
kern.memorystatus_vm_pressure_level: 4
os: Arch Linux 0.0.0
words: Arch Linux, Linux 6.8.5
processor: x86 processor, Intel (x86_64), set 1
host: Ada’s `small` lap\top
memory: 8192000000
swap: total 0 available 0 used 0
pressure: 4)");
    row("Arm board", armBoard, R"(
hw.model: 'Radxa ROCK 5B'
hw.logicalcpu: 5
hw.physicalcpu: 5
hw.nperflevels: 2
hw.perflevel0.physicalcpu: 2
hw.perflevel1.physicalcpu: 3
hw.optional.arm.FEAT_SME: 0
hw.optional.arm.FEAT_BF16: 1
hw.optional.arm.FEAT_I8MM: 1
kern.memorystatus_vm_pressure_level: 1
os: Linux 0.0.0
words: Linux 6.1.21-v8+
processor: Arm processor, Arm (aarch64), set 0
memory: 0
pressure: 1)");
    row("RISC-V without topology", riscvBoard, R"(
hw.model: 'StarFive VisionFive 2'
hw.logicalcpu: 4
os: Fedora Linux 40.0.0
words: Fedora Linux, Linux
processor: RISC-V processor, RISC-V (riscv64), set 2
memory: 0)");
    utsname names = {};
    ::uname(&names);
    const QByteArray power =
        QByteArray("machdep.cpu.brand_string: 'POWER9 (architected), altivec supported'\n"
                   "hw.logicalcpu: 2\n"
                   "os: Linux 0.0.0\n"
                   "words: Linux\n"
                   "processor: @ processor, @, set 2\n"
                   "memory: 0\n"
                   "ticks: user 1 nice 1 system 1 idle 1\n"
                   "ticks: user 1 nice 1 system 1 idle 1")
            .replace("@", names.machine);
    row("POWER in a sandbox without /sys", lpar, power.constData());
    row("nothing readable", "", "os: Linux 0.0.0\nwords: Linux\nmemory: 0");
}

void LinuxMachineTest::answers()
{
    QFETCH(QByteArray, tree);
    QFETCH(QStringList, expected);
    const FileTree files(tree);
    const auto machine = linuxMachine(files.root());
    const auto reader = machine->counters().reader();
    QCOMPARE(kernelValues(*machine) + system(*machine, files.has(u"/proc/cpuinfo"_s)) + power(*machine) +
                 graphics(*machine) + path(*machine) + counters(*machine, *reader),
             expected);
}

void LinuxMachineTest::powerSources_data()
{
    QTest::addColumn<QByteArray>("supplies");
    QTest::addColumn<QStringList>("expected");
    // Each line is a supply: its name, then its properties.
    const auto row = [](const char *name, const char *supplies, const char *expected) {
        QTest::newRow(name) << QByteArray(supplies) << linesOf(expected);
    };
    row("two batteries on the line",
        "BAT1 TYPE=Battery STATUS=Unknown PRESENT=1 ENERGY_NOW=23510000 ENERGY_FULL=47020000 HEALTH=Unknown\n"
        "BAT0 TYPE=Battery STATUS=Full PRESENT=1 CAPACITY=101 HEALTH=Good MODEL_NAME=X SERIAL_NUMBER=1 "
        "MANUFACTURER=Y\n"
        "BAT2 TYPE=Battery STATUS=Unknown PRESENT=0\n"
        "ACAD TYPE=Mains ONLINE=1\n",
        "BatteryHealth=Good; Current Capacity=100; Is Charged=yes; Is Charging=no; Is Present=yes; Max "
        "Capacity=100; "
        "Name=BAT0; Power Source State=AC Power; Transport Type=Internal; Type=InternalBattery\n"
        "Current Capacity=50; Is Present=yes; Max Capacity=100; "
        "Name=BAT1; Power Source State=AC Power; Transport Type=Internal; Type=InternalBattery\n");
    row("discharging, UPS named before it",
        "APC TYPE=UPS STATUS=Discharging CHARGE_NOW=2 CHARGE_FULL=3\n"
        "BAT0 TYPE=Battery STATUS=Discharging CAPACITY=7 HEALTH=Overheat\n"
        "ucsi TYPE=USB ONLINE=0\n",
        "BatteryHealth=Overheat; Current Capacity=7; Is Charging=no; Is Present=yes; Max Capacity=100; "
        "Name=BAT0; Power Source State=Battery Power; Transport Type=Internal; Type=InternalBattery\n"
        "Current Capacity=67; Is Charging=no; Is Present=yes; Max Capacity=100; "
        "Name=APC; Power Source State=Battery Power; Type=UPS\n");
    row("charging, no supply tells of the line",
        "b TYPE=Battery STATUS=Charging CHARGE_NOW=9 CHARGE_FULL=0\n",
        "Is Charging=yes; Is Present=yes; Name=b; Power Source State=AC Power; Transport Type=Internal; "
        "Type=InternalBattery\n");
    row("programmable USB supply", "b TYPE=Battery STATUS=Discharging CAPACITY=-1\nu TYPE=USB_PD ONLINE=2\n",
        "Is Charging=no; Is Present=yes; Name=b; Power Source State=AC Power; Transport Type=Internal; "
        "Type=InternalBattery\n");
    row("type in its own file, nothing else told", "b /type=Battery\n",
        "Is Present=yes; Name=b; Transport Type=Internal; Type=InternalBattery\n");
    row("a mouse and the pad that charges it",
        "m TYPE=Battery SCOPE=Device CAPACITY=5\np TYPE=Wireless ONLINE=1\n", "");
}

void LinuxMachineTest::powerSources()
{
    QFETCH(QByteArray, supplies);
    QFETCH(QStringList, expected);
    const FileTree files("");
    for (const QByteArray &supply : supplies.split('\n')) {
        QList<QByteArray> words = supply.split(' ');
        const QString folder = u"/sys/class/power_supply/"_s + QString::fromUtf8(words.takeFirst());
        QByteArray lines;
        for (const QByteArray &word : words) {
            if (word.startsWith("/type="))
                files.write(folder + u"/type"_s, word.mid(6) + '\n');
            else
                lines += "POWER_SUPPLY_" + word + '\n';
        }
        if (!words.isEmpty())
            files.write(folder + u"/uevent"_s, "DEVTYPE=power_supply\n" + lines);
    }
    QCOMPARE(power(*linuxMachine(files.root())), expected);
}

void LinuxMachineTest::paths_data()
{
    QTest::addColumn<QByteArray>("routes");
    QTest::addColumn<QByteArray>("ipv6Routes");
    QTest::addColumn<QString>("expected");
    const QByteArray title =
        "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT  \n";
    const QByteArray zeros(32, '0');
    const auto ipv6 = [&](const char *metric, const char *flags, const char *interfaceName) {
        return zeros + " 00 " + zeros + " 00 fe800000000000000000000000000001 " + metric +
               " 00000001 00000000 " + flags + "     " + interfaceName + '\n';
    };
    QTest::newRow("several defaults: the metric decides")
        << title + "eth0\t00000000\t0101A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
                   "wlan0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"
                   "eth0\t0001A8C0\t00000000\t0001\t0\t0\t0\t00FFFFFF\t0\t0\t0\n"
        << QByteArray() << u"path: wifi IPv4 DNS"_s;
    QTest::newRow("IPv6 alone, over a modem")
        << title << ipv6("00000400", "00450003", "eth0") + ipv6("00000064", "00000003", "wwan0")
        << u"path: cellular IPv6 DNS"_s;
    QTest::newRow("one interface for both")
        << title + "eth0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n"
        << ipv6("00000400", "00000003", "eth0") << u"path: wired IPv4 IPv6 DNS"_s;
    QTest::newRow("two interfaces: a tunnel and the cable")
        << title + "tap0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n"
        << ipv6("00000400", "00000003", "eth0") << u"path: other wired IPv4 IPv6 DNS"_s;
    QTest::newRow("rejected, not up, half of the world, the end of the table")
        << title + "*\t00000000\t00000000\t0201\t0\t0\t0\t00000000\t0\t0\t0\n"
                   "eth0\t00000000\t0101A8C0\t0002\t0\t0\t0\t00000000\t0\t0\t0\n"
                   "eth0\t00000000\t0101A8C0\t0003\t0\t0\t0\t00000080\t0\t0\t0\n"
        << ipv6("ffffffff", "00200200", "lo") + ipv6("00000400", "00000203", "eth0") << u"no path"_s;
    QTest::newRow("cable pulled") << title + "eth1\t00000000\t0101A8C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n"
                                  << QByteArray() << u"no path"_s;
    QTest::newRow("cable pulled, the next takes over")
        << title + "eth1\t00000000\t0101A8C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n"
                   "wg0\t00000000\t0101A8C0\t0003\t0\t0\t50\t00000000\t0\t0\t0\n"
        << QByteArray() << u"path: other IPv4 DNS"_s;
    QTest::newRow("an interface that /sys does not know")
        << title + "ppp0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n"
        << QByteArray() << u"path: other IPv4 DNS"_s;
    QTest::newRow("cut short") << QByteArray("eth0\t00000000\t00") << QByteArray("000000 00") << u"no path"_s;
}

void LinuxMachineTest::paths()
{
    QFETCH(QByteArray, routes);
    QFETCH(QByteArray, ipv6Routes);
    const FileTree files(R"(/etc/resolv.conf:
# nameserver 192.0.2.1
search example.org
nameserver 192.0.2.53
/sys/class/net/eth0/uevent: INTERFACE=eth0
/sys/class/net/eth0/type: 1
/sys/class/net/eth0/operstate: up
/sys/class/net/eth1/type: 1
/sys/class/net/eth1/operstate: down
/sys/class/net/wlan0/uevent: DEVTYPE=wlan
/sys/class/net/wlan0/type: 1
/sys/class/net/wwan0/uevent: DEVTYPE=wwan
/sys/class/net/wwan0/type: 519
/sys/class/net/tap0/type: 1
/sys/class/net/tap0/tun_flags: 0x1002
/sys/class/net/tap0/operstate: unknown
/sys/class/net/wg0/type: 65534
)");
    files.write(u"/proc/net/route"_s, routes);
    files.write(u"/proc/net/ipv6_route"_s, ipv6Routes);
    QTEST(path(*linuxMachine(files.root())).join(u'\n'), "expected");
    files.write(u"/etc/resolv.conf"_s, "options edns0\n");
    QVERIFY(!linuxMachine(files.root())->network().currentPath()->supportsDNS);
}

void LinuxMachineTest::thermalStates_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("expected");
    // Limits in rising order: 50 °C for a fan, 80 °C to slow down, 95 °C hot, 105 °C critical.
    QTest::newRow("cool") << QByteArray("temp: 49999") << 0;
    QTest::newRow("fan") << QByteArray("temp: 50000") << 1;
    QTest::newRow("slowed down") << QByteArray("temp: 94000") << 2;
    QTest::newRow("hot") << QByteArray("temp: 95000") << 3;
    QTest::newRow("critical") << QByteArray("temp: 150000") << 3;
    QTest::newRow("sensor out of order") << QByteArray("temp: 255000") << 0;
    QTest::newRow("not a number") << QByteArray("temp: 95000 mC") << 0;
    QTest::newRow("no temperature") << QByteArray("mode: enabled") << 0;
    QTest::newRow("switched off") << QByteArray("temp: 105000\nmode: disabled") << 0;
    QTest::newRow("in use") << QByteArray("temp: 105000\nmode: enabled") << 3;
    QTest::newRow("limits that are not used")
        << QByteArray("temp: 30000\ntrip_point_0_temp: 0\ntrip_point_1_temp: -274000") << 0;
    QTest::newRow("unknown kind of limit") << QByteArray("temp: 60000\ntrip_point_0_type: other") << 0;
}

void LinuxMachineTest::thermalStates()
{
    QFETCH(QByteArray, zone);
    const QByteArray folder = "/sys/class/thermal/thermal_zone1/";
    QByteArray tree =
        "/sys/class/thermal/cooling_device0/temp: 110000\n/sys/class/thermal/thermal_zone0/temp: 110000\n";
    const char *limits = "trip_point_0_type: active\ntrip_point_0_temp: 50000\ntrip_point_1_type: passive\n"
                         "trip_point_1_temp: 80000\ntrip_point_2_type: hot\ntrip_point_2_temp: 95000\n"
                         "trip_point_3_type: critical\ntrip_point_3_temp: 105000\n";
    for (const QByteArray &line : QByteArray(limits + zone).split('\n'))
        tree += folder + line + '\n';
    QTEST(int(linuxMachine(FileTree(tree).root())->system().thermalState()), "expected");
}

void LinuxMachineTest::volumes_data()
{
    QTest::addColumn<QByteArray>("tree");
    QTest::addColumn<QString>("expected");
    const QByteArray labels = "/dev/disk/by-label/EFI -> ../../sda1\n"
                              "/dev/disk/by-label/My\\x20\\xc3\\xa9\\x2froot\\x -> ../../dm-0\n";
    QTest::newRow("mapped device, covered mounts, optional fields")
        << labels + "/sys/dev/block/254:0 -> ../../devices/virtual/block/dm-0\n/proc/self/mountinfo:\n"
                    "1 1 0:2 / / rw - rootfs rootfs rw\n"
                    "27 1 254:0 / / rw,relatime shared:1 master:2 - ext4 /dev/mapper/vg-root rw\n"
                    "28 27 8:1 / /boot rw - vfat /dev/sda1 rw\n"
        << u"volume: My é/root\\x, ext4"_s;
    QTest::newRow("btrfs, whose number is no device's")
        << labels + "/dev/mapper/luks -> ../dm-0\n/proc/self/mountinfo:\n"
                    "27 1 0:33 /root / rw - btrfs /dev/mapper/luks rw\n"
        << u"volume: My é/root\\x, btrfs"_s;
    QTest::newRow("partition without /sys")
        << labels + "/proc/self/mountinfo: 27 1 8:1 / / rw - vfat /dev/sda1 rw\n"
        << u"volume: EFI, vfat"_s;
    QTest::newRow("no device, last of two")
        << labels + "/proc/self/mountinfo:\n27 1 8:1 / / rw - ext4 /dev/sda1 rw\n30 27 0:44 / / rw - overlay "
                    "overlay rw\n"
        << u"volume: /, overlay"_s;
    QTest::newRow("broken lines") << labels + "/proc/self/mountinfo:\n27 1 8:1 / /\n-\n - \n"
                                  << u"volume: /, "_s;
}

void LinuxMachineTest::volumes()
{
    QFETCH(QByteArray, tree);
    QTEST(volume(*linuxMachine(FileTree(tree).root())).join(u'\n'), "expected");
    QVERIFY(!linuxMachine("/nonexistent")->volumes().startupVolume());
}

void LinuxMachineTest::cpuLists_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("ranges") << QByteArray("0-3,8,10-11\n") << u"0 1 2 3 8 10 11"_s;
    QTest::newRow("none") << QByteArray("\n") << QString();
    for (const char *text : {"3-0", "0-", "-1", "0,,1", "a", "0-1x", "0-4294967295", "0-99999999", "0 1"})
        QTest::newRow(text) << QByteArray(text) << u"broken"_s;
}

void LinuxMachineTest::cpuLists()
{
    QFETCH(QByteArray, text);
    QStringList numbers = {u"broken"_s};
    if (const auto list = parseCpuList(text.toStdString())) {
        numbers.clear();
        for (const std::int32_t number : *list)
            numbers << QString::number(number);
    }
    QTEST(numbers.join(u' '), "expected");
}

void LinuxMachineTest::unreadable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("white space") << QByteArray("\n \t\n\n");
    QTest::newRow("one endless line") << QByteArray(3 << 20, 'x');
    QTest::newRow("zero bytes") << QByteArray(5000, '\0');
    QTest::newRow("not text") << QByteArray("\xff\xfe=\x80: \xff\ncpu\xff: - \n").repeated(1000);
    QTest::newRow("numbers beyond all bounds") << QByteArray("99999999999999999999999999999999");
    QTest::newRow("separators alone") << QByteArray("=:\n:\n=\n,\n-\n - \ncpu\ncpu0 1 2\n").repeated(500);
}

void LinuxMachineTest::unreadable()
{
    QFETCH(QByteArray, content);
    const FileTree files("/sys/class/thermal/thermal_zone0/trip_point_0_type: critical\n");
    for (const QString &table : tables())
        files.write(table, content);
    const auto machine = linuxMachine(files.root());
    const auto reader = machine->counters().reader();
    QCOMPARE(kernelValues(*machine) + system(*machine, false) + power(*machine) + graphics(*machine) +
                 path(*machine) + volume(*machine) + counters(*machine, *reader),
             QStringList(
                 {u"os: Linux 0.0.0"_s, u"words: Linux"_s, u"memory: 0"_s, u"no path"_s, u"volume: /, "_s}));
    QCOMPARE(machine->system().thermalState(), 0);
}

void LinuxMachineTest::countersFollowTheirFiles()
{
    const FileTree files(amdDesktop);
    auto machine = linuxMachine(files.root());
    const auto reader = machine->counters().reader();
    reader->read();

    // Idle time steps back, and more processors than fit in the first buffer come up.
    QByteArray stat = "cpu  1 1 1 1\ncpu0 101 10 30 1400 10 1 2 3 0 0\n";
    for (int processor = 1; processor < 300; ++processor)
        stat += "cpu" + QByteArray::number(processor) + " 7 0 0 0 0 0 0 0 0 0\n";
    files.write(u"/proc/stat"_s, stat + "intr 1\n");
    files.write(u"/proc/meminfo"_s, "");
    files.write(u"/sys/block/zram0/mm_stat"_s, "");
    QStringList lines = counters(*machine, *reader);
    QCOMPARE(lines.size(), 301);
    QCOMPARE(lines.first(), u"ticks: user 101 nice 10 system 36 idle 1520"_s);
    QCOMPARE(lines.at(299), u"ticks: user 7 nice 0 system 0 idle 0"_s);
    QCOMPARE(lines.last(), u"pressure: 2"_s);

    files.write(u"/proc/stat"_s, "");
    files.write(u"/proc/meminfo"_s, "Active(anon): 1024 kB\nSwapTotal: 4096 kB\nSwapFree: 9999999 kB\n");
    QCOMPARE(counters(*machine, *reader),
             QStringList({u"memory: active 1024 wired 0 compressed 0"_s,
                          u"swap: total 4 available 4 used 0"_s, u"pressure: 2"_s}));
    machine.reset();
    QVERIFY(reader->read().virtualMemory);
}

void LinuxMachineTest::thisMachineAnswers()
{
    const auto machine = thisMachine();
    QFile file(u"/proc/uptime"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const double sinceStart = file.readAll().split(' ').first().toDouble();
    const auto uptime = machine->system().uptime();
    QVERIFY(uptime && *uptime > 0 && *uptime <= sinceStart + 60);

    bool hasLoopback = false;
    for (const InterfaceEntry &entry : machine->network().interfaces()) {
        const bool isLink = entry.family == AddressFamily::Link;
        QCOMPARE(entry.address.has_value(), !isLink);
        QCOMPARE(entry.receivedBytes.has_value(), isLink);
        hasLoopback = hasLoopback || (isLink && entry.loopback && entry.name == "lo");
    }
    QVERIFY(hasLoopback);
    for (const InterfaceEntry &link : machine->counters().reader()->read().links)
        QVERIFY(link.family == AddressFamily::Link && link.sentBytes);

    struct statvfs sizes = {};
    QCOMPARE(::statvfs("/", &sizes), 0);
    const auto volume = machine->volumes().startupVolume();
    QVERIFY(volume && volume->available);
    QCOMPARE(volume->total, std::int64_t(sizes.f_blocks * sizes.f_frsize));
    QVERIFY(*volume->available <= volume->total);
    QVERIFY(!machine->media().videoEncoders() && !machine->capture().authorization(CaptureKind::Video));
    QVERIFY(machine->registry().services("AppleSmartBattery").empty());
}

void LinuxMachineTest::watchReportsUntilItEnds()
{
    const FileTree files("/proc/net/route:\neth0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\n");
    const auto machine = linuxMachine(files.root());
    std::mutex mutex;
    std::condition_variable reported;
    std::optional<NetworkPath> first;
    std::atomic<bool> isInHandler = false;
    std::atomic<int> calls = 0;
    auto watch = machine->network().watchPath([&](const NetworkPath &now) {
        isInHandler = true;
        ++calls;
        {
            const std::lock_guard lock(mutex);
            first = now;
        }
        reported.notify_one();
        QTest::qSleep(100);
        isInHandler = false;
    });
    QVERIFY(watch);
    {
        std::unique_lock lock(mutex);
        QVERIFY(reported.wait_for(lock, std::chrono::seconds(30), [&] { return first.has_value(); }));
    }
    QVERIFY(isInHandler);
    watch.reset();
    // The destructor has waited for the call under way.
    QVERIFY(!isInHandler);
    QCOMPARE(*first, *machine->network().currentPath());
    const int before = calls;
    QTest::qSleep(200);
    QCOMPARE(int(calls), before);

    // Ended before or while it starts.
    for (int i = 0; i < 50; ++i)
        machine->network().watchPath([](const NetworkPath &) {});
}

QTEST_APPLESS_MAIN(LinuxMachineTest)
#include "LinuxMachineTest.moc"
