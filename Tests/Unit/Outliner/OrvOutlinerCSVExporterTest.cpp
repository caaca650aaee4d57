#include "Core/Outliner/OrvOutlinerCSVExporter.h"
#include "Tests/Support/OrvGoldenFile.h"
#include "Tests/Unit/Outliner/OrvOutlinerTestRig.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    FOrvSceneProductPtr MakeProduct(const FOrvProductInfo& Info, std::vector<FOrvActorRef> Actors)
    {
        auto Product = std::make_shared<FOrvSceneProduct>();
        Product->SetInfo(Info);
        Product->Actors = std::move(Actors);
        return Product;
    }
} // namespace

TEST(FOrvOutlinerCSVExporterTest, ScheduleWithTrickyValuesMatchesTheGoldenFile)
{
    FOrvOutlinerRig Rig;
    const FOrvMeshRef Mesh = Rig.AddProductMesh("SM_Any", "ANY");
    FOrvSceneProductMap Products;

    Products.Add(MakeProduct({"P-LC2", "LC2 \"Grand Confort\"", "Cassina, Milano", "Armchairs", "", "LC",
                              "Le Corbusier", "76 x 70 x 67 cm", "32 kg",
                              "Tubular steel frame.\nLeather cushions.", "https://cassina.com/lc2?a=1,b=2"},
                             Rig.AddActors(Mesh, 2)));
    // All of its actors were deleted after the scan: still a row, with 0.
    const std::vector<FOrvActorRef> Gone = Rig.AddActors(Mesh, 2);
    Products.Add(MakeProduct(OrvTestInfo("P-GHOST", "alias", "Ghost", ""), Gone));
    for (const FOrvActorRef Actor : Gone)
    {
        Rig.Destroy(Actor);
    }
    FOrvProductInfo Bench = OrvTestInfo("P-BENCH", "Alias", "Bench", "Benches");
    Bench.Description = "Windows line end\r\nin the text";
    Products.Add(MakeProduct(Bench, Rig.AddActors(Mesh, 1)));
    std::vector<FOrvActorRef> Sacco = Rig.AddActors(Mesh, 3);
    Rig.Destroy(Sacco[0]);
    FOrvProductInfo SaccoInfo = OrvTestInfo("P-SACCO", "Zanotta", "Sacco", "Poufs");
    SaccoInfo.Weight = "\"light\"";
    Products.Add(MakeProduct(SaccoInfo, Sacco));
    Products.Add(MakeProduct(FOrvProductInfo::MakePlaceholder("P-UNKNOWN"), Rig.AddActors(Mesh, 1)));

    const std::string CSV = FOrvOutlinerCSVExporter::GenerateCSV(Products, "Villa \"Rosa\", Como", "02",
                                                                 Rig.Editor.World(), Rig.Environment);

    OrvExpectMatchesGolden(CSV, "Tests/Golden/Outliner/ProductScheduleTricky.csv");
}

TEST(FOrvOutlinerCSVExporterTest, EmptyMapStillGivesHeaderTotalAndFooterWithTheFallbackVersion)
{
    FOrvOutlinerRig Rig;
    Rig.Environment.PluginVersion.reset();

    const std::string CSV = FOrvOutlinerCSVExporter::GenerateCSV({}, "Untitled Project", "01",
                                                                 Rig.Editor.World(), Rig.Environment);

    OrvExpectMatchesGolden(CSV, "Tests/Golden/Outliner/ProductScheduleEmpty.csv");
    EXPECT_EQ(CSV.find('\r'), std::string::npos);
}

// Commas, quotes and line feeds are pinned by the golden schedule; these are the cases it lacks.
TEST(FOrvOutlinerCSVExporterTest, FieldsAreQuotedOnlyWhenASpreadsheetNeedsIt)
{
    EXPECT_EQ(FOrvOutlinerCSVExporter::EscapeCSVField("Plain text; with 'quotes'"),
              "Plain text; with 'quotes'");
    EXPECT_EQ(FOrvOutlinerCSVExporter::EscapeCSVField("\""), "\"\"\"\"");
    EXPECT_EQ(FOrvOutlinerCSVExporter::EscapeCSVField("cr\r"), "\"cr\r\"");
}

TEST(FOrvOutlinerCSVExporterTest, SaveAsksWhereWithTheScheduleDialogAndAddsTheExtension)
{
    FOrvOutlinerRig Rig;
    Rig.Files.DialogAnswer = std::vector<std::string>{"/Exports/Villa", "/Exports/Ignored.csv"};

    EXPECT_TRUE(FOrvOutlinerCSVExporter::SaveCSVToFile("a,b\n", "Villa_ProductSchedule_R01.csv", Rig.Files,
                                                       Rig.Environment, Rig.Log));

    EXPECT_EQ(Rig.Files.LastRequest.Title, "Save Product Schedule");
    EXPECT_EQ(Rig.Files.LastRequest.DefaultPath, "/Projects/Villa/");
    EXPECT_EQ(Rig.Files.LastRequest.DefaultFile, "Villa_ProductSchedule_R01.csv");
    EXPECT_EQ(Rig.Files.LastRequest.FileTypes, "CSV Files (*.csv)|*.csv");
    EXPECT_EQ(Rig.Files.Written, (std::map<std::string, std::string>{{"/Exports/Villa.csv", "a,b\n"}}));
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Log, "FOrvOutlinerCSVExporter: Saved CSV to /Exports/Villa.csv"));

    Rig.Files.DialogAnswer = std::vector<std::string>{"/Exports/Upper.CSV"};
    EXPECT_TRUE(
        FOrvOutlinerCSVExporter::SaveCSVToFile("x", "Default.csv", Rig.Files, Rig.Environment, Rig.Log));
    EXPECT_TRUE(Rig.Files.Written.contains("/Exports/Upper.CSV"));
}

TEST(FOrvOutlinerCSVExporterTest, SaveReportsEveryWayItCanFail)
{
    FOrvOutlinerRig Rig;

    Rig.Files.DialogAnswer.reset();
    EXPECT_FALSE(FOrvOutlinerCSVExporter::SaveCSVToFile("x", "S.csv", Rig.Files, Rig.Environment, Rig.Log));
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Log, "FOrvOutlinerCSVExporter: Save dialog cancelled"));

    Rig.Files.DialogAnswer = std::vector<std::string>{};
    EXPECT_FALSE(FOrvOutlinerCSVExporter::SaveCSVToFile("x", "S.csv", Rig.Files, Rig.Environment, Rig.Log));
    EXPECT_EQ(Rig.Log.Count("FOrvOutlinerCSVExporter: Save dialog cancelled"), 2);

    Rig.Files.DialogAnswer = std::vector<std::string>{"/ReadOnly/S.csv"};
    Rig.Files.bFailWrites = true;
    EXPECT_FALSE(FOrvOutlinerCSVExporter::SaveCSVToFile("x", "S.csv", Rig.Files, Rig.Environment, Rig.Log));
    EXPECT_TRUE(Rig.Log.Contains(EOrvLogVerbosity::Error,
                                 "FOrvOutlinerCSVExporter: Failed to save CSV to /ReadOnly/S.csv"));

    Rig.Files.bDesktopPlatform = false;
    const int DialogsBefore = Rig.Files.DialogsShown;
    EXPECT_FALSE(FOrvOutlinerCSVExporter::SaveCSVToFile("x", "S.csv", Rig.Files, Rig.Environment, Rig.Log));
    EXPECT_TRUE(
        Rig.Log.Contains(EOrvLogVerbosity::Error, "FOrvOutlinerCSVExporter: Desktop platform not available"));
    EXPECT_EQ(Rig.Files.DialogsShown, DialogsBefore);
}
