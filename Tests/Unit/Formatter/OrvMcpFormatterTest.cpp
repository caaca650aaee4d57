#include "Core/Formatter/OrvMcpFormatter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    std::string Card(const char* RecordJson)
    {
        rapidjson::Document Record;
        Record.Parse(RecordJson);
        EXPECT_FALSE(Record.HasParseError()) << RecordJson;
        return FOrvMcpFormatter::ProductCard(&Record);
    }

    // The list of an array document, with its JSON nulls as they come.
    std::string List(const char* ArrayJson, int MaxFullCards)
    {
        rapidjson::Document Array;
        Array.Parse(ArrayJson);
        std::vector<const rapidjson::Value*> Entries;
        for (const rapidjson::Value& Entry : Array.GetArray())
        {
            Entries.push_back(&Entry);
        }
        return FOrvMcpFormatter::ProductListCards(Entries, MaxFullCards);
    }

    std::string Repeat(const std::string& Piece, int Count)
    {
        std::string Text;
        while (Count-- > 0)
        {
            Text += Piece;
        }
        return Text;
    }

    const std::string Emoji = "\xF0\x9F\xAA\x91"; // U+1FA91, two UTF-16 units
    const std::string Ellipsis = "\xE2\x80\xA6";
} // namespace

TEST(FOrvMcpFormatterTest, FullRecordGivesTheWholeCard)
{
    EXPECT_EQ(Card(R"({"mongo_id":"64f1","name":"Lune","brand":[{"name":"Nord"},{"name":"Other"}],
                      "designed_by":[{"name":"Ines"}],"year":2019,"collection":"Lune",
                      "dimensions":{"width":80,"depth":45.5,"height":75},"materials":["Oak",3,"Steel"],
                      "category":"Armchairs","description":"  A low chair.\n "})"),
              "### Lune \xE2\x80\x94 Nord\n"
              "Designer: **Ines** \xC2\xB7 Year: **2019** \xC2\xB7 Collection: **Lune**\n"
              "\n"
              "- **Dimensions** \xE2\x80\x94 80 \xC3\x97 45.5 \xC3\x97 H75 cm\n"
              "- **Materials** \xE2\x80\x94 Oak, Steel\n"
              "- **Category** \xE2\x80\x94 Armchairs\n"
              "\n"
              "> A low chair.\n"
              "\n"
              "[View on ORVESSA catalog \xE2\x86\x92](https://orvessa.com/go/product/64f1)");
}

TEST(FOrvMcpFormatterTest, SparseRecordsKeepOnlyTheirTitle)
{
    EXPECT_EQ(Card(R"({"asset_name":"SM_Chair"})"), "### SM_Chair");
    EXPECT_EQ(Card(R"({"name":"","asset_name":"SM_Chair","brand":[]})"), "### SM_Chair");
    EXPECT_EQ(Card(R"({"name":null,"brand":["Nord"],"designed_by":{"name":"x"},"dimensions":[80],
                      "materials":[],"description":"","mongo_id":""})"),
              "### Product");
    EXPECT_EQ(Card(R"({"brand":[{"name":"Nord"}]})"), "### Product \xE2\x80\x94 Nord");
    EXPECT_EQ(FOrvMcpFormatter::ProductCard(nullptr), "_No product._");
    EXPECT_EQ(Card(R"("a string, not a record")"), "_No product._");
}

TEST(FOrvMcpFormatterTest, NumbersAndBooleansReadAsTheEngineReadsThem)
{
    // Numbers print without a forced fraction (2019, not 2019.0), booleans as words.
    EXPECT_EQ(Card(R"({"name":7,"year":2019,"collection":2.50,"category":true})"),
              "### 7\nYear: **2019** \xC2\xB7 Collection: **2.5**\n\n- **Category** \xE2\x80\x94 true");
    EXPECT_EQ(FOrvMcpFormatter::CatalogUrl(nullptr), "");
    rapidjson::Document NumericId;
    NumericId.Parse(R"({"mongo_id":12345})");
    EXPECT_EQ(FOrvMcpFormatter::CatalogUrl(&NumericId), "https://orvessa.com/go/product/12345");
    // Field names match ignoring case and a repeated name keeps its last value, as in the engine.
    EXPECT_EQ(Card(R"({"Name":"First","NAME":"Last"})"), "### Last");
}

TEST(FOrvMcpFormatterTest, DimensionsShowPositiveNumbersMaterialsStringsAndDescriptionsTrimmed)
{
    EXPECT_EQ(Card(R"({"name":"T","dimensions":{"width":80,"depth":0,"height":75}})"),
              "### T\n\n- **Dimensions** \xE2\x80\x94 80 \xC3\x97 H75 cm");
    EXPECT_EQ(Card(R"({"name":"T","dimensions":{"width":0,"depth":0,"height":0}})"), "### T");
    EXPECT_EQ(Card(R"({"name":"T","dimensions":{"width":-5,"depth":"45","height":12000000}})"),
              "### T\n\n- **Dimensions** \xE2\x80\x94 H1.2e+07 cm");
    EXPECT_EQ(Card(R"({"name":"T","materials":"Walnut veneer"})"),
              "### T\n\n- **Materials** \xE2\x80\x94 Walnut veneer");
    EXPECT_EQ(Card(R"({"name":"T","materials":[1,{"name":"Oak"},null]})"), "### T");
    EXPECT_EQ(Card(R"({"name":"T","description":"   "})"), "### T\n\n> ");
    // No-break and ideographic spaces are whitespace to the engine as well.
    EXPECT_EQ(Card("{\"name\":\"T\",\"description\":\"\xC2\xA0Soft.\xE3\x80\x80\"}"), "### T\n\n> Soft.");
}

TEST(FOrvMcpFormatterTest, TruncateBacksUpToAWordOnlyWhenThatLosesLittle)
{
    const std::string Short = "Short text";
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Short, 10), Short);

    // 300 characters whose last space within the first 280 is at index 250: cut there.
    const std::string Near = std::string(250, 'a') + " " + std::string(49, 'b');
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Near, 280), std::string(250, 'a') + Ellipsis);
    // The last space at index 230 would lose 50 characters: keep all 280.
    const std::string Far = std::string(230, 'a') + " " + std::string(69, 'b');
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Far, 280), Far.substr(0, 280) + Ellipsis);
    // A space at index 240 is not greater than 280 - 40.
    const std::string Edge = std::string(240, 'a') + " " + std::string(59, 'b');
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Edge, 280), Edge.substr(0, 280) + Ellipsis);
}

TEST(FOrvMcpFormatterTest, TruncateCountsUtf16UnitsAndNeverSplitsACharacter)
{
    // 140 characters outside the BMP are exactly 280 units: unchanged; one more and it is cut.
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Repeat(Emoji, 140), 280), Repeat(Emoji, 140));
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Repeat(Emoji, 141), 280), Repeat(Emoji, 140) + Ellipsis);

    // The pair that would straddle the limit stays out whole: 279 units kept, no half character.
    const std::string Straddle = std::string(279, 'a') + Emoji + "tail";
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Straddle, 280), std::string(279, 'a') + Ellipsis);

    // Multi-byte BMP characters count one unit each, so 280 of them survive whole.
    const std::string Accented = Repeat("\xC3\xA9", 300);
    EXPECT_EQ(FOrvMcpFormatter::Truncate(Accented, 280), Repeat("\xC3\xA9", 280) + Ellipsis);

    // The word boundary is judged in units: 120 pairs put this space at unit 240 (not past 240)...
    const std::string PairsThenSpace = Repeat(Emoji, 120) + " " + std::string(100, 'b');
    EXPECT_EQ(FOrvMcpFormatter::Truncate(PairsThenSpace, 280),
              Repeat(Emoji, 120) + " " + std::string(39, 'b') + Ellipsis);
    // ...121 pairs put it at unit 242, so the cut moves back to it.
    const std::string MorePairs = Repeat(Emoji, 121) + " " + std::string(100, 'b');
    EXPECT_EQ(FOrvMcpFormatter::Truncate(MorePairs, 280), Repeat(Emoji, 121) + Ellipsis);
}

TEST(FOrvMcpFormatterTest, ListShowsFullCardsThenACompactTailCountingNullEntries)
{
    const char* Five = R"([{"name":"A","brand":[{"name":"Nord"}],"mongo_id":"a1"},{"name":"B"},{"name":"C"},
                          {"name":"D","brand":[{"name":"Ek"}],"mongo_id":"d4"},{"asset_name":"SM_E"}])";
    EXPECT_EQ(List(Five, 3), "### A \xE2\x80\x94 Nord\n\n[View on ORVESSA catalog \xE2\x86\x92]"
                             "(https://orvessa.com/go/product/a1)\n\n---\n\n### B\n\n---\n\n### C\n\n---\n\n"
                             "_2 more results (compact):_\n"
                             "- [D \xE2\x80\x94 Ek](https://orvessa.com/go/product/d4)\n"
                             "- SM_E");
    EXPECT_EQ(List(R"([{"name":"A"},{"name":"B"},{"name":"C"},{"name":"D"}])", 3),
              "### A\n\n---\n\n### B\n\n---\n\n### C\n\n---\n\n_1 more result (compact):_\n- D");
    EXPECT_EQ(List(R"([{"name":"A"},{"name":"B"}])", 5), "### A\n\n---\n\n### B");
    EXPECT_EQ(List("[]", 3), "_No products found._");

    // Null entries count in the tail, a compact label without a title is the brand part alone, and with
    // no full cards the list starts with the rule.
    EXPECT_EQ(List(R"([null,{"name":"A"},{"name":"B"},null,{"brand":[{"name":"Ek"}]}])", 2),
              "### A\n\n---\n\n_3 more results (compact):_\n- B\n-  \xE2\x80\x94 Ek");
    const rapidjson::Value* OnlyNull[] = {nullptr};
    EXPECT_EQ(FOrvMcpFormatter::ProductListCards(OnlyNull, 3), "");
    EXPECT_EQ(FOrvMcpFormatter::ProductListCards(OnlyNull, 0), "\n\n---\n\n_1 more result (compact):_\n");
    const std::string Expected = "\n\n---\n\n_2 more results (compact):_\n- A\n- B";
    EXPECT_EQ(List(R"([{"name":"A"},{"name":"B"}])", 0), Expected);
    EXPECT_EQ(List(R"([{"name":"A"},{"name":"B"}])", -4), Expected);
}
