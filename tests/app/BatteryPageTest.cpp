// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "app/BatteryWatch.h"
#include "app/models/BatteryFacts.h"
#include "app/views/BatteryView.h"
#include "support/AppStage.h"
#include "support/ChangedMachine.h"
#include "support/offscreen.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <semaphore>

using namespace quillmark;
using namespace quillmark::app;
using namespace quillmark::support;
using namespace Qt::StringLiterals;

namespace {

const auto twoBatteries = onLinux(R"("powerSupplies": {
    "BAT0": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_STATUS": "Discharging", "POWER_SUPPLY_CAPACITY": "41",
             "POWER_SUPPLY_ENERGY_FULL_DESIGN": "57000000", "POWER_SUPPLY_ENERGY_FULL": "52100000"},
    "BAT1": {"POWER_SUPPLY_TYPE": "Battery", "POWER_SUPPLY_ENERGY_FULL_DESIGN": "23000000",
             "POWER_SUPPLY_ENERGY_FULL": "9200000"}})");

/// Takes its time for the report, until it is told to answer.
struct SlowPower final : platform::Power
{
    explicit SlowPower(const platform::Power &other)
        : real(other)
    {}

    std::optional<std::vector<platform::PropertyMap>> powerSources() const override
    {
        return real.powerSources();
    }
    platform::PowerSettings settings() const override { return real.settings(); }
    std::optional<std::map<std::string, platform::PropertyMap>> powerSupplies() const override
    {
        return real.powerSupplies();
    }
    std::optional<platform::PropertyMap> powerReport() const override
    {
        answers.acquire();
        return real.powerReport();
    }

    const platform::Power &real;
    mutable std::binary_semaphore answers{0};
};

QStringList shownTexts(const QWidget &widget)
{
    QStringList texts;
    for (const auto *label : widget.findChildren<QLabel *>()) {
        if (label->isVisibleTo(&widget) && !label->text().isEmpty())
            texts += label->text().remove(QChar(0x2068)).remove(QChar(0x2069));
    }
    return texts;
}

QStringList ringNames(const QWidget &page)
{
    QStringList names;
    for (const auto *widget : page.findChildren<QWidget *>()) {
        if (widget->accessibleName().startsWith(u"Battery health"_s))
            names += widget->accessibleName();
    }
    return names;
}

} // namespace

class BatteryPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { support::failOnWarnings(); }

    void figures_data()
    {
        using battery::ChargeState;
        using inspection::CapabilityStatus;
        QTest::addColumn<battery::BatteryReading>("reading");
        QTest::addColumn<QStringList>("words"); // verdict, then figure and note of each tile
        QTest::newRow("all of them") << battery::BatteryReading{.designCapacity = 6249,
                                                                .presentCapacity = 5744,
                                                                .cycleCount = 187,
                                                                .ratedCycleCount = 1000,
                                                                .temperature = 31.4,
                                                                .level = 0.78,
                                                                .chargeState = ChargeState::Charging,
                                                                .timeRemaining = {{true, 52}},
                                                                .health = "Good"}
                                     << QStringList{u"Normal"_s,
                                                    u"78 %"_s,
                                                    u"Charging, full in 52m"_s,
                                                    u"187"_s,
                                                    u"Rated for 1,000 cycles"_s,
                                                    u"31.4 °C"_s,
                                                    u"Normal: 10 to 45 °C"_s,
                                                    u"Normal"_s,
                                                    u"Reported by the system"_s};
        QTest::newRow("none of them") << battery::BatteryReading{} << QStringList{u""_s,
                                                                                  u"–"_s,
                                                                                  u"Not reported"_s,
                                                                                  u"–"_s,
                                                                                  u"Not reported"_s,
                                                                                  u"–"_s,
                                                                                  u"Not reported"_s,
                                                                                  u"–"_s,
                                                                                  u"Not reported"_s};
        QTest::newRow("hot, on its own") << battery::BatteryReading{.designCapacity = 100,
                                                                    .presentCapacity = 90,
                                                                    .cycleCount = 20,
                                                                    .temperature = 52,
                                                                    .level = 0.5,
                                                                    .chargeState = ChargeState::OnBattery,
                                                                    .timeRemaining = {{false, 68}}}
                                         << QStringList{u"It is hot."_s,
                                                        u"50 %"_s,
                                                        u"On battery, 1h 8m left"_s,
                                                        u"20"_s,
                                                        u""_s,
                                                        u"52.0 °C"_s,
                                                        u"Hot · Normal: 10 to 45 °C"_s,
                                                        u"–"_s,
                                                        u"Not reported"_s};
    }

    void figures()
    {
        QFETCH(battery::BatteryReading, reading);
        const auto facts = batteryFacts(reading, language::Formats(u"en"_s));
        QStringList words = {facts.word};
        for (const auto *figure : {&facts.charge, &facts.cycles, &facts.temperature, &facts.condition}) {
            words += {figure->figure, figure->note};
            QCOMPARE(figure->isReported, figure->figure != u"–"_s);
        }
        words.replaceInStrings(QString(QChar::Nbsp), u" "_s);
        QTEST(words, "words");
    }

    void judgesEachBatteryByItself()
    {
        AppStage stage(changedRecording(twoBatteries));
        BatteryView page(stage.context);
        page.show();
        QTRY_COMPARE(ringNames(page), QStringList({u"Battery health 91 percent, Normal"_s,
                                                   u"Battery health 40 percent, Worn"_s}));
        QTRY_VERIFY(shownTexts(page).contains(u"BAT1"_s)); // once it is laid out
        const auto texts = shownTexts(page);
        QVERIFY(texts.contains(u"BAT0"_s));
        QVERIFY(texts.contains(u"52.1\u00a0Wh"_s) && texts.contains(u"23\u00a0Wh"_s));
        QVERIFY(texts.contains(u"This battery is worn."_s));
    }

    void showsBothFiguresOfAMac()
    {
        AppStage stage(recordingText(u"macbook-pro-m2-rosetta"_s));
        BatteryView page(stage.context);
        page.show();
        QTRY_VERIFY(shownTexts(page).contains(u"macOS reports 90\u00a0%"_s));
        QTRY_COMPARE(ringNames(page), QStringList({u"Battery health 88 percent, Normal"_s}));
    }

    void explainsThatThereIsNone()
    {
        AppStage stage(recordingText(u"imac-pro"_s));
        BatteryView page(stage.context);
        page.show();
        QTRY_VERIFY(shownTexts(page).contains(u"This Mac has no battery"_s));
        QCOMPARE(shownTexts(page).size(), 2);
    }

    void readsOnlyWhileItIsSeen()
    {
        AppStage stage(recordingText(u"macbook-pro-m3-max"_s));
        QWidget window;
        auto *page = new BatteryView(stage.context, &window);
        auto *watch = page->findChild<BatteryWatch *>();
        QVERIFY(!watch->isShown());
        window.show();
        QVERIFY(watch->isShown());
        window.setWindowState(Qt::WindowMinimized);
        QTRY_VERIFY(!watch->isShown());
        window.setWindowState(Qt::WindowNoState);
        QTRY_VERIFY(watch->isShown());
        page->hide();
        QVERIFY(!watch->isShown());
    }

    void doesNotWaitForTheSystemsFigure()
    {
        const auto recorded = machineFrom(recordingText(u"macbook-pro-m2-rosetta"_s));
        const SlowPower power(recorded->power());
        ChangedMachine machine(*recorded);
        machine.otherPower = &power;
        BatteryWatch watch(machine);
        watch.setShown(true);
        QTRY_VERIFY(watch.batteries());
        QVERIFY(!watch.batteries()->front().reportedMaximumPercent);
        power.answers.release();
        QTRY_COMPARE(watch.batteries()->front().reportedMaximumPercent, 90);
        watch.read(); // a later reading keeps it
        QSignalSpy changes(&watch, &BatteryWatch::changed);
        QTRY_VERIFY(!changes.isEmpty());
        QCOMPARE(watch.batteries()->front().reportedMaximumPercent, 90);
    }
};

QTEST_MAIN(BatteryPageTest)
#include "BatteryPageTest.moc"
