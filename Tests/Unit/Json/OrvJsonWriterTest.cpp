#include "Core/Json/OrvJsonWriter.h"
#include "Core/Common/OrvUtf8.h"
#include "Core/Json/OrvJson.h"

#include <gtest/gtest.h>

#include <optional>

using namespace OrvWebBridge;

namespace
{
    std::string Write(const std::string& JsonText, EOrvJsonStyle Style = EOrvJsonStyle::Pretty)
    {
        rapidjson::Document Document;
        Document.Parse(JsonText.c_str());
        std::string Out;
        FOrvJsonWriter(Out, Style).Value(Document);
        return Out;
    }
} // namespace

TEST(FOrvJsonWriterTest, PrettyLayoutMatchesTheEngineWriterAndCondensedHasNoWhitespace)
{
    EXPECT_EQ(Write(R"({"jsonrpc":"2.0","id":1,"result":{}})"),
              "{\r\n\t\"jsonrpc\": \"2.0\",\r\n\t\"id\": 1,\r\n\t\"result\":\r\n\t{\r\n\t}\r\n}");
    EXPECT_EQ(Write(R"({"location":[1,2.5,-3],"empty":[]})"),
              "{\r\n\t\"location\": [ 1, 2.5, -3 ],\r\n\t\"empty\": []\r\n}");
    EXPECT_EQ(Write(R"({"assets":["a","b"]})"),
              "{\r\n\t\"assets\": [\r\n\t\t\"a\",\r\n\t\t\"b\"\r\n\t]\r\n}");
    EXPECT_EQ(Write(R"({"content":[{"type":"text"}]})"),
              "{\r\n\t\"content\": [\r\n\t\t{\r\n\t\t\t\"type\": \"text\"\r\n\t\t}\r\n\t]\r\n}");
    const std::string Nested = R"({"a":[1,"x",{"b":null}],"c":{"d":true}})";
    EXPECT_EQ(Write(Nested, EOrvJsonStyle::Condensed), Nested);
}

TEST(FOrvJsonWriterTest, NumbersRoundTripAndIntegersHaveNoFraction)
{
    std::string Out;
    OrvAppendJsonNumber(Out, 300.0);
    Out += ' ';
    OrvAppendJsonNumber(Out, 45.3);
    Out += ' ';
    OrvAppendJsonNumber(Out, -0.1);
    Out += ' ';
    OrvAppendJsonNumber(Out, 1.0 / 0.0);
    EXPECT_EQ(Out, "300 45.3 -0.1 null");
}

TEST(FOrvJsonWriterTest, StringsAreEscapedAsTheEngineEscapes)
{
    std::string Out;
    OrvAppendJsonEscaped(Out, "a\"b\\c\r\n\t\x01/\xE2\x80\x94");
    EXPECT_EQ(Out, "a\\\"b\\\\c\\r\\n\\t\\u0001/\xE2\x80\x94");
}

TEST(FOrvJsonWriterTest, IllFormedUtf8ComesOutAsReplacementCharacters)
{
    const std::string Fffd = "\xEF\xBF\xBD";
    const std::pair<std::string, std::string> Cases[] = {
        {"caf\xC3\xA9 \xE2\x80\x94 \xF0\x9F\xAA\x91", "caf\xC3\xA9 \xE2\x80\x94 \xF0\x9F\xAA\x91"},
        {"a\xFF"
         "b",
         "a" + Fffd + "b"},
        {"\xC3", Fffd},                                  // cut short at the end
        {"\xE2\x80x", Fffd + "x"},                       // cut short before an ASCII byte
        {"\xC0\xAF", Fffd + Fffd},                       // overlong
        {"\xED\xB0\x80", Fffd},                          // a lone surrogate, as \udc00 decodes
        {"\xF4\x90\x80\x80", Fffd + Fffd + Fffd + Fffd}, // above U+10FFFF
        {"\x80\x80", Fffd + Fffd},                       // stray continuation bytes
    };
    for (const auto& [Input, Expected] : Cases)
    {
        std::string Escaped;
        OrvAppendJsonEscaped(Escaped, Input);
        EXPECT_EQ(Escaped, Expected) << Input;
        EXPECT_EQ(FOrvUtf8::MakeValid(Input), Expected) << Input;
        EXPECT_EQ(FOrvUtf8::IsValid(Input), Input == Expected) << Input;
    }
}

TEST(FOrvJsonTest, NestingIsBoundedWithoutRecursionAndTheErrorSaysWhere)
{
    rapidjson::Document Document;
    EXPECT_TRUE(FOrvJson::Parse(std::string(256, '[') + std::string(256, ']'), Document));

    FOrvJsonParseError Error;
    const std::string TooDeep = "\n" + std::string(257, '[') + std::string(257, ']');
    EXPECT_FALSE(FOrvJson::Parse(TooDeep, Document, &Error));
    EXPECT_EQ(FOrvJson::DescribeParseError(TooDeep, Error),
              "line 2, column 257: arrays and objects nest deeper than 256 levels");

    // A recursive parser runs out of stack long before this.
    EXPECT_FALSE(FOrvJson::Parse(std::string(1000000, '['), Document, &Error));
    EXPECT_TRUE(Error.bTooDeep);
    EXPECT_FALSE(FOrvJson::Parse(R"({"a":[1,}])", Document, &Error));
    EXPECT_EQ(FOrvJson::DescribeParseError(R"({"a":[1,}])", Error), "line 1, column 9: Invalid value.");
}

TEST(FOrvJsonTest, NumbersRoundCorrectlyUnderflowToZeroAndRefuseOverflow)
{
    const auto Read = [](const std::string& Text) -> std::optional<double>
    {
        rapidjson::Document Document;
        if (!FOrvJson::Parse(Text, Document))
        {
            return std::nullopt;
        }
        return Document.GetDouble();
    };
    EXPECT_EQ(Read("0.1"), 0.1);
    EXPECT_EQ(Read("1018446744073701551616"), 1.0184467440737016e21)
        << "RapidJSON's own reading is 1 ulp off";
    EXPECT_EQ(Read("0.0e30"), 0.0);
    EXPECT_EQ(Read("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(Read("-1e-400"), -0.0);
    EXPECT_EQ(Read("1e-9223372036854775807"), 0.0);
    EXPECT_EQ(Read("0.00000000000000000000000000000020e-" + std::string(150, '0') + "9223372036854775807"),
              0.0);
    EXPECT_EQ(Read("1e99999999999999999999999"), std::nullopt);
    EXPECT_EQ(Read("21e308"), std::nullopt);
    EXPECT_EQ(Read("0.000001e309"), 1e303);
}
