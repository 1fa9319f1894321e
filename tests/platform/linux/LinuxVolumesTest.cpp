// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/BlockDevices.h"
#include "platform/linux/FileTree.h"
#include "platform/linux/LinuxMachine.h"

#include <QStringList>
#include <QTest>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

namespace {

QString shown(const std::optional<std::string> &word)
{
    return word ? QString::fromStdString(*word) : u"-"_s;
}

QString shown(std::optional<bool> flag)
{
    return flag ? (*flag ? u"yes"_s : u"no"_s) : u"-"_s;
}

/// name, bytes, medium, bus, place, removable, TRIM
QStringList disks(const Machine &machine)
{
    const auto disks = machine.volumes().disks();
    if (!disks)
        return {u"not read"_s};
    QStringList lines;
    for (const DiskReading &disk : *disks)
        lines +=
            QStringList{
                shown(disk.productName),  QString::number(disk.size.value_or(-1)), shown(disk.mediumType),
                shown(disk.interconnect), shown(disk.interconnectLocation),        shown(disk.removable),
                shown(disk.unmap)}
                .join(u", "_s);
    return lines;
}

/// name, file system, whether its size is known, read only, internal
QStringList volumes(const Machine &machine)
{
    const auto volumes = machine.volumes().otherVolumes();
    if (!volumes)
        return {u"not read"_s};
    QStringList lines;
    for (const VolumeReading &volume : *volumes)
        lines += QStringList{QString::fromStdString(volume.name), QString::fromStdString(volume.fileSystem),
                             volume.total && volume.available ? u"sized"_s : u"no size"_s,
                             shown(volume.isReadOnly), shown(volume.isInternal)}
                     .join(u", "_s);
    return lines;
}

/// A disk of the kernel's: its link in /sys/block and its files, "name=text" each.
QByteArray disk(const QByteArray &name, const QByteArray &bus, const QByteArrayList &files)
{
    QByteArray tree = "/sys/block/" + name + " -> ../devices/" + bus + "/block/" + name + "\n";
    for (const QByteArray &file : files) {
        const auto separator = file.indexOf('=');
        tree += "/sys/devices/" + bus + "/block/" + name + '/' + file.left(separator) + ": " +
                file.mid(separator + 1) + '\n';
    }
    return tree;
}

/// The links to a block device, given as "number name", below a folder of /sys/devices.
QByteArray device(const QByteArray &numberAndName, const QByteArray &folder)
{
    const auto words = numberAndName.split(' ');
    const QByteArray target = " -> ../../devices/" + folder + words.at(1) + '\n';
    return "/sys/dev/block/" + words.at(0) + target + "/sys/class/block/" + words.at(1) + target;
}

const QByteArray usbBus = "pci0000:00/0000:00:14.0/usb2/2-1/2-1:1.0/host6/target6:0:0/6:0:0:0";
const QByteArray ataBus = "pci0000:00/0000:00:17.0/ata3/host2/target2:0:0/2:0:0:0";

} // namespace

class LinuxVolumesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void disksOfABus_data();
    void disksOfABus();
    void whatIsNoDisk();
    void otherVolumes();
};

void LinuxVolumesTest::disksOfABus_data()
{
    QTest::addColumn<QByteArray>("tree");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &tree, const char *expected) {
        QTest::newRow(name) << tree << QString::fromUtf8(expected);
    };
    row("NVMe",
        disk("nvme0n1", "pci0000:00/0000:00:06.0/0000:01:00.0/nvme/nvme0",
             {"device/model=NVMe SSD 512GB   ", "size=1000215216", "removable=0", "queue/rotational=0",
              "queue/discard_max_bytes=2199023255040"}),
        "NVMe SSD 512GB, 512110190592, Solid State, PCI-Express, Internal, no, yes");
    row("hard disk",
        disk("sda", ataBus,
             {"device/model=WDC WD10EZEX", "size=1953525168", "removable=0", "queue/rotational=1",
              "queue/discard_max_bytes=0"}),
        "WDC WD10EZEX, 1000204886016, Rotational, SATA, Internal, no, no");
    row("memory stick, of which the kernel does not know that it does not turn",
        disk("sdb", usbBus, {"size=2", "removable=1", "queue/rotational=1"}),
        "-, 1024, -, USB, External, yes, -");
    row("hard disk in an enclosure", disk("sdb", usbBus, {"size=2", "removable=0", "queue/rotational=1"}),
        "-, 1024, Rotational, USB, External, no, -");
    row("ATA disk in an enclosure",
        disk("sdb", "pci0000:00/0000:00:14.0/usb2/2-1/2-1:1.0/ata9/host9", {"size=2"}),
        "-, 1024, -, USB, External, no, -");
    row("of a guest", disk("vda", "pci0000:00/0000:00:02.0/virtio1", {"size=2", "queue/rotational=1"}),
        "-, 1024, -, Virtio, Internal, no, -");
    row("bus that is not known", disk("xvda", "vbd-51712", {"size=2"}), "-, 1024, -, -, Internal, no, -");
    row("NVMe by several ways",
        disk("nvme0n1", "virtual/nvme-subsystem/nvme-subsys0",
             {"size=2", "device/nvme0/transport=pcie", "device/model=PM9A3"}),
        "PM9A3, 1024, -, PCI-Express, Internal, no, -");
    row("NVMe in a network",
        disk("nvme0n1", "virtual/nvme-subsystem/nvme-subsys0", {"size=2", "device/nvme0/transport=tcp"}), "");
}

void LinuxVolumesTest::disksOfABus()
{
    QFETCH(const QByteArray, tree);
    QTEST(disks(*linuxMachine(FileTree(tree).root())).join(u'\n'), "expected");
}

void LinuxVolumesTest::whatIsNoDisk()
{
    QCOMPARE(disks(*linuxMachine("/nonexistent")), QStringList(u"not read"_s));
    const QByteArrayList ordinary = {"size=2"};
    const QByteArray mmcBus = "platform/soc/mmc0/mmc_host/mmc0/mmc0:0001";
    const FileTree files(disk("loop0", "virtual", ordinary) + disk("dm-0", "virtual", ordinary) +
                         disk("sr0", ataBus, ordinary) + disk("fd0", "platform/floppy.0", ordinary) +
                         disk("nvme0c0n1", "pci0000:00/nvme/nvme0", {"size=2", "hidden=1"}) +
                         disk("sdz", usbBus, {"size=0", "removable=1"}) +
                         disk("sdy", usbBus, {"removable=1"}) + disk("mmcblk0boot0", mmcBus, ordinary) +
                         disk("mmcblk0", mmcBus, ordinary) +
                         disk("sda", ataBus, {"size=18446744073709551615"}));
    QCOMPARE(disks(*linuxMachine(files.root())), QStringList(u"-, 1024, -, MMC, Internal, no, -"_s));
}

/// Each volume once, by its label or its well-known place and never by another, of which a person's name may
/// be a part.
void LinuxVolumesTest::otherVolumes()
{
    QCOMPARE(volumes(*linuxMachine("/nonexistent")), QStringList(u"not read"_s));
    QByteArray tree = R"(/proc/self/mountinfo:
20 1 254:0 / / rw,relatime shared:1 - ext4 /dev/mapper/root rw
21 20 254:0 / /mnt/again rw - ext4 /dev/mapper/root rw
22 20 0:21 / /proc rw - proc proc rw
23 20 8:1 / /boot rw - ext4 /dev/sda1 rw
24 20 8:1 /grub /srv rw - ext4 /dev/sda1 rw
25 20 8:2 / /home ro,relatime - ext4 /dev/sda2 rw
26 20 8:17 / /media/alice/stick rw - vfat /dev/sdb1 ro
27 20 8:18 / /media/alice/My\040disk rw master:3 - ntfs3 /dev/sdb2 rw
28 20 7:0 / /snap/core rw - squashfs /dev/loop0 ro
29 20 0:50 / /net rw - nfs4 server:/export rw
30 20 0:51 / /home/alice/sshfs rw - fuse.thing /dev/sda3 rw
31 20 0:52 /@data /data rw - btrfs /dev/sda4 rw
32 20 0:52 /@more /more rw - btrfs /dev/sda4 rw
33 20 254:1 / /media/alice/secret rw - ext4 /dev/mapper/secret rw
34 20 8:5 / /covered rw - ext4 /dev/sda5 rw
35 34 0:60 / /covered rw - tmpfs tmpfs rw
36 20 43:0 / /opt rw - ext4 /dev/nbd0 rw
37 20 8:6 /docker/hosts /etc/hosts rw - ext4 /dev/sda6 rw
/dev/disk/by-label/USB\x20STICK -> ../../sdb1
/home/file: makes the place
/media/alice/My disk/file: makes the place
)";
    for (const auto *partition : {"8:1 sda1", "8:2 sda2", "8:4 sda4", "8:5 sda5", "8:6 sda6"})
        tree += device(partition, ataBus + "/block/sda/");
    for (const auto *partition : {"8:17 sdb1", "8:18 sdb2"})
        tree += device(partition, usbBus + "/block/sdb/");
    for (const auto *mapped : {"254:0 dm-0", "254:1 dm-1", "7:0 loop0", "43:0 nbd0"})
        tree += device(mapped, "virtual/block/");
    tree += "/sys/devices/virtual/block/dm-1/slaves/sdb2 -> ../../../../" + usbBus + "/block/sdb/sdb2\n";
    const FileTree files(tree);
    QCOMPARE(volumes(*linuxMachine(files.root())),
             QStringList({u"/boot, ext4, no size, no, yes"_s, u"/home, ext4, sized, yes, yes"_s,
                          u"USB STICK, vfat, no size, yes, no"_s, u", ntfs3, sized, no, no"_s,
                          u", btrfs, no size, no, yes"_s, u", ext4, no size, no, no"_s}));
}

QTEST_GUILESS_MAIN(LinuxVolumesTest)
#include "LinuxVolumesTest.moc"
