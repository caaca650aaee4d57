#include "Tests/Unit/Outliner/OrvOutlinerTestRig.h"

#include <gtest/gtest.h>

namespace
{
    /** Runs ScanScene and keeps what the completion hands over. */
    struct FScanRun
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

    // The tree as "Macro/Category/Brand - Name xN" lines, to compare whole trees at once.
    std::vector<std::string> Describe(const FOrvOutlinerTreeItems& RootItems)
    {
        std::vector<std::string> Lines;
        const auto AddCategory = [&](const std::string& Prefix, const FOrvOutlinerCategoryItem& Category)
        {
            Lines.push_back(Prefix + Category.CategoryName + " x" + std::to_string(Category.ActorCount));
            for (const auto& Product : Category.Products)
            {
                Lines.push_back(Prefix + Category.CategoryName + "/" + Product->GetDisplayName());
            }
        };
        for (const FOrvOutlinerTreeItemPtr& Root : RootItems)
        {
            if (const FOrvOutlinerMacroCategoryItem* Macro = Root->AsMacroCategory())
            {
                Lines.push_back(Macro->MacroCategoryName + " x" + std::to_string(Macro->ActorCount));
                for (const auto& Category : Macro->Categories)
                {
                    AddCategory(Macro->MacroCategoryName + "/", *Category);
                }
            }
            else
            {
                AddCategory("", *Root->AsCategory());
            }
        }
        return Lines;
    }

    std::vector<std::string> RequestedIds(const FOrvFakeCatalogApi::FRequest& Request)
    {
        rapidjson::Document Body;
        EXPECT_TRUE(FOrvJson::ParseObject(Request.Body, Body));
        std::vector<std::string> Ids;
        for (const auto& Id : Body["product_ids"].GetArray())
        {
            Ids.emplace_back(Id.GetString());
        }
        return Ids;
    }
} // namespace

TEST(FOrvOutlinerScannerTest, LevelWithoutProductsOrWithoutWorldCompletesAtOnceWithoutAskingTheCatalogue)
{
    FOrvOutlinerRig Rig;
    Rig.AddActors(Rig.AddPlainMesh("SM_Wall"), 3);
    Rig.AddActor({});
    Rig.AddActor({FOrvMeshRef{}});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;

    Scanner.ScanScene(Run.Callback());

    EXPECT_EQ(Run.Completions, 1);
    EXPECT_TRUE(Run.RootItems.empty());
    EXPECT_TRUE(Rig.Api.Requests.empty());
    EXPECT_FALSE(Scanner.IsScanning());
    EXPECT_EQ(Scanner.GetTotalProductCount(), 0);
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log,
                                 "OrvOutlinerScanner: Found 0 unique products, 0 total actors"));
}

TEST(FOrvOutlinerScannerTest, ActorsAreGroupedByProductIdAndAskedForInOneBatch)
{
    FOrvOutlinerRig Rig;
    const FOrvMeshRef Chair = Rig.AddProductMesh("SM_Chair", "P-CHAIR");
    const FOrvMeshRef ChairCopy = Rig.AddProductMesh("SM_Chair_Copy", "P-CHAIR");
    const FOrvMeshRef Lamp = Rig.AddProductMesh("SM_Lamp", "P-LAMP");
    Rig.AddActor({Chair});
    Rig.AddActor({Lamp});
    Rig.AddActor({ChairCopy});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;

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

TEST(FOrvOutlinerScannerTest, FirstComponentWithAValidTagDecidesTheProduct)
{
    FOrvOutlinerRig Rig;
    const FOrvMeshRef Wall = Rig.AddPlainMesh("SM_Wall");
    const FOrvMeshRef Broken = Rig.AddProductMesh("SM_Broken", "P-BROKEN", false);
    const FOrvMeshRef Sofa = Rig.AddProductMesh("SM_Sofa", "P-SOFA");
    const FOrvMeshRef Rug = Rig.AddProductMesh("SM_Rug", "P-RUG");
    Rig.AddActor({Wall, Sofa});
    Rig.AddActor({FOrvMeshRef{}, Broken, Rug, Sofa});
    Rig.AddActor({Broken});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());

    Scanner.ScanScene(nullptr);

    ASSERT_EQ(Rig.Api.Requests.size(), 1u);
    EXPECT_EQ(RequestedIds(Rig.Api.Requests[0]), (std::vector<std::string>{"P-SOFA", "P-RUG"}));
    EXPECT_EQ(Scanner.GetTotalProductCount(), 2);
}

TEST(FOrvOutlinerScannerTest, TreeSortsWithoutCaseAndPutsCategoriesWithoutMacroCategoryLast)
{
    FOrvOutlinerRig Rig;
    Rig.AddActors(Rig.AddProductMesh("SM_A", "A"), 2);
    Rig.AddActors(Rig.AddProductMesh("SM_B", "B"), 1);
    Rig.AddActors(Rig.AddProductMesh("SM_C", "C"), 3);
    Rig.AddActors(Rig.AddProductMesh("SM_D", "D"), 1);
    Rig.AddActors(Rig.AddProductMesh("SM_E", "E"), 1);
    Rig.AddActors(Rig.AddProductMesh("SM_F", "F"), 1);
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;
    Scanner.ScanScene(Run.Callback());

    Rig.Api.Answer(OrvTestAnswer({
        {"A", OrvTestRecord("A", "zeta", "Chair", "Chairs", "Seating")},
        {"B", OrvTestRecord("B", "Alpha", "Stool", "chairs", "seating")},
        {"C", OrvTestRecord("C", "Flos", "Arco", "Floor Lamps", "lighting")},
        {"D", OrvTestRecord("D", "Vitra", "Rug", "Rugs")},
        {"E", OrvTestRecord("E", "Alpha", "Bench", "Benches", "Seating")},
        {"F", OrvTestRecord("F", "Muuto", "Vase", "accessories")},
    }));

    // Same names in other letter case are one group, named as first met.
    EXPECT_EQ(Describe(Run.RootItems), (std::vector<std::string>{
                                           "lighting x3",
                                           "lighting/Floor Lamps x3",
                                           "lighting/Floor Lamps/Flos - Arco",
                                           "Seating x4",
                                           "Seating/Benches x1",
                                           "Seating/Benches/Alpha - Bench",
                                           "Seating/Chairs x3",
                                           "Seating/Chairs/Alpha - Stool",
                                           "Seating/Chairs/zeta - Chair",
                                           "accessories x1",
                                           "accessories/Muuto - Vase",
                                           "Rugs x1",
                                           "Rugs/Vitra - Rug",
                                       }));
    EXPECT_EQ(Run.RootItems[0]->GetChildren().size(), 1u);
    EXPECT_EQ(Run.RootItems[0]->GetChildren()[0]->GetChildren()[0]->GetKind(), EOrvOutlinerItemKind::Product);
    EXPECT_EQ(FOrvOutlinerProductItem().GetDisplayName(), "Unknown Product");
}

TEST(FOrvOutlinerScannerTest, CountsAreOfActorsThatStillExistWhenTheTreeIsBuilt)
{
    FOrvOutlinerRig Rig;
    const std::vector<FOrvActorRef> Chairs = Rig.AddActors(Rig.AddProductMesh("SM_Chair", "P1"), 3);
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;
    Scanner.ScanScene(Run.Callback());

    Rig.Destroy(Chairs[1]);
    Rig.Api.Answer(OrvTestAnswer({{"P1", OrvTestRecord("P1", "Hay", "About", "Chairs", "Seating")}}));

    EXPECT_EQ(Describe(Run.RootItems)[0], "Seating x2");
    EXPECT_EQ(Scanner.GetTotalProductCount(), 3) << "the total is of the scan itself";
}

TEST(FOrvOutlinerScannerTest, AnswerFieldsAreReadAsTheEngineReadsThem)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    Rig.AddActor({Rig.AddProductMesh("SM_2", "P2")});
    Rig.AddActor({Rig.AddProductMesh("SM_3", "42")});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    Scanner.ScanScene(nullptr);

    // Field names without case; "null" texts and empty strings of optional fields are empty; numbers
    // become text; a missing name reads as empty; "products" may also be an array.
    Rig.Api.Answer(R"({"STATUS":true,"products":[
        {"id":"P1","name":"Arco","brand":"Flos","category":"Lamps","category_t2":"NULL","Collection":"Classics",
         "designer":"null","dimensions":"","weight":12.5,"description":null,"website":"https://flos.com/arco"},
        {"id":"P2","brand":"Hay","category":"Chairs"},
        {"id":42,"name":true,"brand":"Kvadrat","category":"Textiles"},
        "not a record"]})");

    const FOrvSceneProduct& Arco = *Scanner.GetSceneProducts().Find("P1");
    EXPECT_EQ(Arco.Name, "Arco");
    EXPECT_EQ(Arco.CategoryT2, "");
    EXPECT_EQ(Arco.Collection, "Classics");
    EXPECT_EQ(Arco.Designer, "");
    EXPECT_EQ(Arco.Dimensions, "");
    EXPECT_EQ(Arco.Weight, "12.5");
    EXPECT_EQ(Arco.Description, "");
    EXPECT_EQ(Arco.Website, "https://flos.com/arco");
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P2")->Name, "");
    EXPECT_EQ(Scanner.GetSceneProducts().Find("42")->Name, "true");
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Verbose,
                                 "OrvOutlinerScanner: Cached product P1: Flos Arco ( / Lamps)"));
}

TEST(FOrvOutlinerScannerTest, MissingProductsGetPlaceholdersAndAreNotAskedForAgain)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    Rig.AddActor({Rig.AddProductMesh("SM_2", "P2")});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;
    Scanner.ScanScene(Run.Callback());
    Rig.Api.Answer(OrvTestAnswer({{"P1", OrvTestRecord("P1", "Hay", "About", "Chairs")}}, R"(["P2"])"));

    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Warning, "OrvOutlinerScanner: Product not found in API: P2"));
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P2")->GetInfo(), FOrvProductInfo::MakePlaceholder("P2"));
    EXPECT_EQ(Describe(Run.RootItems).back(), "Uncategorized/Unknown Brand - Unknown Product");

    Scanner.ScanScene(Run.Callback());
    EXPECT_EQ(Rig.Api.Requests.size(), 1u);
    EXPECT_EQ(Run.Completions, 2);
}

TEST(FOrvOutlinerScannerTest, FailedRequestCachesPlaceholdersUntilTheCacheIsCleared)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;
    Scanner.ScanScene(Run.Callback());

    Rig.Api.Fail();
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Warning, "OrvOutlinerScanner: API request failed"));
    EXPECT_EQ(Run.Completions, 1);
    EXPECT_EQ(Describe(Run.RootItems)[0], "Uncategorized x1");

    Scanner.ScanScene(Run.Callback());
    EXPECT_EQ(Rig.Api.Requests.size(), 1u) << "placeholders are cached";

    Scanner.ClearCache();
    Scanner.ScanScene(Run.Callback());
    EXPECT_EQ(Rig.Api.Requests.size(), 2u);
    Rig.Api.Answer("[1,2]"); // not an object: a failed request too
    EXPECT_EQ(Rig.Log.Count("OrvOutlinerScanner: API request failed"), 2);
}

TEST(FOrvOutlinerScannerTest, StatusFalseOrAbsentLearnsNothing)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;

    Scanner.ScanScene(Run.Callback());
    Rig.Api.Answer(R"({"status":false,"products":{"P1":{"id":"P1","name":"Ignored"}}})");
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Warning, "OrvOutlinerScanner: API returned status=false"));
    EXPECT_EQ(Run.Completions, 1);
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P1")->Name, "Unknown Product");

    Scanner.ScanScene(Run.Callback());
    ASSERT_EQ(Rig.Api.Requests.size(), 2u) << "nothing was cached, so the id is asked for again";
    Rig.Api.Answer(R"({"products":{}})");
    EXPECT_EQ(Rig.Log.Count("OrvOutlinerScanner: API returned status=false"), 2);
}

TEST(FOrvOutlinerScannerTest, LaterScansAskOnlyForProductsNotYetKnown)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Run;
    Scanner.ScanScene(Run.Callback());
    Rig.Api.Answer(OrvTestAnswer({{"P1", OrvTestRecord("P1", "Hay", "About", "Chairs")}}));

    Rig.AddActor({Rig.AddProductMesh("SM_2", "P2")});
    Scanner.ScanScene(Run.Callback());

    ASSERT_EQ(Rig.Api.Requests.size(), 2u);
    EXPECT_EQ(RequestedIds(Rig.Api.Requests[1]), std::vector<std::string>{"P2"});
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P1")->Brand, "Hay") << "filled from the cache";
}

TEST(FOrvOutlinerScannerTest, SecondScanWhileWaitingIsRefusedAndTheFirstCompletesOnce)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun First;
    FScanRun Second;

    Scanner.ScanScene(First.Callback());
    Scanner.ScanScene(Second.Callback());
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Warning, "OrvOutlinerScanner: Scan already in progress"));
    EXPECT_EQ(Rig.Api.Requests.size(), 1u);

    Rig.Api.Answer(OrvTestAnswer({}));
    EXPECT_EQ(First.Completions, 1);
    EXPECT_EQ(Second.Completions, 0);
}

TEST(FOrvOutlinerScannerTest, CancelledScanIgnoresItsLateAnswerButKeepsWhatItTeaches)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
    FScanRun Cancelled;
    FScanRun Next;

    Scanner.ScanScene(Cancelled.Callback());
    Scanner.CancelScan();
    EXPECT_FALSE(Scanner.IsScanning());
    Scanner.ScanScene(Next.Callback());
    ASSERT_EQ(Rig.Api.Requests.size(), 2u);

    Rig.Api.Answer(OrvTestAnswer({{"P1", OrvTestRecord("P1", "Hay", "About", "Chairs")}}));
    EXPECT_EQ(Cancelled.Completions, 0);
    EXPECT_EQ(Next.Completions, 0) << "the new scan waits for its own answer";
    EXPECT_TRUE(Scanner.IsScanning());

    Rig.Api.Answer(OrvTestAnswer({}, "[]"));
    EXPECT_EQ(Next.Completions, 1);
    EXPECT_EQ(Scanner.GetSceneProducts().Find("P1")->Brand, "Hay");
}

TEST(FOrvOutlinerScannerTest, AnswerArrivingAfterTheScannerIsGoneTouchesNothing)
{
    FOrvOutlinerRig Rig;
    Rig.AddActor({Rig.AddProductMesh("SM_1", "P1")});
    FScanRun Run;
    {
        FOrvOutlinerScanner Scanner(Rig.ScannerPorts());
        Scanner.ScanScene(Run.Callback());
    }
    Rig.Api.Answer(OrvTestAnswer({{"P1", OrvTestRecord("P1", "Hay", "About", "Chairs")}}));
    EXPECT_EQ(Run.Completions, 0);
}
