// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "design/Icons.h"
#include "design/ScoreRing.h"
#include "design/Theme.h"

#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>

using namespace quillmark::design;
using namespace Qt::StringLiterals;

namespace {

/// Of two colours, by WCAG 2.
qreal contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](qreal c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDrawn(Icons &icons, const QString &symbol)
{
    const auto image = icons.pixmap(symbol, 16, Qt::red, 2).toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 200)
                return image.size() == QSize(32, 32);
        }
    }
    return false;
}

} // namespace

class DesignTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qunsetenv("QT_FATAL_WARNINGS"); } // a warning is what one of them wants

private Q_SLOTS:
    void wordsCanBeRead();
    void everySymbolIsDrawn();
    void unknownSymbol();
    void scoreRing_data();
    void scoreRing();
};

void DesignTest::wordsCanBeRead()
{
    constexpr std::pair<Role, Role> words[] = {
        {Role::Text, Role::Window},          {Role::Text2, Role::Window},
        {Role::Text3, Role::Window},         {Role::Text3, Role::Sidebar},
        {Role::Text3, Role::Card},           {Role::AccentText, Role::AccentSoft},
        {Role::AccentText, Role::Card},      {Role::OnAccent, Role::Accent},
        {Role::SupportedText, Role::Card},   {Role::SupportedText, Role::SupportedSoft},
        {Role::UnsupportedText, Role::Card}, {Role::UnsupportedText, Role::UnsupportedSoft},
        {Role::WarningText, Role::Card},     {Role::WarningText, Role::WarningSoft},
        {Role::InfoText, Role::Card},        {Role::InfoText, Role::InfoSoft}};
    constexpr Role marks[] = {Role::Supported, Role::Unsupported, Role::Warning, Role::Info};
    for (const auto *theme : {&Theme::light(), &Theme::dark()}) {
        for (const auto &[word, ground] : words)
            QVERIFY2(contrast(theme->color(word), theme->color(ground)) >= 4.5,
                     qPrintable(theme->color(word).name() + u" on "_s + theme->color(ground).name()));
        for (const auto mark : marks)
            QVERIFY(contrast(theme->color(mark), theme->color(Role::Card)) >= 3);
    }
}

void DesignTest::everySymbolIsDrawn()
{
    Icons icons;
    int symbols = 0;
    for (QDirIterator files(u":/quillmark/icons"_s); files.hasNext(); ++symbols) {
        const auto symbol = QFileInfo(files.next()).completeBaseName();
        QVERIFY2(isDrawn(icons, symbol), qPrintable(symbol));
    }
    QVERIFY(symbols > 70);
}

void DesignTest::unknownSymbol()
{
    Icons icons;
    QTest::ignoreMessage(QtWarningMsg, "there is no symbol no.such.symbol");
    QVERIFY(isDrawn(icons, u"no.such.symbol"_s));
    QCOMPARE(icons.pixmap(u"no.such.symbol"_s, 24, Qt::blue, 1).toImage(), // not logged again
             icons.pixmap(u"questionmark.circle"_s, 24, Qt::blue, 1).toImage());
}

void DesignTest::scoreRing_data()
{
    QTest::addColumn<QList<int>>("counts"); // supported, warning, not supported
    QTest::addColumn<QString>("arcs");
    QTest::newRow("nothing rated") << QList{0, 0, 0} << QString();
    QTest::newRow("all of one kind") << QList{7, 0, 0} << u"supported 0+360"_s;
    QTest::newRow("two kinds") << QList{1, 0, 1} << u"supported 2+176, unsupported 182+176"_s;
    QTest::newRow("three kinds") << QList{2, 1, 1}
                                 << u"supported 2+174, warning 180+87, unsupported 271+87"_s;
}

void DesignTest::scoreRing()
{
    QFETCH(const QList<int>, counts);
    QFETCH(const QString, arcs);
    QStringList found;
    for (const auto &arc : quillmark::design::scoreRing(counts[0], counts[1], counts[2])) {
        const auto name = arc.role == Role::Supported ? u"supported"_s
                          : arc.role == Role::Warning ? u"warning"_s
                                                      : u"unsupported"_s;
        found += u"%1 %2+%3"_s.arg(name).arg(arc.start).arg(arc.sweep);
    }
    QCOMPARE(found.join(u", "_s), arcs);
}

QTEST_MAIN(DesignTest)
#include "DesignTest.moc"
