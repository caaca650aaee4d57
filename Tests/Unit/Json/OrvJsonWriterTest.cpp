#include "Core/Json/OrvJsonWriter.h"
#include "Core/Json/OrvJson.h"

#include <gtest/gtest.h>

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

TEST(FOrvJsonTest, ParseObjectRejectsArraysScalarsAndGarbage)
{
    rapidjson::Document Document;
    EXPECT_TRUE(FOrvJson::ParseObject(R"({"a":1})", Document));
    EXPECT_FALSE(FOrvJson::ParseObject("[1]", Document));
    EXPECT_FALSE(FOrvJson::ParseObject("", Document));
    EXPECT_FALSE(FOrvJson::ParseObject("{", Document));
    EXPECT_FALSE(FOrvJson::ParseObject(R"({"a":1} x)", Document));
}
