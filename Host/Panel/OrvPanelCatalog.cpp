#include "Host/Panel/OrvPanelCatalog.h"

#include "Core/Json/OrvJson.h"
#include "Core/Json/OrvJsonWriter.h"

#include <algorithm>

namespace OrvWebBridge
{
    bool FOrvPanelCatalog::Load(std::string_view Text, std::string& Error)
    {
        rapidjson::Document Parsed;
        FOrvJsonParseError ParseError;
        if (!FOrvJson::Parse(Text, Parsed, &ParseError))
        {
            Error = FOrvJson::DescribeParseError(Text, ParseError);
            return false;
        }
        const rapidjson::Value* ProductList = Parsed.IsArray() ? &Parsed : nullptr;
        const rapidjson::Value* FinishList = nullptr;
        if (Parsed.IsObject())
        {
            ProductList = FOrvJson::TryGetArrayField(Parsed, "products");
            FinishList = FOrvJson::TryGetArrayField(Parsed, "finishes");
        }
        if (!ProductList)
        {
            Error = "expected an array of product records or an object with a \"products\" array";
            return false;
        }

        Products.clear();
        FinishIds.clear();
        Json.clear();
        FOrvJsonWriter Writer(Json, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        Writer.BeginArray("products");
        for (const rapidjson::Value& Record : ProductList->GetArray())
        {
            std::string Id;
            if (Record.IsObject() && FOrvJson::TryGetStringField(Record, "id", Id) && !Id.empty())
            {
                Products.push_back({Id, FOrvJson::GetStringField(Record, "name"),
                                    FOrvJson::GetStringField(Record, "brand")});
                Writer.Value(Record);
            }
        }
        Writer.EndArray();
        Writer.BeginArray("finishes");
        const rapidjson::Value NoFinishes(rapidjson::kArrayType);
        for (const rapidjson::Value& Record : (FinishList ? *FinishList : NoFinishes).GetArray())
        {
            std::string Id;
            if (Record.IsObject() && FOrvJson::TryGetStringField(Record, "id", Id) && !Id.empty())
            {
                FinishIds.push_back(Id);
                Writer.Value(Record);
            }
        }
        Writer.EndArray();
        Writer.EndObject();
        return true;
    }

    const FOrvPanelProduct* FOrvPanelCatalog::FindProduct(std::string_view Id) const
    {
        const auto Found = std::find_if(Products.begin(), Products.end(),
                                        [Id](const FOrvPanelProduct& Product) { return Product.Id == Id; });
        return Found == Products.end() ? nullptr : &*Found;
    }

    bool FOrvPanelCatalog::HasFinish(std::string_view Id) const
    {
        return std::find(FinishIds.begin(), FinishIds.end(), Id) != FinishIds.end();
    }
} // namespace OrvWebBridge
