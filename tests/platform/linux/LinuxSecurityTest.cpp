// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/FileTree.h"
#include "platform/linux/LinuxMachine.h"

#include <QTest>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

namespace {

SecurityState stateOf(const FileTree &files)
{
    return linuxMachine(files.root())->security().read();
}

/// A device under the name that the kernel gives it.
QByteArray block(const char *name, const char *file, const char *content = "")
{
    return QByteArray("/sys/class/block/") + name + '/' + file + ": " + content + '\n';
}

} // namespace

class LinuxSecurityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states();
    void secureBoot_data();
    void secureBoot();
    void rootDevices_data();
    void rootDevices();
    void hypervisors_data();
    void hypervisors();
};

void LinuxSecurityTest::states()
{
    QCOMPARE(stateOf(FileTree("")), SecurityState());

    const FileTree files(R"(/sys/class/tpm/tpm0/tpm_version_major: 2
/sys/kernel/security/lsm: lockdown,capability,selinux
/sys/fs/selinux/enforce: 0
/sys/devices/system/cpu/vulnerabilities/spectre_v2: Vulnerable
/sys/devices/system/cpu/vulnerabilities/mds: Not affected
/sys/devices/system/cpu/vulnerabilities/none: 
)");
    SecurityState expected;
    expected.tpmIsKnown = true;
    expected.tpmVersionMajor = 2;
    expected.lsm = "lockdown,capability,selinux";
    expected.selinuxEnforcing = false;
    expected.cpuVulnerabilities = {"Not affected", "Vulnerable"};
    QCOMPARE(stateOf(files), expected);

    files.write(u"/sys/fs/selinux/enforce"_s, "x");
    files.write(u"/sys/class/tpm/tpm0/tpm_version_major"_s, "");
    expected.selinuxEnforcing.reset();
    expected.tpmVersionMajor.reset();
    expected.tpmIsKnown = false; // there is one, of a version that is not told
    QCOMPARE(stateOf(files), expected);

    SecurityState withoutTpm;
    withoutTpm.tpmIsKnown = true;
    QCOMPARE(stateOf(FileTree("/sys/class/net/lo/type: 772\n")), withoutTpm);
}

void LinuxSecurityTest::secureBoot_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<int>("expected");
    QTest::newRow("on") << QByteArray("\6\0\0\0\1", 5) << 1;
    QTest::newRow("off") << QByteArray("\6\0\0\0\0", 5) << 0;
    QTest::newRow("a value that looks like white space") << QByteArray("\6\0\0\0\n", 5) << 10;
    QTest::newRow("cut short") << QByteArray("\6\0\0\0", 4) << -1;
    QTest::newRow("longer") << QByteArray("\6\0\0\0\1\1", 6) << -1;
    QTest::newRow("empty") << QByteArray() << -1;
}

void LinuxSecurityTest::secureBoot()
{
    QFETCH(QByteArray, variable);
    const FileTree files("");
    files.write(u"/sys/firmware/efi/efivars/SecureBoot-8be4df61-93ca-11d2-aa0d-00e098032b8c"_s, variable);
    const SecurityState state = stateOf(files);
    QVERIFY(state.hasEfi);
    QTEST(state.efiSecureBoot ? int(*state.efiSecureBoot) : -1, "expected");
}

void LinuxSecurityTest::rootDevices_data()
{
    QTest::addColumn<QByteArray>("tree");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &tree, const char *expected) {
        QTest::newRow(name) << tree << QString::fromUtf8(expected);
    };
    const QByteArray onDm1 =
        "/sys/dev/block/254:1 -> ../../devices/virtual/block/dm-1\n/proc/self/mountinfo:\n"
        "1 1 8:9 / / rw - ext4 /dev/sdz rw\n27 1 254:1 / / rw,relatime shared:1 - ext4 /dev/mapper/root rw\n"
        "28 27 8:1 / /boot rw - ext2 /dev/sda1 rw\n";
    const QByteArray onPartition = "/sys/dev/block/8:2 -> ../../block/sda/sda2\n/proc/self/mountinfo:\n"
                                   "27 1 8:2 / / rw - ext4 /dev/root rw\n";
    const QByteArray luks = "CRYPT-LUKS2-0123456789abcdef0123456789abcdef-root";
    row("plain partition", onPartition + block("sda2", "partition", "2"), "not encrypted");
    row("on the partition itself", onDm1 + block("dm-1", "dm/uuid", luks), "CRYPT-LUKS2-");
    row("volume manager above",
        onDm1 + block("dm-1", "dm/uuid", "LVM-CRYPT-LUKS2-") + block("dm-1", "slaves/dm-0/x") +
            block("dm-0", "dm/uuid", "CRYPT-LUKS1-0123-name"),
        "CRYPT-LUKS1-");
    row("one of two parts",
        onDm1 + block("dm-1", "slaves/dm-0/x") + block("dm-1", "slaves/sdb1/x") +
            block("dm-0", "dm/uuid", luks),
        "not encrypted");
    row("both parts",
        onDm1 + block("dm-1", "slaves/dm-0/x") + block("dm-1", "slaves/dm-2/x") +
            block("dm-0", "dm/uuid", luks) + block("dm-2", "dm/uuid", luks),
        "CRYPT-LUKS2-");
    row("checked, not encrypted", onDm1 + block("dm-1", "dm/uuid", "CRYPT-VERITY-0123-root"),
        "not encrypted");
    row("checked and encrypted",
        onDm1 + block("dm-1", "dm/uuid", "CRYPT-VERITY-0123-root") + block("dm-1", "slaves/dm-0/x") +
            block("dm-0", "dm/uuid", luks),
        "CRYPT-LUKS2-");
    row("a ring of devices", onDm1 + block("dm-1", "slaves/dm-1/x"), "not encrypted");
    row("partition of a disk that is put together",
        onPartition + "/sys/devices/sda/slaves/dm-0/x: \n/sys/devices/sda/sda2/partition: 2\n" +
            "/sys/class/block/sda2 -> ../../devices/sda/sda2\n" + block("dm-0", "dm/uuid", luks),
        "CRYPT-LUKS2-");
    const QByteArray btrfs = "/proc/self/mountinfo:\n27 1 0:33 /root / rw - btrfs /dev/mapper/luks "
                             "rw\n/dev/mapper/luks -> ../dm-0\n";
    row("a file system with a number of its own", btrfs + block("dm-0", "dm/uuid", luks), "CRYPT-LUKS2-");
    row("without /sys", btrfs, "no device");
    row("a container", "/proc/self/mountinfo: 27 1 0:44 / / rw - overlay overlay rw\n", "no device");
    row("a broken table", "/proc/self/mountinfo:\n27 1 8:2 / /\n- / / / / - x /dev/\n", "no device");
}

void LinuxSecurityTest::rootDevices()
{
    QFETCH(QByteArray, tree);
    const SecurityState state = stateOf(FileTree(tree));
    QTEST(!state.rootIsBlockDevice
              ? u"no device"_s
              : QString::fromStdString(state.rootDeviceMapperUuidPrefix.value_or("not encrypted")),
          "expected");
}

void LinuxSecurityTest::hypervisors_data()
{
    QTest::addColumn<QByteArray>("processor");
    QTest::addColumn<int>("expected");
    QTest::newRow("guest") << QByteArray("flags\t\t: fpu lm hypervisor\n\n") << 1;
    QTest::newRow("no guest") << QByteArray("flags\t\t: fpu lm\n\n") << 0;
    QTest::newRow("not told on Arm") << QByteArray("Features\t: fp\nCPU architecture: 8\n\n") << -1;
}

void LinuxSecurityTest::hypervisors()
{
    QFETCH(QByteArray, processor);
    const FileTree files("");
    files.write(u"/proc/cpuinfo"_s, "processor\t: 0\n" + processor);
    const auto value = linuxMachine(files.root())->kernelValues().read("kern.hv_vmm_present");
    QTEST(value ? int(value->front()) : -1, "expected");
}

QTEST_APPLESS_MAIN(LinuxSecurityTest)
#include "LinuxSecurityTest.moc"
