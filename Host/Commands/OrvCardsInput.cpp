#include "Host/Commands/OrvCardsInput.h"

#include "Core/Json/OrvJson.h"

namespace OrvWebBridge
{
    namespace
    {
        void AppendRecords(const rapidjson::Value& Container,
                           std::vector<const rapidjson::Value*>& OutRecords)
        {
            if (Container.IsArray())
            {
                for (const rapidjson::Value& Element : Container.GetArray())
                {
                    OutRecords.push_back(&Element);
                }
                return;
            }
            for (auto It = Container.MemberBegin(); It != Container.MemberEnd(); ++It)
            {
                OutRecords.push_back(&It->value);
            }
        }
    } // namespace

    bool FOrvCardsInput::Read(std::string_view Text, rapidjson::Document& Document,
                              std::vector<const rapidjson::Value*>& OutRecords, std::string& OutError)
    {
        constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
        if (Text.substr(0, ByteOrderMark.size()) == ByteOrderMark)
        {
            Text.remove_prefix(ByteOrderMark.size());
        }
        // Full precision so numbers print as the engine's reader (strtod) would have read them; records
        // must be valid UTF-8 because the cards copy their text into the output unchanged.
        FOrvJsonParseError ParseError;
        if (!FOrvJson::Parse(Text, Document, &ParseError, {.bValidateUtf8 = true}))
        {
            OutError = "invalid JSON at " + FOrvJson::DescribeParseError(Text, ParseError);
            return false;
        }

        OutRecords.clear();
        if (Document.IsArray())
        {
            AppendRecords(Document, OutRecords);
            return true;
        }
        const rapidjson::Value* Products =
            Document.IsObject() ? FOrvJson::FindField(Document, "products") : nullptr;
        if (!Products)
        {
            OutError = "expected a JSON array of product records, or an object with a \"products\" member";
            return false;
        }
        if (!Products->IsArray() && !Products->IsObject())
        {
            OutError =
                "the \"products\" member must be an array of records or an object whose members are records";
            return false;
        }
        AppendRecords(*Products, OutRecords);
        return true;
    }
} // namespace OrvWebBridge
