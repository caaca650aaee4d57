#include "Host/Catalog/OrvOfflineCatalogApi.h"

#include "Core/Json/OrvJson.h"
#include "Host/Runtime/OrvInputFile.h"

#include <unordered_set>

namespace OrvWebBridge
{
    namespace
    {
        constexpr const char* OrvOfflineCatalogTextFields[] = {
            "name",     "brand",      "category", "category_t2", "collection",
            "designer", "dimensions", "weight",   "description", "website",
        };

        std::string OrvOfflineCatalogRecordPath(bool bBareArray, std::size_t Index)
        {
            return (bBareArray ? "[" : "products[") + std::to_string(Index) + "]";
        }

        // Checks one record; an empty result means it is usable.
        std::string OrvOfflineCatalogCheckRecord(const rapidjson::Value& Record, const std::string& Path)
        {
            if (!Record.IsObject())
            {
                return Path + ": expected a product record (an object)";
            }
            const rapidjson::Value* Id = FOrvJson::FindField(Record, "id");
            if (!Id || !Id->IsString() || Id->GetStringLength() == 0)
            {
                return Path + ".id: expected a non-empty string";
            }
            for (const char* Field : OrvOfflineCatalogTextFields)
            {
                const rapidjson::Value* Value = FOrvJson::FindField(Record, Field);
                if (Value && !Value->IsString() && !Value->IsNumber() && !Value->IsNull())
                {
                    return Path + "." + Field + ": expected a string";
                }
            }
            return {};
        }
    } // namespace

    FOrvOfflineCatalogApi::FOrvOfflineCatalogApi(IOrvGameThread& InGameThread) : GameThread(InGameThread)
    {
        Records.SetArray();
    }

    FOrvOfflineCatalogLoad FOrvOfflineCatalogApi::LoadFile(const std::string& FilePath)
    {
        std::string Text;
        std::string Error;
        if (!FOrvInputFile::Read(FilePath, Text, Error))
        {
            Records.SetArray();
            IndexById.clear();
            return {false, Error};
        }
        return LoadText(Text, FilePath);
    }

    FOrvOfflineCatalogLoad FOrvOfflineCatalogApi::LoadText(std::string_view Text,
                                                           const std::string& SourceName)
    {
        Records.SetArray();
        IndexById.clear();

        rapidjson::Document Parsed;
        FOrvJsonParseError ParseError;
        if (!FOrvJson::Parse(Text, Parsed, &ParseError))
        {
            return {false, SourceName + ": " + FOrvJson::DescribeParseError(Text, ParseError)};
        }
        const bool bBareArray = Parsed.IsArray();
        const rapidjson::Value* List = bBareArray ? &Parsed : nullptr;
        if (Parsed.IsObject())
        {
            List = FOrvJson::TryGetArrayField(Parsed, "products");
        }
        if (!List)
        {
            return {false,
                    SourceName +
                        ": expected an object with a \"products\" array, or an array of product records"};
        }

        std::unordered_map<std::string, std::size_t> Index;
        for (rapidjson::SizeType Position = 0; Position < List->Size(); ++Position)
        {
            const rapidjson::Value& Record = (*List)[Position];
            const std::string Path = OrvOfflineCatalogRecordPath(bBareArray, Position);
            if (std::string Problem = OrvOfflineCatalogCheckRecord(Record, Path); !Problem.empty())
            {
                return {false, SourceName + ": " + Problem};
            }
            const std::string Id = FOrvJson::GetStringField(Record, "id");
            const auto [Found, bInserted] = Index.try_emplace(Id, Position);
            if (!bInserted)
            {
                return {false, SourceName + ": " + Path + ".id: \"" + Id + "\" repeats " +
                                   OrvOfflineCatalogRecordPath(bBareArray, Found->second)};
            }
        }

        rapidjson::Document Loaded;
        Loaded.CopyFrom(*List, Loaded.GetAllocator());
        Records.Swap(Loaded);
        IndexById = std::move(Index);
        return {true, {}};
    }

    void FOrvOfflineCatalogApi::Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete)
    {
        std::shared_ptr<const rapidjson::Document> Answer;
        if (Path == BatchPath)
        {
            Answer = AnswerBatch(JsonBody);
        }
        // The answer is made now, so a completion that runs after this object is gone touches nothing of it.
        GameThread.Post([Answer = std::move(Answer), OnComplete = std::move(OnComplete)]()
                        { OnComplete(Answer != nullptr, Answer); });
    }

    std::shared_ptr<const rapidjson::Document>
    FOrvOfflineCatalogApi::AnswerBatch(std::string_view JsonBody) const
    {
        auto Answer = std::make_shared<rapidjson::Document>();
        auto& Allocator = Answer->GetAllocator();
        Answer->SetObject();

        rapidjson::Document Request;
        const rapidjson::Value* Ids = nullptr;
        if (FOrvJson::ParseObject(JsonBody, Request))
        {
            Ids = FOrvJson::TryGetArrayField(Request, "product_ids");
        }
        if (!Ids)
        {
            Answer->AddMember("status", false, Allocator);
            Answer->AddMember("message", "product_ids must be an array of product ids", Allocator);
            return Answer;
        }

        rapidjson::Value Products(rapidjson::kObjectType);
        rapidjson::Value Missing(rapidjson::kArrayType);
        std::unordered_set<std::string> Seen;
        for (const rapidjson::Value& IdValue : Ids->GetArray())
        {
            if (!IdValue.IsString())
            {
                continue;
            }
            const std::string Id(IdValue.GetString(), IdValue.GetStringLength());
            if (!Seen.insert(Id).second)
            {
                continue;
            }
            const auto Found = IndexById.find(Id);
            if (Found == IndexById.end())
            {
                Missing.PushBack(
                    rapidjson::Value(Id.c_str(), static_cast<rapidjson::SizeType>(Id.size()), Allocator),
                    Allocator);
                continue;
            }
            rapidjson::Value Record(Records[static_cast<rapidjson::SizeType>(Found->second)], Allocator);
            Products.AddMember(
                rapidjson::Value(Id.c_str(), static_cast<rapidjson::SizeType>(Id.size()), Allocator), Record,
                Allocator);
        }
        Answer->AddMember("status", true, Allocator);
        Answer->AddMember("products", Products, Allocator);
        Answer->AddMember("missing", Missing, Allocator);
        return Answer;
    }

    void FOrvOfflineCatalogApi::SetCookie(const FOrvCookie& Cookie)
    {
        for (FOrvCookie& Held : Cookies)
        {
            if (Held.Name == Cookie.Name)
            {
                Held = Cookie;
                return;
            }
        }
        Cookies.push_back(Cookie);
    }
} // namespace OrvWebBridge
