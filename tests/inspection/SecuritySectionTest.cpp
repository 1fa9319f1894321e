// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "inspection/helperVerdicts.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QTest>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

CapabilitySection sectionOf(const platform::Machine &machine)
{
    return DeviceProbe::securitySection(machine, language::Formats(u"en"_s));
}

QString shown(const std::optional<Verdict> &verdict)
{
    return verdict ? verdict->value + u" | "_s + rawValue(verdict->status) : u"no verdict"_s;
}

constexpr auto linuxMembers =
    R"("operatingSystem": {"name": "Debian GNU/Linux"}, "instructionSet": "x86_64")";

} // namespace

class SecuritySectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingAnswered();
    void helpers_data();
    void helpers();
    void hardware_data();
    void hardware();
    void touchId_data();
    void touchId();
    void linuxRows_data();
    void linuxRows();
    void recordings();
};

/// What a system does not tell is called neither off nor missing.
void SecuritySectionTest::nothingAnswered()
{
    QVERIFY(hasRows(sectionOf(*changedMachine(R"({"operatingSystem": {"major": 12}})")),
                    {u"firewall | Not readable | info"_s, u"lockdownMode absent"_s}));
    const auto onX86 = [](const QByteArray &more) {
        return sectionOf(*changedMachine(QByteArray("{") + linuxMembers + more + '}'));
    };
    QVERIFY(hasRows(onX86(""), {u"*tpm | Not readable | info"_s}));
    QVERIFY(hasRows(onX86(R"(, "securityState": {"hasEfi": true, "tpmIsKnown": false})"),
                    {u"*secureBoot | Not readable | info"_s, u"tpm | Not readable | info"_s}));
}

void SecuritySectionTest::helpers_data()
{
    QTest::addColumn<QByteArray>("helper");
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *helper, const char *output, const QString &expected) {
        QTest::newRow(QByteArray(helper) + ": " + output)
            << QByteArray(helper) << QByteArray(output) << expected;
    };
    const auto supported = u" | supported"_s;
    const auto warning = u" | warning"_s;
    row("fdesetup", "FileVault is On.\n", u"On"_s + supported);
    row("fdesetup", "FileVault is On.\nEncryption in progress: Percent completed = 6\n",
        u"On, encrypting"_s + warning);
    row("fdesetup", "FileVault is Off.\r\nDecryption in progress: Percent completed = 50.0\r\n",
        u"Turning off"_s + warning);
    row("fdesetup",
        "FileVault is Off.\nDeferred enablement appears to be active for user 'FileVault is On.'.\n",
        u"Off"_s + warning);
    row("fdesetup", "FileVault is Off, but will be enabled after the next restart.", u"Off"_s + warning);
    row("fdesetup", "FileVault is Offline.\n", u"no verdict"_s);
    row("fdesetup", "FileVault est activ\xe9.\n", u"no verdict"_s);
    row("fdesetup", "Error: FileVault is On.\n", u"no verdict"_s);
    row("csrutil", "System Integrity Protection status: enabled.\n", u"On"_s + supported);
    row("csrutil", "System Integrity Protection status: disabled.\n", u"Off"_s + warning);
    row("csrutil",
        "System Integrity Protection status: unknown (Custom Configuration).\n\nConfiguration:\n\tKext "
        "Signing: enabled.\n",
        u"Partly on"_s + warning);
    row("csrutil", "System Integrity Protection status: enabled (Custom Configuration).\n",
        u"Partly on"_s + warning);
    row("csrutil", "System Integrity Protection status: unknown.\n\tKext Signing: disabled.\n",
        u"no verdict"_s);
    row("csrutil", "csrutil: failed to read\nKext Signing: enabled.\n", u"no verdict"_s);
    row("spctl", "assessments enabled\ndeveloper id disabled\n", u"On"_s + supported);
    row("spctl", "assessments disabled\n", u"Off"_s + warning);
    row("spctl", "assessments disabledx\n", u"no verdict"_s);
    row("socketfilterfw", "Firewall is disabled. (State = 0)\n", u"Off"_s + warning);
    row("socketfilterfw", "Firewall is enabled. (State = 1) \n", u"On"_s + supported);
    row("socketfilterfw", "Firewall is set to block (State = 2)",
        u"On, blocks all incoming connections"_s + supported);
    row("socketfilterfw", "Firewall is enabled. (State = 10)\n", u"no verdict"_s);
    for (const char *helper : {"fdesetup", "csrutil", "spctl", "socketfilterfw"}) {
        row(helper, "", u"no verdict"_s);
        row(helper, "\n\n \xff\xfe\n", u"no verdict"_s);
    }
}

void SecuritySectionTest::helpers()
{
    QFETCH(const QByteArray, helper);
    QFETCH(const QByteArray, output);
    // The program's exit status is 1 in a state that is not on, and when it fails.
    const HelperAnswer answer = platform::CommandAnswer{1, output.toStdString()};
    QTEST(shown(helper == "fdesetup"  ? fileVaultVerdict(answer, false)
                : helper == "csrutil" ? integrityProtectionVerdict(answer)
                : helper == "spctl"   ? gatekeeperVerdict(answer)
                                      : firewallVerdict(answer)),
          "expected");
}

void SecuritySectionTest::hardware_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &key, const QByteArray &changes,
                        const QString &expected) { QTest::newRow(name) << changes << key << expected; };
    const QByteArray fileVaultOff = R"("securityState": {"fdesetup": {"output": "FileVault is Off.\n"}})";
    row("off on Apple silicon", u"fileVault"_s, '{' + fileVaultOff + '}',
        u"Off (the disk is still encrypted by hardware) | warning"_s);
    row("off on Intel", u"fileVault"_s, "{\"sysctl\": {\"hw.optional.arm64\": null}, " + fileVaultOff + '}',
        u"Off | warning"_s);
    row("off in a guest", u"fileVault"_s, "{\"sysctl\": {\"kern.hv_vmm_present\": 1}, " + fileVaultOff + '}',
        u"Off | warning"_s);

    const auto volume = [&row](const char *name, const QByteArray &properties, const QString &expected) {
        row(name, u"sealedSystem"_s,
            R"({"registry": {"AppleAPFSVolume": [{"Role": ["Data"], "Sealed": "No"}, )" + properties + "]}}",
            expected);
    };
    volume("sealed", R"({"Role": ["System"]}, {"Role": ["System"], "Sealed": true})",
           u"Sealed | supported"_s);
    volume("sealed, in words", R"({"Role": "System", "Sealed": "Yes"})", u"Sealed | supported"_s);
    volume("not sealed", R"({"Role": ["System"], "Sealed": "No"})", u"Not sealed | warning"_s);
    volume("not sealed, as a flag", R"({"Role": ["System"], "Sealed": false})", u"Not sealed | warning"_s);
    volume("seal broken", R"({"Role": ["System"], "Sealed": "Broken"})", u"Broken | warning"_s);
    volume("another word", R"({"Role": ["System"], "Sealed": "Maybe"})", u"Not readable | info"_s);
    volume("no seal", R"({"Role": ["System"]}, {"Role": 1, "Sealed": true})", u"absent"_s);

    const auto policy = [&row](const char *name, const char *value, const QString &expected) {
        row(name, u"secureBoot"_s,
            QByteArray(
                R"({"sysctl": {"hw.optional.arm64": 0}, "registry": {"IODeviceTree:/options": {"94b73556-2197-4702-82a8-3e1337dafbfb:AppleSecureBootPolicy": )") +
                value + "}}}",
            expected);
    };
    policy("policy 2", R"({"hex": "02"})", u"Full security | supported"_s);
    policy("policy 1", R"({"hex": "01"})", u"Medium security | warning"_s);
    policy("policy 0", R"({"hex": "00"})", u"No security | warning"_s);
    policy("policy 3", R"({"hex": "03"})", u"Not readable | info"_s);
    policy("policy of two bytes", R"({"hex": "0200"})", u"Not readable | info"_s);
    policy("no policy", "null", u"absent"_s);
    row("policy on Apple silicon", u"secureBoot"_s,
        R"({"registry": {"IODeviceTree:/options": {"94b73556-2197-4702-82a8-3e1337dafbfb:AppleSecureBootPolicy": {"hex": "02"}}}})",
        u"absent"_s);

    const auto chip = [&row](const char *name, const char *value, const QString &expected) {
        row(name, u"secureEnclave"_s,
            QByteArray(
                R"({"sysctl": {"hw.optional.arm64": 0}, "registry": {"IODeviceTree:/efi/platform": {"apple-coprocessor-version": )") +
                value + "}}}",
            expected);
    };
    chip("T2", R"({"hex": "00000200"})", u"Available | supported"_s);
    chip("T1", R"({"hex": "00000100"})", u"Available | supported"_s);
    chip("before T1", R"({"hex": "ffff0000"})", u"Not available | unsupported"_s);
    chip("no chip", "null", u"Not available | unsupported"_s);
    chip("a version that is none", R"({"hex": "000200"})", u"Not readable | info"_s);
    row("enclave", u"secureEnclave"_s, R"({"registry": {"AppleSEPManager": {}}})",
        u"Available | supported"_s);
    row("enclave missing", u"secureEnclave"_s, R"({"registry": {}})", u"Not available | unsupported"_s);
    row("enclave of a guest", u"secureEnclave"_s, R"({"sysctl": {"kern.hv_vmm_present": 1}})",
        u"Virtual machine | info"_s);
    row("a guest", u"virtualMachine"_s, R"({"sysctl": {"kern.hv_vmm_present": 1}})", u"Yes | info"_s);
    row("no guest", u"virtualMachine"_s, R"({"sysctl": {"kern.hv_vmm_present": 0}})", u"absent"_s);
    row("Lockdown Mode", u"lockdownMode"_s, R"({"securityState": {"lockdownMode": true}})", u"On | info"_s);
    row("XProtect without a version", u"xprotect"_s, R"({"securityState": {"xprotectVersion": ""}})",
        u"absent"_s);
}

void SecuritySectionTest::hardware()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, key);
    QFETCH(const QString, expected);
    const auto line = key + (expected == u"absent"_s ? u" "_s : u" | "_s) + expected;
    QVERIFY(hasRows(sectionOf(*changedMachine(changes)), {line}));
}

void SecuritySectionTest::touchId_data()
{
    QTest::addColumn<QByteArray>("biometry");
    QTest::addColumn<QString>("portable");
    QTest::addColumn<QString>("desktop");
    const auto row = [](const char *biometry, const QString &portable, const QString &desktop = {}) {
        QTest::newRow(biometry) << QByteArray(biometry) << portable
                                << (desktop.isEmpty() ? portable : desktop);
    };
    row(R"("canEvaluate": true, "biometryType": 1)", u"Available | supported"_s);
    row(R"("canEvaluate": false, "biometryType": 1, "error": -5)", u"Available, not set up | supported"_s);
    row(R"("canEvaluate": false, "biometryType": 1, "error": -7)", u"Available, not set up | supported"_s);
    row(R"("canEvaluate": false, "biometryType": 1, "error": -8)", u"Available, locked | supported"_s);
    row(R"("canEvaluate": false, "biometryType": 1, "error": -13)", u"Not connected | info"_s);
    row(R"("canEvaluate": false, "biometryType": 1, "error": -6)", u"Not readable | info"_s);
    row(R"("canEvaluate": false, "biometryType": 1)", u"Not readable | info"_s);
    row(R"("canEvaluate": false, "biometryType": 0, "error": -12)", u"Not connected | info"_s);
    row(R"("canEvaluate": false, "biometryType": 0, "error": -13)", u"Not connected | info"_s);
    row(R"("canEvaluate": false, "biometryType": 0, "error": -6)", u"Not available | unsupported"_s,
        u"None (desktop) | info"_s);
    row(R"("canEvaluate": true, "biometryType": 0)", u"Not readable | info"_s);
    row(R"("canEvaluate": true, "biometryType": 2)", u"Not readable | info"_s);
}

void SecuritySectionTest::touchId()
{
    QFETCH(const QByteArray, biometry);
    const QByteArray state = R"("securityState": {"biometry": {)" + biometry + "}}";
    QFETCH(const QString, portable);
    QFETCH(const QString, desktop);
    const auto says = [&state](const QByteArray &more, const QString &text) {
        return hasRows(sectionOf(*changedMachine('{' + state + more + '}')), {u"touchID | "_s + text});
    };
    QVERIFY(says(R"(, "powerSources": [{"Type": "InternalBattery"}])", portable));
    QVERIFY(says(R"(, "powerSources": [{"Type": "UPS"}])", desktop));
    QVERIFY(says(R"(, "sysctl": {"kern.hv_vmm_present": 1})", u"Virtual machine | info"_s));
}

void SecuritySectionTest::linuxRows_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QString>("expected"); // without the row of the TPM, which is always there
    const auto row = [](const QByteArray &state, const QString &expected) {
        QTest::newRow(state) << state << expected;
    };
    row(R"("efiSecureBoot": 1)", u"secureBoot | On | supported"_s);
    row(R"("efiSecureBoot": 0)", u"secureBoot | Off | warning"_s);
    row(R"("efiSecureBoot": 2)", u"secureBoot | Not readable | info"_s);
    row(R"("rootIsBlockDevice": true)", u"diskEncryption | Off | warning"_s);
    row(R"("rootDeviceMapperUuidPrefix": "CRYPT-LUKS2-")", u"diskEncryption | LUKS2 | supported"_s);
    row(R"("rootDeviceMapperUuidPrefix": "CRYPT-LUKS1-")", u"diskEncryption | LUKS1 | supported"_s);
    row(R"("rootDeviceMapperUuidPrefix": "CRYPT-PLAIN-")", u"diskEncryption | dm-crypt | supported"_s);
    row(R"("rootDeviceMapperUuidPrefix": "LVM-")", u"diskEncryption | Off | warning"_s);
    row(R"("lsm": "capability,selinux,bpf", "selinuxEnforcing": true)",
        u"accessControl | SELinux, enforcing | supported"_s);
    row(R"("lsm": "selinux,apparmor", "selinuxEnforcing": false)",
        u"accessControl | SELinux, permissive | warning"_s);
    row(R"("lsm": "capability,selinux")", u"accessControl | Not readable | info"_s);
    row(R"("lsm": "capability,apparmor")", u"accessControl | AppArmor | supported"_s);
    row(R"("lsm": "capability,notapparmor")", u"accessControl | None | info"_s);
    row(R"("cpuVulnerabilities": ["Not affected", "Mitigation: Vulnerable"])",
        u"cpuVulnerabilities | All mitigated | supported"_s);
    row(R"("cpuVulnerabilities": ["Vulnerable", "Not affected", "Vulnerable: no microcode"])",
        u"cpuVulnerabilities | 2 not mitigated | warning"_s);
    row(R"("biometry": {"canEvaluate": true, "biometryType": 1}, "lockdownMode": true)", u""_s);
    // The TPM itself.
    row(R"("tpmVersionMajor": 2)", u"tpm | TPM 2.0 | supported"_s);
    row(R"("tpmVersionMajor": 1)", u"tpm | TPM 1.2 | supported"_s);
    row(R"("tpmVersionMajor": 3)", u"tpm | Not readable | info"_s);
    row(R"("tpmIsKnown": true)", u"tpm | Not available | unsupported"_s);
}

void SecuritySectionTest::linuxRows()
{
    QFETCH(const QByteArray, state);
    QFETCH(const QString, expected);
    const QByteArray members = QByteArray("{") + linuxMembers + ", \"securityState\": {" + state + '}';
    const bool isTpm = expected.startsWith(u"tpm"_s);
    auto all = rows(sectionOf(*changedMachine(members + '}')));
    all.removeIf([isTpm](const QString &one) { return one.startsWith(u"tpm"_s) != isTpm; });
    QCOMPARE(all.join(u'\n'), expected);
    if (!isTpm)
        return;
    // One that a guest has is as good; only its lack is excused.
    const bool isLacking = expected == u"tpm | Not available | unsupported"_s;
    const auto guest = changedMachine(members + R"(, "sysctl": {"kern.hv_vmm_present": 1}})");
    QVERIFY(hasRows(sectionOf(*guest), {isLacking ? u"tpm | Virtual machine | info"_s : expected}));
}

/// What is recorded gives the same rows, and nothing else of what the sources hold.
void SecuritySectionTest::recordings()
{
    const QByteArrayList recordings = {
        changedRecording(R"({"securityState": {
            "fdesetup": {"exitStatus": 3, "output": "FileVault is Off.\nDeferred enablement appears to be active for user 'lovelace'.\n"},
            "csrutil": {"output": "lovelace: hello\nSystem Integrity Protection status: disabled.\n\tada: enabled\n"},
            "spctl": {"exitStatus": 1, "output": "/Users/lovelace: no\nassessments disabled"}},
            "registry": {"AppleAPFSVolume": [{"FullName": "lovelace", "Role": ["System"], "Sealed": "No", "VolGroupMntFromName": {"hex": "616461"}},
                    {"FullName": "lovelace", "Statistics": {"lovelace": 1}}],
                "AppleSEPManager": {"lovelace": "lovelace", "IOPlatformUUID": "lovelace"},
                "IODeviceTree:/efi/platform": {"system-id": {"hex": "616461"}, "apple-coprocessor-version": {"hex": "00000200"}},
                "IODeviceTree:/options": {"fmm-computer-name": "lovelace", "current-network": {"hex": "616461"}, "preferred-networks": ["lovelace"],
                    "94b73556-2197-4702-82a8-3e1337dafbfb:AppleSecureBootPolicy": {"hex": "01"}}}})"),
        changedRecording(
            QByteArray("{") + linuxMembers +
            R"(, "securityState": {"rootDeviceMapperUuidPrefix": "CRYPT-LUKS2-616461-lovelace", "tpmIsKnown": false, "lsm": "selinux",
                "selinuxEnforcing": false, "hasEfi": true}})"),
        changedRecording(QByteArray("{") + linuxMembers + "}")};
    for (const auto &recording : recordings) {
        const auto machine = machineFrom(recording);
        const auto text = QByteArray::fromStdString(recordMachine(*machine, platform::RecordedNames::Keep));
        QVERIFY(sameLines(rows(sectionOf(*machineFrom(text))), rows(sectionOf(*machine))));
        for (const char *secret : {"lovelace", "616461", "FullName", "Configuration:"})
            QVERIFY2(!text.contains(secret), secret);
    }
}

QTEST_GUILESS_MAIN(SecuritySectionTest)
#include "SecuritySectionTest.moc"
