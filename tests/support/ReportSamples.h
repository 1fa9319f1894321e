// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "inspection/DeviceProbe.h"
#include "reports/Report.h"
#include "support/Recordings.h"

#include <QHash>
#include <QTimeZone>
#include <QTranslator>

namespace quillmark::support {

using namespace Qt::StringLiterals;

/// An inspection of the machine in November, in a time zone two hours ahead of UTC.
inline reports::Report reportOf(const platform::Machine &machine, const QString &language = u"en"_s)
{
    const language::Formats formats(language);
    return {.date = QDateTime({2026, 11, 22}, {22, 35, 32}, QTimeZone(7200)),
            .language = language,
            .summary = inspection::DeviceProbe::summary(machine, formats),
            .sections = inspection::DeviceProbe::sections(machine, formats, machine.network().currentPath())};
}

/// A section of so many rows, of every status in turn.
inline inspection::CapabilitySection manyRows(int rows)
{
    inspection::CapabilitySection section{.title = u"Many rows"_s, .symbol = u"network"_s, .key = u"many"_s};
    for (int i = 0; i < rows; ++i)
        section.items += {.label = u"Label %1"_s.arg(i + 1),
                          .value = u"Value %1"_s.arg(i + 1),
                          .status = inspection::allStatuses[static_cast<std::size_t>(i) % 4]};
    return section;
}

/// Texts of another language for some of the program’s own; the others stay English.
class Words final : public QTranslator
{
public:
    explicit Words(QHash<QByteArray, QString> words)
        : m_words(std::move(words))
    {}

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return m_words.value(text);
    }

private:
    QHash<QByteArray, QString> m_words;
};

inline QHash<QByteArray, QString> germanWords()
{
    return {{"Supported", u"Unterstützt"_s},
            {"Not supported", u"Nicht unterstützt"_s},
            {"Warning", u"Warnung"_s},
            {"Quillmark report", u"Quillmark-Bericht"_s},
            {"What this Mac can really do", u"Was dieser Mac wirklich kann"_s},
            {"Capability score", u"Fähigkeitswert"_s},
            {"Share of rated capabilities that this Mac supports",
             u"Anteil der bewerteten Fähigkeiten, die dieser Mac unterstützt"_s},
            {"%1 memory", u"%1 Arbeitsspeicher"_s},
            {"%1 storage", u"%1 Massenspeicher"_s},
            {"Worth a look", u"Einen Blick wert"_s},
            {"In this report", u"In diesem Bericht"_s},
            {"%1 of %2 supported", u"%1 von %2 unterstützt"_s},
            {"%1 of %2", u"%1 von %2"_s},
            {"p. %1", u"S. %1"_s},
            {"Page %1 of %2", u"Seite %1 von %2"_s},
            {"Operating system", u"Betriebssystem"_s},
            {"Graphics & Metal", u"Grafikprozessor & Metal"_s},
            {"Artificial Intelligence", u"Künstliche Intelligenz"_s},
            {"Hardware ray tracing", u"Hardwarebeschleunigte Strahlverfolgungsberechnung"_s},
            {"Extended dynamic range", u"Erweiterter Dynamikumfang der angeschlossenen Bildschirme"_s},
            {"Not in hardware", u"Nicht in Hardware, nur als Software"_s}};
}

inline QHash<QByteArray, QString> japaneseWords()
{
    return {{"Supported", u"対応"_s},
            {"Not supported", u"非対応"_s},
            {"Warning", u"警告"_s},
            {"Info", u"情報"_s},
            {"Quillmark report", u"Quillmarkレポート"_s},
            {"What this Mac can really do", u"このMacで本当にできること"_s},
            {"Capability score", u"機能スコア"_s},
            {"Share of rated capabilities that this Mac supports",
             u"評価対象の機能のうちこのMacが対応する割合"_s},
            {"%1 memory", u"%1メモリ"_s},
            {"%1 storage", u"%1ストレージ"_s},
            {"Worth a look", u"確認をおすすめする項目"_s},
            {"In this report", u"このレポートの内容"_s},
            {"%1 of %2 supported", u"%2項目中%1項目に対応"_s},
            {"%1 of %2", u"%1/%2"_s},
            {"p. %1", u"%1ページ"_s},
            {"Page %1 of %2", u"%1/%2ページ"_s},
            {"System", u"システム"_s},
            {"Processor & Memory", u"プロセッサとメモリ"_s},
            {"Device name", u"デバイス名"_s},
            {"Operating system", u"オペレーティングシステム"_s},
            {"Thermal state", u"温度の状態"_s},
            {"Ray tracing", u"レイトレーシング"_s},
            {"Available", u"利用可能"_s}};
}

} // namespace quillmark::support
