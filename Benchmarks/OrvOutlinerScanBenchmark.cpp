// The outliner's scan and tree build over large levels: the cost per actor must not grow with the level.
// Levels of 10,000 and 100,000 tagged actors, 20 per product (500 and 5,000 products), plus 10,000 actors
// of 5,000 products; the catalogue cache is warm, as on every rescan after the first.
#include "Core/Outliner/OrvOutlinerScanner.h"
#include "Core/Outliner/OrvOutlinerTreeBuilder.h"
#include "Host/Editor/OrvMemoryEditor.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    class FOrvScanBenchQuietLog : public IOrvLog
    {
    public:
        void Log(EOrvLogCategory, EOrvLogVerbosity, std::string_view) override {}
    };

    /** Answers every batch at once with a record per id, so that the cache can be warmed. */
    class FOrvScanBenchCatalog : public IOrvCatalogApi
    {
    public:
        void Post(std::string_view, std::string JsonBody, FOrvApiCallback OnComplete) override
        {
            rapidjson::Document Request;
            Request.Parse(JsonBody.c_str());
            auto Answer = std::make_shared<rapidjson::Document>();
            auto& Allocator = Answer->GetAllocator();
            Answer->SetObject();
            rapidjson::Value Products(rapidjson::kObjectType);
            for (const auto& IdValue : Request["product_ids"].GetArray())
            {
                const std::string Id = IdValue.GetString();
                const int Number = std::stoi(Id.substr(4));
                const auto Text = [&](const std::string& Value) {
                    return rapidjson::Value(Value.c_str(), static_cast<rapidjson::SizeType>(Value.size()),
                                            Allocator);
                };
                rapidjson::Value Record(rapidjson::kObjectType);
                Record.AddMember("id", Text(Id), Allocator);
                Record.AddMember("name", Text("Model " + std::to_string(Number * 7919 % 100003)), Allocator);
                Record.AddMember("brand", Text("Brand " + std::to_string(Number % 150)), Allocator);
                Record.AddMember("category", Text("Category " + std::to_string(Number % 60)), Allocator);
                Record.AddMember(
                    "category_t2",
                    Text(Number % 10 == 0 ? std::string() : "Macro " + std::to_string(Number % 12)),
                    Allocator);
                Products.AddMember(Text(Id), Record, Allocator);
            }
            Answer->AddMember("status", true, Allocator);
            Answer->AddMember("products", Products, Allocator);
            OnComplete(true, std::move(Answer));
        }
        std::vector<FOrvCookie> GetCookies() const override { return {}; }
        void SetCookie(const FOrvCookie&) override {}
    };

    /** A level of ActorCount tagged actors over ProductCount products, interleaved as a real room's are. */
    struct FOrvScanBenchLevel
    {
        FOrvScanBenchLevel(int ActorCount, int ProductCount)
            : Actors(ActorCount),
              Scanner(FOrvOutlinerScannerPorts{Editor.World(), Editor.Meshes(), Catalog, Log})
        {
            std::vector<FOrvMeshRef> Meshes;
            for (int Product = 0; Product < ProductCount; ++Product)
            {
                Meshes.push_back(
                    Editor.AddStaticMesh({"/Game/ORVESSA/Meshes/SM_" + std::to_string(Product),
                                          {},
                                          FOrvProductTag{"PRD-" + std::to_string(Product), true}}));
            }
            const FOrvMeshRef Wall = Editor.AddStaticMesh({"/Game/Architecture/SM_Wall", {}, std::nullopt});
            for (int Index = 0; Index < ActorCount; ++Index)
            {
                FOrvMemoryActorDesc Actor;
                // Half the product actors carry an untagged component first, as walls with fittings do.
                Actor.StaticMeshComponents = {Meshes[static_cast<std::size_t>(Index * 7 % ProductCount)]};
                if (Index % 2 == 0)
                {
                    Actor.StaticMeshComponents.insert(Actor.StaticMeshComponents.begin(), Wall);
                }
                Editor.AddActor(Actor);
            }
            Scanner.ScanScene(nullptr); // warms the catalogue cache
        }

        FOrvMemoryEditor Editor;
        FOrvScanBenchQuietLog Log;
        FOrvScanBenchCatalog Catalog;
        int Actors;
        FOrvOutlinerScanner Scanner;
    };

    double OrvScanBenchSeconds(const std::function<void()>& Work, int Times)
    {
        const auto Start = std::chrono::steady_clock::now();
        for (int Run = 0; Run < Times; ++Run)
        {
            Work();
        }
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count() / Times;
    }

    /** One level under measurement: its best rescan and its best bare walk over the editor's queries. */
    struct FOrvScanBenchCase
    {
        const char* Label;
        int ActorCount;
        int ProductCount;
        std::unique_ptr<FOrvScanBenchLevel> Level;
        double BestScan = 1e30;
        double BestQueries = 1e30;
        std::size_t RootItems = 0;

        void MeasureOnce()
        {
            // Each timing spans about the same wall time whatever the level's size.
            const int Times = std::max(1, 100000 / ActorCount);
            BestScan =
                std::min(BestScan, OrvScanBenchSeconds(
                                       [&]() {
                                           Level->Scanner.ScanScene([&](const FOrvOutlinerTreeItems& Items)
                                                                    { RootItems = Items.size(); });
                                       },
                                       Times));
            // The floor of any walk: list the actors and ask each for its static mesh components.
            std::size_t Components = 0;
            BestQueries = std::min(
                BestQueries, OrvScanBenchSeconds(
                                 [&]()
                                 {
                                     for (const FOrvActorRef Actor : Level->Editor.World().GetActors())
                                     {
                                         Components +=
                                             Level->Editor.World().GetStaticMeshComponents(Actor).size();
                                     }
                                 },
                                 Times));
        }

        double NanosPerActor() const { return BestScan * 1e9 / ActorCount; }
        double CoreNanosPerActor() const { return (BestScan - BestQueries) * 1e9 / ActorCount; }
    };
} // namespace

int main()
{
    std::printf("Outliner rescan (warm cache): walk the level, copy cached info, build the sorted tree.\n");
    std::printf(
        "Each level is built alone and timed 40 times; three passes over the levels, best of all.\n\n");
    std::vector<FOrvScanBenchCase> Cases;
    Cases.push_back({"10k actors, 20 per product", 10000, 500, nullptr});
    Cases.push_back({"10k actors, 2 per product", 10000, 5000, nullptr});
    Cases.push_back({"100k actors, 20 per product", 100000, 5000, nullptr});
    for (int Pass = 0; Pass < 3; ++Pass)
    {
        for (FOrvScanBenchCase& Case : Cases)
        {
            // Alone, so that no other level's memory sits between this one's actors.
            Case.Level = std::make_unique<FOrvScanBenchLevel>(Case.ActorCount, Case.ProductCount);
            for (int Round = 0; Round < 40; ++Round)
            {
                Case.MeasureOnce();
            }
            Case.Level.reset();
        }
    }
    for (const FOrvScanBenchCase& Case : Cases)
    {
        std::printf(
            "%-28s %7d actors %5d products %8.3f ms %7.1f ns/actor (core %5.1f, editor queries %5.1f), "
            "%zu root items\n",
            Case.Label, Case.ActorCount, Case.ProductCount, Case.BestScan * 1e3, Case.NanosPerActor(),
            Case.CoreNanosPerActor(), Case.NanosPerActor() - Case.CoreNanosPerActor(), Case.RootItems);
    }

    const FOrvScanBenchCase& Small = Cases[0];
    const FOrvScanBenchCase& Large = Cases[2];
    const double Ratio = Large.NanosPerActor() / Small.NanosPerActor();
    std::printf("\ncost per actor, 100k / 10k (same actors per product): %.3fx (target <= 1.2x: %s)\n", Ratio,
                Ratio <= 1.2 ? "met" : "MISSED");
    std::printf("  the core's work alone (editor queries taken out):    %.3fx\n",
                Large.CoreNanosPerActor() / Small.CoreNanosPerActor());
    std::printf("cost per actor, 100k / 10k (same 5,000 products):       %.3fx\n",
                Large.NanosPerActor() / Cases[1].NanosPerActor());
    return 0;
}
