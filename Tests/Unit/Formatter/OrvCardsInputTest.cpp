#include "Host/Commands/OrvCardsInput.h"

#include "Core/Json/OrvJson.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    // The records' "name"s in order ("null" for a JSON null), or the error text.
    std::string ReadNames(std::string_view Text)
    {
        rapidjson::Document Document;
        std::vector<const rapidjson::Value*> Records;
        std::string Error;
        if (!FOrvCardsInput::Read(Text, Document, Records, Error))
        {
            return "error: " + Error;
        }
        std::string Names;
        for (const rapidjson::Value* Record : Records)
        {
            Names += Record->IsNull() ? std::string("null") : FOrvJson::GetStringField(*Record, "name");
            Names += ';';
        }
        return Names;
    }
} // namespace

TEST(FOrvCardsInputTest, RecordsComeFromAnArrayOrAProductsMemberInOrder)
{
    EXPECT_EQ(ReadNames(R"([{"name":"A"},null,{"name":"B"}])"), "A;null;B;");
    EXPECT_EQ(ReadNames(R"({"total":2,"products":[{"name":"A"},{"name":"B"}]})"), "A;B;");
    EXPECT_EQ(ReadNames(R"({"products":{"z":{"name":"Z"},"a":{"name":"A"}}})"), "Z;A;");
    EXPECT_EQ(ReadNames("\xEF\xBB\xBF[{\"name\":\"A\"}]"), "A;");
    EXPECT_EQ(ReadNames("[]"), "");
}

TEST(FOrvCardsInputTest, UnusableInputSaysWhatIsWrongAndWhere)
{
    EXPECT_EQ(ReadNames("[{\"name\":\"A\"},\n {\"name\" \"B\"}]"),
              "error: invalid JSON at line 2, column 10: Missing a colon after a name of object member.");
    EXPECT_EQ(ReadNames("[\"\xC3\x28\"]"),
              "error: invalid JSON at line 1, column 3: Invalid encoding in string.");
    EXPECT_EQ(ReadNames(R"({"name":"A"})"),
              "error: expected a JSON array of product records, or an object with a \"products\" member");
    EXPECT_EQ(
        ReadNames(R"({"products":"none"})"),
        "error: the \"products\" member must be an array of records or an object whose members are records");
}
