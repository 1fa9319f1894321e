// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/widgets/ChartView.h"

#include "app/Appearance.h"
#include "app/widgets/ChartTrace.h"
#include "app/widgets/CoreBars.h"
#include "app/widgets/FigureLine.h"
#include "support/offscreen.h"

#include <QImage>
#include <QTest>

#include <cmath>

using namespace quillmark;
using namespace Qt::StringLiterals;
using app::ChartTrace;
using design::Role;
using monitor::ChartPoint;
using monitor::MonitorModel;

namespace {

/// The history of a sine with samples at these moments, newest last, of which the last 120 are known.
std::vector<ChartPoint> historyAt(const std::vector<double> &moments, double phase)
{
    const auto first = moments.size() - std::min(moments.size(), monitor::maximumSamples);
    std::vector<ChartPoint> points;
    for (auto i = first; i < moments.size(); ++i) {
        const double step = i > 0 ? moments[i] - moments[i - 1] : 0;
        points.push_back({.age = moments.back() - moments[i],
                          .value = 0.5 + 0.3 * std::sin(moments[i] / 7 + phase),
                          .joinsPrevious = i > first && !monitor::isGap(step)});
    }
    return points;
}

std::vector<ChartTrace::Line> linesAt(const std::vector<double> &moments)
{
    return {{historyAt(moments, 0), Qt::blue, true}, {historyAt(moments, 2), Qt::red, false}};
}

std::vector<MonitorModel::Point> loads(const std::vector<double> &values)
{
    std::vector<MonitorModel::Point> points;
    for (const double value : values)
        points.push_back({.date = monitor::Date(std::chrono::seconds(points.size())), .cpu = value});
    return points;
}

QColor color(Role role)
{
    return app::Appearance::current().color(role);
}

/// The rows of the column that have this colour.
QList<int> rowsOf(const QImage &image, int column, const QColor &wanted)
{
    QList<int> rows;
    for (int row = 0; row < image.height(); ++row) {
        if (image.pixelColor(column, row) == wanted)
            rows += row;
    }
    return rows;
}

} // namespace

class ChartViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { quillmark::support::failOnWarnings(); }

    void movesOnAsIfItWereDrawnAnew_data()
    {
        QTest::addColumn<QSize>("plot");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<double>("step");
        // A little more than a second, so that no end of a line stands at the left edge.
        QTest::newRow("whole columns") << QSize(476, 140) << 1.0 << 1.25;
        QTest::newRow("parts of columns") << QSize(431, 150) << 1.0 << 1.02;
        QTest::newRow("a screen of twice the pixels") << QSize(733, 280) << 2.0 << 1.03;
        QTest::newRow("narrow") << QSize(119, 60) << 1.5 << 1.1;
    }

    void movesOnAsIfItWereDrawnAnew()
    {
        QFETCH(QSize, plot);
        QFETCH(double, ratio);
        QFETCH(double, step);
        ChartTrace trace;
        std::vector<double> moments;
        for (int sample = 0; sample < 260; ++sample) {
            const double gap = sample == 40 || sample == 41 || sample == 200 ? 4 : step;
            moments.push_back(moments.empty() ? 0 : moments.back() + gap);
            trace.update(linesAt(moments), {plot, ratio});
            auto anew = trace;
            anew.invalidate();
            anew.update(linesAt(moments), {plot, ratio});
            if (trace.picture() != anew.picture())
                QFAIL(qPrintable(u"differs at sample %1"_s.arg(sample)));
        }
        QVERIFY(!trace.picture().allGray()); // there is something to compare
    }

    void startsAnewWithAnotherHistory()
    {
        const ChartTrace::Shape shape{QSize(300, 100), 1};
        ChartTrace trace;
        trace.update(linesAt({0, 1, 2, 3}), shape);
        trace.update(linesAt({50, 51}), shape);
        ChartTrace other;
        other.update(linesAt({50, 51}), shape);
        QCOMPARE(trace.picture(), other.picture());
        trace.update(linesAt({}), shape);
        QVERIFY(trace.picture().allGray());
    }

    void standsWhereItsValuesAre_data()
    {
        QTest::addColumn<std::vector<double>>("values");
        QTest::addColumn<double>("share");
        QTest::newRow("nothing") << std::vector<double>{0, 0, 0} << 0.0;
        QTest::newRow("half") << std::vector<double>{0.1, 0.2, 0.5} << 0.5;
        QTest::newRow("all") << std::vector<double>{1, 1} << 1.0;
        QTest::newRow("more than all") << std::vector<double>{1, 1.4} << 1.0;
        QTest::newRow("one sample") << std::vector<double>{0.25} << 0.25;
    }

    void standsWhereItsValuesAre()
    {
        QFETCH(std::vector<double>, values);
        QFETCH(double, share);
        app::ChartView chart({{&MonitorModel::Point::cpu, Role::ChartProcessor, true}});
        chart.resize(400, 200);
        const auto gridRows = [&] { return rowsOf(chart.grab().toImage(), 5, color(Role::Hairline)); };
        const auto grid = gridRows(); // top and half
        QCOMPARE(grid.size(), 2);
        const int base = 2 * grid[1] - grid[0];
        chart.setPoints(loads(values));
        const auto image = chart.grab().toImage();
        QCOMPARE(gridRows(), grid); // at the far left, where no samples are yet

        // The dot of the newest is at the right end of the grid.
        int right = image.width() - 1;
        while (right > 0 && image.pixelColor(right, grid[0]) != color(Role::Hairline))
            --right;
        right += share == 1 ? 5 : 1; // the dot covers the end
        const auto dot = rowsOf(image, std::min(right, image.width() - 1), color(Role::ChartProcessor));
        QVERIFY(!dot.isEmpty());
        const double middle = (dot.front() + dot.back()) / 2.0;
        QVERIFY2(std::abs(middle - (base - share * (base - grid[0]))) <= 1.5,
                 qPrintable(QString::number(middle)));
    }

    void looksTheSameInEveryDirection()
    {
        app::ChartView chart({{&MonitorModel::Point::cpu, Role::ChartProcessor, true}});
        chart.resize(400, 200);
        chart.setAxis(1, {u"0"_s, u"1"_s, u"2"_s});
        chart.setPoints(loads({0.1, 0.7, 0.3, 0.2}));
        const auto image = chart.grab().toImage();
        chart.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(chart.grab().toImage(), image);
        app::Appearance::current().setDark(true);
        QVERIFY(chart.grab().toImage() != image);
        app::Appearance::current().setDark(false);
        QCOMPARE(chart.grab().toImage(), image);
    }

    void coresHaveBarsAsHighAsTheirLoads_data()
    {
        QTest::addColumn<int>("cores");
        QTest::addColumn<int>("rows");
        for (const int cores : {1, 2, 14, 16, 17, 32})
            QTest::addRow("%d", cores) << cores << 1;
        for (const int cores : {33, 64, 128})
            QTest::addRow("%d", cores) << cores << 2;
    }

    void coresHaveBarsAsHighAsTheirLoads()
    {
        QFETCH(int, cores);
        QFETCH(int, rows);
        app::CoreBars bars;
        bars.resize(430, 180);
        const auto painted = [&bars] {
            const auto image = bars.grab().toImage();
            qsizetype pixels = 0;
            for (int column = 0; column < image.width(); ++column)
                pixels += rowsOf(image, column, color(Role::ChartProcessor)).size();
            return pixels;
        };
        const auto count = static_cast<std::size_t>(cores);
        bars.setLoads(std::vector<double>(count, 0));
        QCOMPARE(painted(), 0);
        bars.setLoads(std::vector<double>(count, 1));
        const auto full = painted();
        QVERIFY(full > 0);
        bars.setLoads(std::vector<double>(count, 0.5));
        QVERIFY(std::abs(static_cast<double>(painted()) / static_cast<double>(full) - 0.5) < 0.1);
        // One busy core is in one row.
        std::vector<double> one(count, 0);
        one.back() = 1;
        bars.setLoads(one);
        const auto image = bars.grab().toImage();
        bool isInUpperHalf = false;
        for (int column = 0; column < image.width(); ++column) {
            const auto found = rowsOf(image, column, color(Role::ChartProcessor));
            isInUpperHalf = isInUpperHalf || (!found.isEmpty() && found.front() < image.height() / 2);
        }
        QCOMPARE(isInUpperHalf, rows == 1);
    }

    void figuresAreNumbersWithTheirUnits_data()
    {
        QTest::addColumn<QString>("figure");
        QTest::addColumn<QStringList>("leftToRight");
        QTest::addColumn<QStringList>("rightToLeft");
        QTest::newRow("share") << u"23%"_s << QStringList{u"23"_s, u"%"_s} << QStringList{u"%"_s, u"23"_s};
        QTest::newRow("unit") << u"18,96\u00a0GB"_s << QStringList{u"18,96"_s, u"GB"_s}
                              << QStringList{u"GB"_s, u"18,96"_s};
        QTest::newRow("sign before") << u"%7"_s << QStringList{u"%"_s, u"7"_s} << QStringList{u"7"_s, u"%"_s};
        const QStringList arabic = {u"١٨٫٩"_s, u"غيغابايت"_s};
        QTest::newRow("from right to left") << u"١٨٫٩ غيغابايت"_s << arabic << arabic;
        QTest::newRow("word") << u"None"_s << QStringList{u"None"_s} << QStringList{u"None"_s};
        QTest::newRow("nothing") << QString() << QStringList{QString()} << QStringList{QString()};
    }

    void figuresAreNumbersWithTheirUnits()
    {
        QFETCH(QString, figure);
        QFETCH(QStringList, leftToRight);
        QFETCH(QStringList, rightToLeft);
        const auto texts = [&figure](Qt::LayoutDirection direction) {
            QStringList result;
            for (const auto &part : app::figureParts(figure, direction))
                result += part.text;
            return result;
        };
        QCOMPARE(texts(Qt::LeftToRight), leftToRight);
        QCOMPARE(texts(Qt::RightToLeft), rightToLeft);
    }
};

QTEST_MAIN(ChartViewTest)
#include "ChartViewTest.moc"
