// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "inspection/DeviceProbe.h"
#include "support/Recordings.h"
#include "support/Rows.h"

#include <QRegularExpression>
#include <QTest>

using namespace quillmark;
using namespace quillmark::inspection;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

CapabilitySection sectionOf(const platform::Machine &machine)
{
    return DeviceProbe::storageSection(machine, language::Formats(u"en"_s));
}

/// The rows whose keys begin with the prefix.
QStringList rowsOf(const QByteArray &changes, const QString &prefix)
{
    return rows(sectionOf(*changedMachine(changes))).filter(QRegularExpression(u'^' + prefix));
}

} // namespace

class StorageSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void availableSpace_data();
    void availableSpace();
    void answers_data();
    void answers();
    void manyOfAKind();
    void names();
};

void StorageSectionTest::availableSpace_data()
{
    QTest::addColumn<QByteArray>("members");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &members, const char *expected) {
        QTest::newRow(name) << members << QString::fromLatin1(expected);
    };
    row("just under 15 GB", R"("total": 20000000000, "available": 14999999999)", "15 GB (low) | warning");
    row("15 GB", R"("total": 20000000000, "available": 15000000000)", "15 GB | supported");
    row("just under a tenth", R"("total": 500000000000, "available": 49999999999)", "50 GB (low) | warning");
    row("a tenth", R"("total": 500000000000, "available": 50000000000)", "50 GB | supported");
    row("just under 100 GB of much", R"("total": 8000000000000, "available": 99999999999)",
        "100 GB (low) | warning");
    row("100 GB of much", R"("total": 8000000000000, "available": 100000000000)", "100 GB | supported");
    row("nothing left", R"("available": 0)", "Zero kB (low) | warning");
    row("purgeable space counts", R"("available": 1000, "availableForImportantUsage": 90000000000)",
        "90 GB | supported");
    row("purgeable space alone", R"("available": null, "availableForImportantUsage": 90000000000)",
        "90 GB | supported");
    row("all of it purgeable",
        R"("total": 90000000000, "available": 1000, "availableForImportantUsage": 90000000000)",
        "90 GB | supported");
    row("purgeable space told as 0", R"("available": 80000000000, "availableForImportantUsage": 0)",
        "80 GB | supported");
    row("more purgeable than there is",
        R"("total": 400000000000, "available": 80000000000, "availableForImportantUsage": 400000000001)",
        "80 GB | supported");
    row("only what cannot be true",
        R"("total": 400000000000, "available": null, "availableForImportantUsage": 400000000001)",
        "Not readable | info");
    row("more than there is", R"("total": 400000000000, "available": 400000000001)", "Not readable | info");
    row("not told", R"("available": null, "availableForImportantUsage": 0)", "Not readable | info");
}

void StorageSectionTest::availableSpace()
{
    QFETCH(const QByteArray, members);
    QFETCH(const QString, expected);
    QCOMPARE(rowsOf(R"({"volume": {)" + members + "}}", u"availableSpace"_s),
             QStringList(u"availableSpace | "_s + expected));
}

void StorageSectionTest::answers_data()
{
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const QByteArray &changes, const char *prefix,
                        const QStringList &expected) {
        QTest::newRow(name) << changes << QString::fromLatin1(prefix) << expected;
    };
    row("what the volume can do",
        R"({"volume": {"fileSystem": "hfs", "supportsFileCloning": false, "supportsCaseSensitiveNames": true}})",
        "(file|case)",
        {u"fileSystem | Mac OS Extended | info"_s, u"fileCloning | Not supported | unsupported"_s,
         u"caseSensitiveNames | Yes | info"_s});
    row("nothing told of the volume", R"({"volume": {"name": null, "total": 0, "available": null}})",
        "(startup|capacity|available|fileSystem)",
        {u"startupVolume | Not readable | info"_s, u"capacity | Not readable | info"_s,
         u"availableSpace | Not readable | info"_s, u"fileSystem | Not readable | info"_s});
    row("file system that is not known", R"({"volume": {"fileSystem": "zfs"}})", "fileSystem",
        {u"fileSystem | zfs | info"_s});

    const auto disk = [&row](const char *name, const QByteArray &members, const QStringList &expected,
                             const QByteArray &more = "{}") {
        row(name, "{\"disks\": [{" + members + "}], " + more.mid(1), "disk", expected);
    };
    disk("nothing told of a disk", "", {u"disk.1 | Not readable | info"_s}, R"({"hostName": "Test Mac"})");
    const QByteArray other = R"({"operatingSystem": {"name": "Debian"}})";
    const QByteArray guest = R"({"sysctl": {"kern.hv_vmm_present": 1}})";
    const QByteArray native = R"({"sysctl": {"kern.hv_vmm_present": 0}})";
    const QByteArray ssd =
        R"("Size": 1000, "Medium Type": "Solid State", "Physical Interconnect Location": "Internal")";
    disk("SSD that is not told to use TRIM", ssd,
         {u"disk.1 | 1 kB (SSD and internal) | info"_s, u"disk.1.trim | Off | warning"_s}, native);
    disk("the same on a system that would tell", ssd,
         {u"disk.1 | 1 kB (SSD and internal) | info"_s, u"disk.1.trim | Not readable | info"_s}, other);
    disk("SSD without TRIM on such a system", ssd + R"(, "Unmap": false)",
         {u"disk.1 | 1 kB (SSD and internal) | info"_s, u"disk.1.trim | Off | warning"_s}, other);
    disk("SSD of a guest", ssd + R"(, "Unmap": false)", {u"disk.1 | 1 kB (SSD and internal) | info"_s},
         guest);
    disk("external SSD",
         R"("Product Name": " T7 ", "Medium Type": "Solid State", "Physical Interconnect": "USB",
            "Physical Interconnect Location": "External", "Removable": true, "Unmap": false)",
         {u"disk.1 | T7 (SSD, external, and removable) | info"_s, u"disk.1.connection | USB | info"_s},
         native);
    disk("hard disk",
         R"("Product Name": "WD10", "Size": 0, "Medium Type": "Rotational", "Physical Interconnect": "SATA",
            "Physical Interconnect Location": "Internal", "Unmap": true)",
         {u"disk.1 | WD10 (hard disk and internal) | info"_s, u"disk.1.connection | SATA | info"_s}, native);
    disk("words that are not known",
         R"("Product Name": "X", "Medium Type": "Tape", "Physical Interconnect": "SAS",
            "Physical Interconnect Location": "Elsewhere")",
         {u"disk.1 | X | info"_s, u"disk.1.connection | SAS | info"_s}, native);
    disk("disk image", R"("Product Name": "Disk Image", "Physical Interconnect Location": "File")", {},
         native);

    const auto volume = [&row](const char *name, const QByteArray &members, const QStringList &expected) {
        row(name, "{\"volumes\": [{" + members + "}]}", "volume", expected);
    };
    volume("volume without a name", R"("total": 1000, "available": 0)",
           {u"volume.1 | Volume | info"_s, u"volume.1.available | Zero kB of 1 kB | info"_s});
    volume("volume that is not written",
           R"("name": "A", "isReadOnly": true, "isInternal": false, "total": 1000)",
           {u"volume.1 | A (external and read only) | info"_s});
    volume("volume with more space than it has",
           R"("name": "B", "isInternal": true, "total": 1000, "available": 1001)",
           {u"volume.1 | B | info"_s});
    volume("volume of no size", R"("name": "C", "total": 0, "available": 0)", {u"volume.1 | C | info"_s});
}

void StorageSectionTest::answers()
{
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, prefix);
    QTEST(rowsOf(changes, prefix), "expected");
}

/// One thing has no number in its label; of many, sixteen are shown. The key always has the number.
void StorageSectionTest::manyOfAKind()
{
    const QByteArray disk = R"({"Medium Type": "Solid State", "Physical Interconnect": "PCI-Express",
                                "Physical Interconnect Location": "Internal", "Unmap": true})";
    const QByteArray volume = R"({"name": "V", "total": 2000, "available": 1000})";
    const auto labels = [&](int count) {
        const QByteArrayList disks(count, disk);
        const QByteArrayList volumes(count, volume);
        QStringList found;
        for (const auto &item : sectionOf(*changedMachine("{\"disks\": [" + disks.join(',') +
                                                          "], \"volumes\": [" + volumes.join(',') + "]}"))
                                    .items.mid(6))
            found += support::line(item);
        return found;
    };
    QCOMPARE(labels(1),
             QStringList({u"disk.1 | Disk | Not readable (SSD and internal) | info"_s,
                          u"disk.1.connection | Connection | PCI Express | info"_s,
                          u"disk.1.trim | TRIM | On | supported"_s, u"volume.1 | Volume | V | info"_s,
                          u"volume.1.available | Volume space | 1 kB of 2 kB | info | volatile"_s}));
    const auto many = labels(17);
    QCOMPARE(many.size(), 16 * 5);
    QCOMPARE(many.at(4), u"disk.2.connection | Connection (disk 2) | PCI Express | info"_s);
    QCOMPARE(many.at(47), u"disk.16.trim | TRIM (disk 16) | On | supported"_s);
    QCOMPARE(many.at(48), u"volume.1 | Volume 1 | V | info"_s);
    QCOMPARE(many.last(),
             u"volume.16.available | Volume space (volume 16) | 1 kB of 2 kB | info | volatile"_s);
}

/// Everything comes back out of a recording but the names that people gave, unless they were to be kept.
void StorageSectionTest::names()
{
    const auto machine = machineFrom(recordingText(u"macbook-pro-m3-max"_s));
    auto expected = rows(sectionOf(*machine));
    QVERIFY(sameLines(rows(sectionOf(*recordedAgain(*machine))), expected));
    expected.replaceInStrings(u"Macintosh HD"_s, u"Not readable"_s);
    expected.replaceInStrings(u"Backup"_s, u"Volume"_s);
    const auto again = recordedAgain(*machine, platform::RecordedNames::LeaveOut);
    QVERIFY(sameLines(rows(sectionOf(*again)), expected));
}

QTEST_GUILESS_MAIN(StorageSectionTest)
#include "StorageSectionTest.moc"
