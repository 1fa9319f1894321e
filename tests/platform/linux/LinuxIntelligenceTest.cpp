// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "platform/linux/FileTree.h"
#include "platform/linux/LinuxMachine.h"

#include <QStringList>
#include <QTest>

using namespace quillmark::platform;
using namespace Qt::StringLiterals;

namespace {

QString shown(const std::optional<std::string> &text)
{
    return QString::fromStdString(text.value_or("-"));
}

/// Accelerators as "name driver", render nodes as "name driver status" and "open" where this user may open
/// them.
QStringList answers(const Machine &machine)
{
    const auto accelerators = machine.intelligence().accelerators();
    const auto nodes = machine.intelligence().renderNodes();
    QStringList lines;
    if (!accelerators || !nodes)
        return {u"no answer"_s};
    for (const Accelerator &accelerator : *accelerators)
        lines += QString::fromStdString(accelerator.name) + u' ' + shown(accelerator.driver);
    for (const RenderNode &node : *nodes)
        lines += QString::fromStdString(node.name) + u' ' + shown(node.driver) + u' ' +
                 shown(node.runtimeStatus) + (node.accessible ? u" open"_s : QString());
    return lines;
}

} // namespace

class LinuxIntelligenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
};

void LinuxIntelligenceTest::answers_data()
{
    QTest::addColumn<QByteArray>("tree");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("nothing") << QByteArray() << QStringList{u"no answer"_s};
    QTest::newRow("neither kind") << QByteArray("/sys/class/net/lo/type: 772\n") << QStringList{};
    QTest::newRow("accelerators")
        << QByteArray(R"(/sys/class/accel/accel10/device/driver -> ../../bus/pci/drivers/amdxdna
/sys/class/accel/accel2/device/driver -> ../../bus/pci/drivers/intel_vpu
/sys/class/accel/accelerometer/device/driver -> ../../bus/iio/drivers/wrong
/sys/class/accel/accel3/device/uevent: PCI_CLASS=120000
/sys/bus/pci/devices/0000:05:00.0/class: 0x120000
/sys/bus/pci/devices/0000:00:0b.0/class: 0x120000
/sys/bus/pci/devices/0000:00:0c.0/class: 0x120000
/sys/bus/pci/devices/0000:00:0c.0/driver -> ../../../bus/pci/drivers/intel_vpu
/sys/bus/pci/devices/0000:00:02.0/class: 0x030000
/sys/bus/pci/devices/0000:00:03.0/class: 0x012000
)")
        << QStringList{u"accel2 intel_vpu"_s, u"accel3 -"_s, u"accel10 amdxdna"_s, u"0000:00:0b.0 -"_s,
                       u"0000:05:00.0 -"_s};
    QTest::newRow("render nodes")
        << QByteArray(R"(/sys/class/drm/renderD129/device/driver -> ../../../bus/pci/drivers/nvidia
/sys/class/drm/renderD129/device/power/runtime_status: suspended
/sys/class/drm/renderD128/device/driver -> ../../../../bus/pci/drivers/i915
/sys/class/drm/renderD128/device/power/runtime_status: active
/sys/class/drm/renderD1000/device/uevent: MODALIAS=x
/sys/class/drm/card0/device/driver -> ../../../bus/pci/drivers/i915
/sys/class/drm/renderDX/device/driver -> ../../../bus/pci/drivers/wrong
/dev/dri/renderD128: a device
/dev/dri/card0: a device
)") << QStringList{u"renderD128 i915 active open"_s, u"renderD129 nvidia suspended"_s, u"renderD1000 - -"_s};
}

void LinuxIntelligenceTest::answers()
{
    QFETCH(const QByteArray, tree);
    const FileTree files(tree);
    QTEST(::answers(*linuxMachine(files.root())), "expected");
}

QTEST_APPLESS_MAIN(LinuxIntelligenceTest)
#include "LinuxIntelligenceTest.moc"
