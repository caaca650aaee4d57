#include "Tests/Unit/Outliner/OrvOutlinerTestRig.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    /** A rig and its scanner; Run keeps what the completion hands over. */
    struct FOrvOutlinerScannerTest : ::testing::Test
    {
        struct FRun
        {
            int Completions = 0;
            FOrvOutlinerTreeItems RootItems;

            FOrvOutlinerScanComplete Callback()
            {
                return [this](const FOrvOutlinerTreeItems& Items)
                {
                    ++Completions;
                    RootItems = Items;
                };
            }
        };

        void AddProductActor(const std::string& ProductId)
        {
            Rig.AddActor({Rig.AddProductMesh("SM_" + ProductId, ProductId)});
        }
        static std::string HayAnswer(const std::string& Id = "P1")
        {
            return OrvTestAnswer({{Id, OrvTestRecord(Id, "Hay", "About", "Chairs", "Seating")}});
        }

        FOrvOutlinerRig Rig;
        FOrvOutlinerScanner Scanner{Rig.ScannerPorts()};
        FRun Run;
    };
} // namespace

TEST_F(FOrvOutlinerScannerTest, LevelWithoutProductsCompletesAtOnceWithoutAskingTheCatalogue)
{
    Rig.AddActors(Rig.AddPlainMesh("SM_Wall"), 3);
    Rig.AddActor({});
    Rig.AddActor({FOrvMeshRef{}});

    Scanner.ScanScene(Run.Callback());

    EXPECT_EQ(Run.Completions, 1);
    EXPECT_TRUE(Run.RootItems.empty());
    EXPECT_TRUE(Rig.Api.Requests.empty());
    EXPECT_FALSE(Scanner.IsScanning());
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log,
                                 "OrvOutlinerScanner: Found 0 unique products, 0 total actors"));
}

TEST_F(FOrvOutlinerScannerTest, ActorsAreGroupedByTheFirstValidTagOfTheirComponentsAndAskedForInOneBatch)
{
    const FOrvMeshRef Chair = Rig.AddProductMesh("SM_Chair", "P-CHAIR");
    const FOrvMeshRef Broken = Rig.AddProductMesh("SM_Broken", "P-BROKEN", false);
    Rig.AddActor({Rig.AddPlainMesh("SM_Wall"), Chair});
    Rig.AddActor({FOrvMeshRef{}, Broken, Rig.AddProductMesh("SM_Lamp", "P-LAMP"), Chair});
    Rig.AddActor({Rig.AddProductMesh("SM_Chair_Copy", "P-CHAIR")});
    Rig.AddActor({Broken});

    Scanner.ScanScene(Run.Callback());

    ASSERT_EQ(Rig.Api.Requests.size(), 1u);
    EXPECT_EQ(Rig.Api.Requests[0].Path, "/orvvault/products/batch");
    EXPECT_EQ(Rig.Api.Requests[0].Body, R"({"product_ids":["P-CHAIR","P-LAMP"]})");
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log,
                                 "OrvOutlinerScanner: Found 2 unique products, 3 total actors"));
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "OrvOutlinerScanner: Fetching info for 2 products from API"));
    EXPECT_TRUE(Scanner.IsScanning());
    EXPECT_EQ(Run.Completions, 0) << "the tree comes with the catalogue's answer";

    Rig.Api.Answer(OrvTestAnswer({}));
    EXPECT_EQ(Run.Completions, 1);
    EXPECT_FALSE(Scanner.IsScanning());
    EXPECT_EQ(Scanner.GetTotalProductCount(), 3);
    const FOrvSceneProductPtr Product = Scanner.GetSceneProducts().Find("P-CHAIR");
    ASSERT_TRUE(Product);
    EXPECT_EQ(Product->Actors.size(), 2u);
    EXPECT_EQ(Product->Mesh, Chair) << "the mesh of the first actor met";
}

TEST_F(FOrvOutlinerScannerTest, CountsAreOfActorsThatStillExistWhenTheTreeIsBuilt)
{
    const std::vector<FOrvActorRef> Chairs = Rig.AddActors(Rig.AddProductMesh("SM_Chair", "P1"), 3);
    Scanner.ScanScene(Run.Callback());

    Rig.Destroy(Chairs[1]);
    Rig.Api.Answer(HayAnswer());

    ASSERT_EQ(Run.RootItems.size(), 1u);
    EXPECT_EQ(Run.RootItems[0]->AsMacroCategory()->ActorCount, 2);
    EXPECT_EQ(Scanner.GetTotalProductCount(), 3) << "the total is of the scan itself";
}

TEST_F(FOrvOutlinerScannerTest, AnswerFieldsAreReadAsTheEngineReadsThem)
{
    AddProductActor("P1");
    AddProductActor("P2");
    AddProductActor("42");
    Scanner.ScanScene(nullptr);

    // Field names without case; "null" texts and empty strings of optional fields are empty; numbers
    // become text; a missing name reads as empty; "products" may also be an array.
    Rig.Api.Answer(R"({"STATUS":true,"products":[
        {"id":"P1","name":"Arco","brand":"Flos","category":"Lamps","category_t2":"NULL","Collection":"Classics",
         "designer":"null","dimensions":"","weight":12.5,"description":null,"website":"https://flos.com/arco"},
        {"id":"P2","brand":"Hay","category":"Chairs"},
        {"id":42,"name":true,"brand":"Kvadrat","category":"Textiles"},
        "not a record"]})");

    FOrvProductInfo Arco = OrvTestInfo("P1", "Flos", "Arco", "Lamps");
    Arco.Collection = "Classics";
    Arco.Weight = "12.5";
    Arco.Website = "https://flos.com/arco";
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P1")->GetInfo(), Arco);
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P2")->Name, "");
    EXPECT_EQ(Scanner.GetSceneProducts().Find("42")->Name, "true");
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Verbose,
                                 "OrvOutlinerScanner: Cached product P1: Flos Arco ( / Lamps)"));
}

TEST_F(FOrvOutlinerScannerTest, UnansweredProductsShowAsUnknownAndAreCachedOnlyWhenTheCatalogueReplied)
{
    struct FCase
    {
        const char* Answer; // null: the request failed
        const char* Warning;
        bool bCached;
    };
    const FCase Cases[] = {
        {R"({"status":true,"products":{},"missing":["P1"]})",
         "OrvOutlinerScanner: Product not found in API: P1", true},
        {nullptr, "OrvOutlinerScanner: API request failed", true},
        {"[1,2]", "OrvOutlinerScanner: API request failed", true},
        {R"({"status":false,"products":{"P1":{"id":"P1","name":"Ignored"}}})",
         "OrvOutlinerScanner: API returned status=false", false},
        {R"({"products":{}})", "OrvOutlinerScanner: API returned status=false", false},
    };
    for (const FCase& Case : Cases)
    {
        SCOPED_TRACE(Case.Answer ? Case.Answer : "failed request");
        FOrvOutlinerRig Fresh;
        Fresh.AddActor({Fresh.AddProductMesh("SM_1", "P1")});
        FOrvOutlinerScanner FreshScanner(Fresh.ScannerPorts());
        FRun FreshRun;

        FreshScanner.ScanScene(FreshRun.Callback());
        Case.Answer ? Fresh.Api.Answer(Case.Answer) : Fresh.Api.Fail();

        EXPECT_TRUE(Fresh.Log.Contains(EOrvLogVerbosity::Warning, Case.Warning));
        EXPECT_EQ(FreshRun.Completions, 1);
        EXPECT_EQ(FreshScanner.GetSceneProducts().Find("P1")->GetInfo(),
                  FOrvProductInfo::MakePlaceholder("P1"));
        ASSERT_EQ(FreshRun.RootItems.size(), 1u);
        EXPECT_EQ(FreshRun.RootItems[0]->AsCategory()->CategoryName, "Uncategorized");
        EXPECT_EQ(FreshRun.RootItems[0]->AsCategory()->Products[0]->GetDisplayName(),
                  "Unknown Brand - Unknown Product");

        FreshScanner.ScanScene(FreshRun.Callback());
        EXPECT_EQ(Fresh.Api.Requests.size(), Case.bCached ? 1u : 2u);
        EXPECT_EQ(FreshRun.Completions, Case.bCached ? 2 : 1);
        if (Case.bCached)
        {
            FreshScanner.ClearCache();
            FreshScanner.ScanScene(FreshRun.Callback());
            EXPECT_EQ(Fresh.Api.Requests.size(), 2u) << "a cleared cache asks again";
        }
    }
}

TEST_F(FOrvOutlinerScannerTest, LaterScansAskOnlyForProductsNotYetKnown)
{
    AddProductActor("P1");
    Scanner.ScanScene(Run.Callback());
    Rig.Api.Answer(HayAnswer());

    AddProductActor("P2");
    Scanner.ScanScene(Run.Callback());

    ASSERT_EQ(Rig.Api.Requests.size(), 2u);
    EXPECT_EQ(Rig.Api.Requests[1].Body, R"({"product_ids":["P2"]})");
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P1")->Brand, "Hay") << "filled from the cache";
}

TEST_F(FOrvOutlinerScannerTest, SecondScanWhileWaitingIsRefusedAndTheFirstCompletesOnce)
{
    AddProductActor("P1");
    FRun Second;

    Scanner.ScanScene(Run.Callback());
    Scanner.ScanScene(Second.Callback());
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Warning, "OrvOutlinerScanner: Scan already in progress"));
    EXPECT_EQ(Rig.Api.Requests.size(), 1u);

    Rig.Api.Answer(OrvTestAnswer({}));
    EXPECT_EQ(Run.Completions, 1);
    EXPECT_EQ(Second.Completions, 0);
}

TEST_F(FOrvOutlinerScannerTest, CancelledScanIgnoresItsLateAnswerButKeepsWhatItTeaches)
{
    AddProductActor("P1");
    FRun Next;

    Scanner.ScanScene(Run.Callback());
    Scanner.CancelScan();
    EXPECT_FALSE(Scanner.IsScanning());
    Scanner.ScanScene(Next.Callback());
    ASSERT_EQ(Rig.Api.Requests.size(), 2u);

    Rig.Api.Answer(HayAnswer());
    EXPECT_EQ(Run.Completions, 0);
    EXPECT_EQ(Next.Completions, 0) << "the new scan waits for its own answer";
    EXPECT_TRUE(Scanner.IsScanning());

    Rig.Api.Answer(OrvTestAnswer({}));
    EXPECT_EQ(Next.Completions, 1);
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P1")->Brand, "Hay");
}

TEST_F(FOrvOutlinerScannerTest, AnswerArrivingAfterTheScannerIsGoneTouchesNothing)
{
    AddProductActor("P1");
    {
        FOrvOutlinerScanner Gone(Rig.ScannerPorts());
        Gone.ScanScene(Run.Callback());
    }
    Rig.Api.Answer(HayAnswer());
    EXPECT_EQ(Run.Completions, 0);
}
