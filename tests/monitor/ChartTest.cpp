// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "monitor/chart.h"

#include "monitor/MonitorModel.h"
#include "monitor/texts.h"
#include "monitor/verdicts.h"

#include <QTest>

using namespace quillmark::monitor;
using namespace Qt::StringLiterals;

namespace {

using LoadsAtSeconds = QList<std::pair<double, double>>;

std::vector<MonitorModel::Point> history(const LoadsAtSeconds &loads)
{
    std::vector<MonitorModel::Point> points;
    for (const auto &[second, load] : loads)
        points.push_back(
            {.date = Date(std::chrono::microseconds(1772355600000000 + std::int64_t(second * 1e6))),
             .cpu = load});
    return points;
}

} // namespace

class ChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void model();
    void agesAndGaps();
    void columns_data();
    void columns();
    void networkAxis();
    void rates();
    void axisLabels();
    void words();
};

void ChartTest::model()
{
    const MonitorModel nothing({}, std::nullopt);
    QVERIFY(nothing.points.empty() && nothing.perCore.empty() && !nothing.battery && !nothing.charging);
    const std::vector<MonitorSample> samples = {
        {.memoryUsed = 5}, {.memoryUsed = 6, .memoryTotal = 8, .batteryLevel = 0.5, .isCharging = false}};
    const MonitorModel model(samples, samples[1]);
    QCOMPARE(model.points.size(), std::size_t(2));
    QVERIFY(model.points[0].memory == 0 && model.points[1].memory == 0.75);
    QVERIFY(model.battery == 0.5 && model.charging == false);
    QCOMPARE(MonitorModel::sample().points.size(), std::size_t(120));
}

void ChartTest::agesAndGaps()
{
    // With a bar where the line is broken.
    const QList<std::pair<QList<double>, QString>> histories = {{{}, QString()},
                                                                {{5}, u"|0"_s},
                                                                {{0, 1, 2.25}, u"|2.25 1.25 0"_s},
                                                                {{0, 2.5, 5.25, 6.25}, u"|6.25 3.75 |1 0"_s},
                                                                {{10, 10, 3, 4}, u"|3 2 1 0"_s}};
    for (const auto &[seconds, expected] : histories) {
        LoadsAtSeconds loads;
        for (const double second : seconds)
            loads.append({second, 0});
        QStringList ages;
        for (const auto &point : series(history(loads), &MonitorModel::Point::cpu))
            ages += (point.joinsPrevious ? QString() : u"|"_s) + QString::number(point.age);
        QCOMPARE(ages.join(u' '), expected);
    }
}

void ChartTest::columns_data()
{
    using Loads = LoadsAtSeconds;
    QTest::addColumn<Loads>("loads");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("expected"); // the last columns, "-" where there is no line
    QTest::newRow("one sample") << Loads{{0, 0.5}} << 120 << u"- - - 0.5"_s;
    QTest::newRow("a column a second") << Loads{{0, 0.25}, {1, 1}, {2, 0}} << 120 << u"- 0.25 1 0"_s;
    QTest::newRow("gap") << Loads{{0, 1}, {3, 0.5}} << 120 << u"1 - - 0.5"_s;
    QTest::newRow("between samples") << Loads{{0, 0}, {1, 1}} << 239 << u"- 0 0.5 1"_s;
    QTest::newRow("a peak in a narrow chart") << Loads{{0, 0}, {1, 1}, {2, 0}, {3, 0}} << 40 << u"- - 1 0"_s;
    QTest::newRow("two seconds late") << Loads{{0, 0}, {2, 1}} << 120 << u"- 0 0.5 1"_s;
    QTest::newRow("from beyond the left edge") << Loads{{0, 0}, {2, 1}, {4, 1}} << 2 << u"- 1"_s;
    QTest::newRow("no room") << Loads{{0, 1}} << 0 << QString();
}

void ChartTest::columns()
{
    QFETCH(const LoadsAtSeconds, loads);
    QFETCH(const int, count);
    const auto all = quillmark::monitor::columns(series(history(loads), &MonitorModel::Point::cpu),
                                                 static_cast<std::size_t>(count));
    QCOMPARE(all.size(), static_cast<std::size_t>(count));
    QStringList last;
    for (const auto &value : all)
        last += value ? QString::number(*value) : u"-"_s;
    QTEST(last.mid(std::max(qsizetype(0), last.size() - 4)).join(u' '), "expected");
}

void ChartTest::networkAxis()
{
    for (const auto &[rate, top] : QList<std::pair<double, double>>{
             {0, 1e5}, {90e3, 1e5}, {91e3, 2e5}, {400e3, 5e5}, {460e3, 1e6}, {1.9e6, 5e6}, {3e9, 5e9}})
        QCOMPARE(axisTop(rate), top);

    NetworkAxis axis;
    QCOMPARE(axis.update(3e6), 5e6);
    QCOMPARE(axis.update(30e6), 50e6);
    for (int sample = 0; sample < 4; ++sample)
        QCOMPARE(axis.update(100), 50e6);
    QCOMPARE(axis.update(40e6), 50e6); // begins the count anew
    for (int sample = 0; sample < 4; ++sample)
        QCOMPARE(axis.update(100), 50e6);
    QCOMPARE(axis.update(3e6), 5e6);
}

void ChartTest::rates()
{
    const QList<std::pair<double, QString>> rates = {
        {0, u"0 KB/s"_s},          {12.3, u"0.012 KB/s"_s},   {999.6, u"1.00 KB/s"_s},
        {18640, u"18.6 KB/s"_s},   {99960, u"100 KB/s"_s},    {186400, u"186 KB/s"_s},
        {999400, u"999 KB/s"_s},   {999500, u"1.00 MB/s"_s},  {1.24e6, u"1.24 MB/s"_s},
        {9.996e6, u"10.0 MB/s"_s}, {12.34e9, u"12.3 GB/s"_s}, {5e16, u"50,000 TB/s"_s}};
    for (const auto &[rate, text] : rates)
        QCOMPARE(rateText(rate, quillmark::language::Formats(u"en"_s)).replace(QChar::Nbsp, u' '), text);
}

void ChartTest::axisLabels()
{
    const auto label = [](double rate) {
        return axisText(rate, quillmark::language::Formats(u"en"_s)).replace(QChar::Nbsp, u' ');
    };
    QCOMPARE(label(50e3), u"50 KB/s"_s);
    QCOMPARE(label(1e6), u"1 MB/s"_s);
    QCOMPARE(label(2.5e6), u"2.5 MB/s"_s);
    QCOMPARE(label(500e6), u"500 MB/s"_s);
    QCOMPARE(label(1e9), u"1 GB/s"_s);
    QCOMPARE(label(5e15), u"5,000 TB/s"_s);
}

void ChartTest::words()
{
    const QStringList heat = {u"Unknown"_s, u"Normal"_s, u"Warm"_s, u"Hot"_s, u"Critical"_s, u"Unknown"_s};
    for (int state = -1; state <= 4; ++state)
        QCOMPARE(title(static_cast<ThermalState>(state)), heat[state + 1]);
    const auto verdict = [](double pressure) { return title(pressureVerdict(pressure)); };
    QCOMPARE(verdict(0.599), u"Pressure normal"_s);
    QCOMPARE(verdict(0.6), u"Pressure elevated"_s);
    QCOMPARE(verdict(0.849), u"Pressure elevated"_s);
    QCOMPARE(verdict(0.85), u"Pressure critical"_s);
}

QTEST_APPLESS_MAIN(ChartTest)
#include "ChartTest.moc"
