// Catalogue text, read two ways: as an offline catalogue file (which then answers a batch request for
// its own ids) and as a catalogue service's batch answer. Always: a catalogue or an error naming the
// file; answers the core reads into valid UTF-8 product records, one per requested id.
#include "Core/Common/OrvUtf8.h"
#include "Core/Json/OrvJson.h"
#include "Core/Json/OrvJsonWriter.h"
#include "Core/Outliner/OrvOutlinerBatchAnswer.h"
#include "Host/Catalog/OrvOfflineCatalogApi.h"
#include "Tests/Fuzz/Support/OrvFuzzCheck.h"
#include "Tests/Support/OrvManualGameThread.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

using namespace OrvWebBridge;

namespace
{
    void CheckRecords(const FOrvOutlinerBatchAnswer& Answer)
    {
        for (const FOrvProductInfo& Product : Answer.Products)
        {
            for (const std::string* Text :
                 {&Product.ProductID, &Product.Name, &Product.Brand, &Product.Category, &Product.CategoryT2,
                  &Product.Collection, &Product.Designer, &Product.Dimensions, &Product.Weight,
                  &Product.Description, &Product.Website})
            {
                OrvFuzzCheckUtf8(*Text, "product text is valid UTF-8");
            }
        }
    }

    // The string ids of the records, as the batch request of a scan would list them, plus one unknown. The
    // request is JSON, so ids that differ only in ill-formed bytes become one id there.
    std::string BatchRequestFor(const rapidjson::Value& Parsed, std::set<std::string>& OutIds)
    {
        const rapidjson::Value* List =
            Parsed.IsArray() ? &Parsed : FOrvJson::TryGetArrayField(Parsed, "products");
        std::string Body;
        FOrvJsonWriter Writer(Body, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        Writer.BeginArray("product_ids");
        for (const rapidjson::Value& Record : List->GetArray())
        {
            std::string Id;
            if (FOrvJson::TryGetStringField(Record, "id", Id) &&
                OutIds.insert(FOrvUtf8::MakeValid(Id)).second)
            {
                Writer.String(Id);
            }
        }
        Writer.String("fuzz-unknown-id");
        OutIds.insert("fuzz-unknown-id");
        Writer.EndArray();
        Writer.EndObject();
        return Body;
    }
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const std::string_view Text(reinterpret_cast<const char*>(Data), Size);
    rapidjson::Document Parsed;
    const bool bParsed = FOrvJson::Parse(Text, Parsed);

    // A catalogue service's answer.
    CheckRecords(FOrvOutlinerBatchAnswer::Read(bParsed, bParsed ? &Parsed : nullptr));

    // An offline catalogue file.
    FOrvManualGameThread GameThread;
    FOrvOfflineCatalogApi Catalog(GameThread);
    const FOrvOfflineCatalogLoad Loaded = Catalog.LoadText(Text, "catalog.json");
    if (!Loaded.bOk)
    {
        OrvFuzzCheck(Loaded.Error.starts_with("catalog.json: "), "the error names the file", Loaded.Error);
        return 0;
    }
    std::set<std::string> Ids;
    const std::string Request = BatchRequestFor(Parsed, Ids);
    bool bAnswered = false;
    Catalog.Post(FOrvOfflineCatalogApi::BatchPath, Request,
                 [&](bool bSuccess, std::shared_ptr<const rapidjson::Document> Answer)
                 {
                     bAnswered = true;
                     const FOrvOutlinerBatchAnswer Read =
                         FOrvOutlinerBatchAnswer::Read(bSuccess, Answer.get());
                     OrvFuzzCheck(Read.Outcome == EOrvBatchAnswerOutcome::Answered, "the catalogue answers");
                     OrvFuzzCheck(Read.Products.size() + Read.Missing.size() == Ids.size(),
                                  "every requested id is answered once", Request);
                     CheckRecords(Read);
                 });
    GameThread.RunPending();
    OrvFuzzCheck(bAnswered, "the catalogue answers on the game thread");
    return 0;
}
