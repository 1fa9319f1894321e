// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#include "json/Reader.h"
#include "json/Writer.h"

#include <QTest>

#include <bit>
#include <cmath>
#include <functional>
#include <limits>
#include <random>

using namespace quillmark::json;
using namespace Qt::StringLiterals;

namespace {

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// What the reader makes of the text, piece by piece, with a space between two.
QString read(const QByteArray &text)
{
    Reader reader(view(text));
    QStringList pieces;
    for (;;) {
        switch (reader.next()) {
        case Token::BeginObject:
            pieces += u"{"_s;
            break;
        case Token::EndObject:
            pieces += u"}"_s;
            break;
        case Token::BeginArray:
            pieces += u"["_s;
            break;
        case Token::EndArray:
            pieces += u"]"_s;
            break;
        case Token::Key:
            pieces += textOf(reader.text()) + u':';
            break;
        case Token::String:
            pieces += u'\'' + textOf(reader.text()) + u'\'';
            break;
        case Token::Integer:
            pieces += QString::number(reader.integer());
            break;
        case Token::Double:
            pieces += u"~%1"_s.arg(reader.number(), 0, 'g', QLocale::FloatingPointShortest);
            break;
        case Token::True:
            pieces += u"yes"_s;
            break;
        case Token::False:
            pieces += u"no"_s;
            break;
        case Token::Null:
            pieces += u"nothing"_s;
            break;
        case Token::End:
            return reader.next() == Token::End ? pieces.join(u' ') : u"goes on after its end"_s;
        case Token::Error: {
            const auto first = reader.error();
            if (reader.next() != Token::Error || reader.error().column != first.column)
                return u"goes on after an error"_s;
            return u"%1:%2 %3"_s.arg(first.line).arg(first.column).arg(textOf(first.reason));
        }
        }
    }
}

QByteArray written(const std::function<void(Writer &)> &write,
                   Writer::Layout layout = Writer::Layout::Compact)
{
    Writer writer(layout);
    write(writer);
    return QByteArray::fromStdString(writer.take());
}

} // namespace

class JsonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void depth();
    void writesTexts_data();
    void writesTexts();
    void writesStructure();
    void everyCharacterComesBack();
    void writesUtf16();
    void doublesComeBack();
};

void JsonTest::reads_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("pieces");
    const auto row = [](const QByteArray &text, const QString &pieces) {
        QTest::newRow(text.left(60).constData()) << text << pieces;
    };
    row(" \t\r\n{ } ", u"{ }"_s);
    row("[]", u"[ ]"_s);
    row(R"({"a":[1,{"b":null}],"c":true,"":false})", u"{ a: [ 1 { b: nothing } ] c: yes : no }"_s);
    row(R"({"a":1,"a":2})", u"{ a: 1 a: 2 }"_s);
    row("\"\"", u"''"_s);
    row(R"("\"\\\/\b\f\n\r\t")", u"'\"\\/\b\f\n\r\t'"_s);
    row(R"("a\u0041\u00e9\u20AC\ud83d\uDE00z")", u"'aAé€😀z'"_s);
    row(R"(["a\nb","plain"])", u"[ 'a\nb' 'plain' ]"_s); // an unescaped text after an escaped one
    row("\"é€😀\x7F\"", u"'é€😀\u007f'"_s);
    row(R"("\udbff\udfff")", QString(u'\'') + QString::fromUcs4(U"\U0010FFFF") + u'\'');
    row("0", u"0"_s);
    row("-0", u"0"_s);
    row("9223372036854775807", u"9223372036854775807"_s);
    row("-9223372036854775808", u"-9223372036854775808"_s);
    row("9223372036854775808", u"~9223372036854776000"_s);
    row("-9223372036854775809", u"~-9223372036854776000"_s);
    row("18446744073709551615", u"~18446744073709552000"_s);
    row("1.0", u"~1"_s);
    row("1e0", u"~1"_s);
    row("-1.5E+2", u"~-150"_s);
    row("0.1e-1", u"~0.01"_s);
    row("1e-400", u"~0"_s);
    row("1.7976931348623157e308", u"~1.7976931348623157e+308"_s);
    row("5e-324", u"~5e-324"_s);
    row("[1,2.5,\"x\",true,false,null]", u"[ 1 ~2.5 'x' yes no nothing ]"_s);
}

void JsonTest::reads()
{
    QFETCH(const QByteArray, text);
    QTEST(read(text), "pieces");
}

void JsonTest::refuses_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("error"); // line:column reason
    const auto row = [](const QByteArray &text, const QString &error) {
        QTest::newRow(text.left(60).toPercentEncoding(" {}[],:\"\\+").constData()) << text << error;
    };
    const auto group = [&row](std::initializer_list<const char *> texts, const QString &error) {
        for (const auto *text : texts)
            row(text, error);
    };
    const auto early = u"the text ends too early"_s;
    row("", u"1:1 "_s + early);
    row(" \n\t", u"2:2 "_s + early);
    group({"{\"a\":", "[1,  "}, u"1:6 "_s + early);
    row("[", u"1:2 "_s + early);
    row("{", u"1:2 "_s + early);
    const auto noValue = u"this is no value"_s;
    group({"nul", "True", "NaN", "Infinity", "+1", ".5", "'a'", "]", "}", ",", ":", "-", "-a", "tru\n",
           "\xC3\xA9", "/* a */ 1", "\xEF\xBB\xBF{}"},
          u"1:1 "_s + noValue);
    group({"[,1]", "[}"}, u"1:2 "_s + noValue);
    row("[1,]", u"1:4 "_s + noValue);
    row("{\"a\":}", u"1:6 "_s + noValue);
    row("[1,\n 2,\n\n x]", u"4:2 "_s + noValue);
    const auto noName = u"a member's name in quotation marks is missing"_s;
    group({"{1:2}", "{a:1}", "{]", "{,}"}, u"1:2 "_s + noName);
    row("{\"a\":1,}", u"1:8 "_s + noName);
    const auto noColon = u"a colon is missing after the member's name"_s;
    group({"{\"a\"}", "{\"a\",1}", "{\"a\""}, u"1:5 "_s + noColon);
    row("{\"a\" 1}", u"1:6 "_s + noColon);
    const auto noComma = u"a comma or the end of the %1 is missing"_s;
    row("[1 2]", u"1:4 "_s + noComma.arg(u"array"_s));
    group({"[1}", "[1"}, u"1:3 "_s + noComma.arg(u"array"_s));
    row("[truefalse]", u"1:6 "_s + noComma.arg(u"array"_s));
    group({"{\"a\":1 \"b\":2}"}, u"1:8 "_s + noComma.arg(u"object"_s));
    group({"{\"a\":1]", "{\"a\":1"}, u"1:7 "_s + noComma.arg(u"object"_s));
    const auto follows = u"something follows the end of the value"_s;
    row("{} {}", u"1:4 "_s + follows);
    row("1 2x", u"1:3 "_s + follows);
    row("truex", u"1:5 "_s + follows);
    row("null,", u"1:5 "_s + follows);
    row(QByteArray("1\0", 2), u"1:2 "_s + follows);
    row("1\n\n]", u"3:1 "_s + follows);

    group({"01", "-01", "00"}, u"1:1 a number begins with a needless zero"_s);
    group({"1.", "1.e5", "-0.x"}, u"1:1 a number lacks digits after its point"_s);
    group({"1e", "1e+", "1.5E-x"}, u"1:1 a number lacks digits in its exponent"_s);
    group({"1e400", "-1e309"}, u"1:1 a number is too large"_s);
    row(QByteArray(400, '9'), u"1:1 a number is too large"_s);

    const auto escape = u"an escape in a string is not one of JSON's"_s;
    group({R"("\x")", R"("\u12")", R"("\u12g4")", R"("\u-123")", R"("\u+123")", R"("\U0041")", "\"\\",
           "\"\\\n\"", R"("\u 041")"},
          u"1:2 "_s + escape);
    const auto half = u"half of a surrogate pair is missing"_s;
    row(R"("\udc00")", u"1:8 "_s + half);
    row(R"("\ud800\ud800")", u"1:14 "_s + half);
    row(R"("\ud800\u0041")", u"1:14 "_s + half);
    group({R"("\ud800")", R"("\ud800x")", R"("\ud800\n")"}, u"1:8 "_s + escape);
    const auto ends = u"the text ends within a string"_s;
    row("\"abc", u"1:5 "_s + ends);
    row("\"abc\\\"", u"1:7 "_s + ends);
    const auto control = u"a control character stands in a string"_s;
    group({"\"a\nb\"", "\"a\tb\"", "\"a\x1F\""}, u"1:3 "_s + control);
    row(QByteArray("\"a\0b\"", 5), u"1:3 "_s + control);
    const auto invalid = u"the text is not valid UTF-8"_s;
    group({"\"a\x80\"", "\"a\xC3\"", "\"a\xC3(\"", "\"a\xC0\x80\"", "\"a\xC1\xBF\"", "\"a\xE0\x80\x80\"",
           "\"a\xE2\x82\"", "\"a\xE2\x82(\"", "\"a\xED\xA0\x80\"", "\"a\xED\xBF\xBF\"",
           "\"a\xF0\x80\x80\x80\"", "\"a\xF0\x9F\x98\"", "\"a\xF0\x9F\x98(\"", "\"a\xF4\x90\x80\x80\"",
           "\"a\xF5\x80\x80\x80\"", "\"a\xFF\"", "\"a\xFE\""},
          u"1:3 "_s + invalid);
}

void JsonTest::refuses()
{
    QFETCH(const QByteArray, text);
    QTEST(read(text), "error");
}

void JsonTest::depth()
{
    constexpr auto most = static_cast<qsizetype>(Reader::maximumDepth);
    for (const auto &[open, close] : {std::pair("[", "]"), std::pair("{\"a\":", "}")}) {
        const auto nested = [&](qsizetype depth) {
            return read(QByteArray(open).repeated(depth) + (*open == '[' ? "" : "1") +
                        QByteArray(close).repeated(depth));
        };
        QVERIFY2(!nested(most).contains(u"deep"), qPrintable(nested(most)));
        const auto column = most * qstrlen(open) + 1;
        QCOMPARE(nested(most + 1), u"1:%1 values are nested too deep"_s.arg(column));
        QCOMPARE(nested(200000), u"1:%1 values are nested too deep"_s.arg(column));
    }
    QVERIFY(read("[" + QByteArray("[],").repeated(1000) + "[]]")
                .endsWith(u"] ]"_s)); // many side by side are not deep
}

void JsonTest::writesTexts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const QByteArray &text, const QByteArray &expected) {
        QTest::newRow(expected.constData()) << text << expected;
    };
    row("", R"("")");
    row("a/b'c", R"("a/b'c")");
    row("\"\\\n\r\t", R"("\"\\\n\r\t")");
    row(QByteArray("\0\b\f\x1b\x1f", 5), R"("\u0000\u0008\u000c\u001b\u001f")");
    row("é€😀", "\"é€😀\"");
    row("\u0080\u009b\u009f\u00a0", "\"\\u0080\\u009b\\u009f\u00a0\"");
    row("a\xFFz", "\"a\uFFFDz\"");
    row("a\xE2\x82z", "\"a\uFFFD\uFFFDz\"");
    row("\xED\xA0\x80", "\"\uFFFD\uFFFD\uFFFD\"");
    row("a\xF0\x9F\x98", "\"a\uFFFD\uFFFD\uFFFD\"");
}

void JsonTest::writesTexts()
{
    QFETCH(const QByteArray, text);
    QTEST(written([&text](Writer &writer) { writer.string(view(text)); }), "expected");
}

void JsonTest::writesStructure()
{
    const auto write = [](Writer &writer) {
        writer.beginObject();
        writer.member("text", "a");
        writer.member("yes", true);
        writer.member("whole", std::int64_t{-5});
        writer.member("real", 0.5);
        writer.key("none");
        writer.null();
        writer.key("list");
        writer.beginArray();
        writer.integer(std::numeric_limits<std::uint64_t>::max());
        writer.beginArray();
        writer.endArray();
        writer.beginObject();
        writer.endObject();
        writer.number(std::numeric_limits<double>::infinity());
        writer.number(std::nan(""));
        writer.endArray();
        writer.key("q\"\n");
        writer.boolean(false);
        writer.endObject();
    };
    QCOMPARE(written(write), QByteArray(R"({"text":"a","yes":true,"whole":-5,"real":0.5,"none":null,)"
                                        R"("list":[18446744073709551615,[],{},null,null],"q\"\n":false})"));
    QCOMPARE(written(write, Writer::Layout::Indented), QByteArray(R"({
  "text": "a",
  "yes": true,
  "whole": -5,
  "real": 0.5,
  "none": null,
  "list": [
    18446744073709551615,
    [],
    {},
    null,
    null
  ],
  "q\"\n": false
})"));
}

void JsonTest::everyCharacterComesBack()
{
    for (char32_t code = 0; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 257) {
        if (code >= 0xD800 && code < 0xE000)
            continue;
        const auto text = QString::fromUcs4(&code, 1).toUtf8();
        const auto json = written([&text](Writer &writer) { writer.string(view(text)); });
        const auto utf16 = QString::fromUcs4(&code, 1).toStdU16String();
        QCOMPARE(written([&utf16](Writer &writer) { writer.string(utf16); }), json);
        Reader reader(view(json));
        QCOMPARE(reader.next(), Token::String);
        QCOMPARE(QByteArray(reader.text().data(), static_cast<qsizetype>(reader.text().size())), text);
        QCOMPARE(reader.next(), Token::End);
    }
}

/// At every place in what is looked at together, and halves of pairs, which no UTF-8 has.
void JsonTest::writesUtf16()
{
    for (const std::u16string_view special :
         {u"\"", u"\\", u"\n", u"\u001f", u"é", u"\u2022", u"\U0001F600"}) {
        for (std::size_t place = 0; place <= 9; ++place) {
            const auto text = std::u16string(u"012345678").insert(place, special);
            const auto utf8 = QString::fromStdU16String(text).toStdString();
            QCOMPARE(written([&](Writer &writer) { writer.string(text); }),
                     written([&](Writer &writer) { writer.string(utf8); }));
        }
    }
    const auto halves = std::u16string({u'a', char16_t{0xD83D}, u'b', char16_t{0xDE00}, char16_t{0xD83D}});
    QCOMPARE(written([&](Writer &writer) { writer.string(halves); }), QByteArray("\"a\uFFFDb\uFFFD\uFFFD\""));
}

/// Bit by bit, and as numbers that are no integers.
void JsonTest::doublesComeBack()
{
    std::vector<double> numbers = {0.0,
                                   -0.0,
                                   1,
                                   -1,
                                   80,
                                   0.1,
                                   1.0 / 3,
                                   1e15,
                                   1e16,
                                   1e17,
                                   1e21,
                                   1e22,
                                   1e300,
                                   9007199254740993.0,
                                   std::numeric_limits<double>::max(),
                                   std::numeric_limits<double>::min(),
                                   std::numeric_limits<double>::denorm_min(),
                                   std::nextafter(1.0, 2.0)};
    std::mt19937_64 random(20260301);
    while (numbers.size() < 20000) {
        if (const auto number = std::bit_cast<double>(random()); std::isfinite(number))
            numbers.push_back(number);
    }
    for (const double number : numbers) {
        const auto json = written([number](Writer &writer) { writer.number(number); });
        Reader reader(view(json));
        QVERIFY2(reader.next() == Token::Double, json.constData());
        QVERIFY2(std::bit_cast<std::uint64_t>(reader.number()) == std::bit_cast<std::uint64_t>(number),
                 json.constData());
    }
}

QTEST_GUILESS_MAIN(JsonTest)
#include "JsonTest.moc"
