#include "Host/OrvHostCommands.h"
#include "Host/Outliner/OrvOutlinerTextView.h"
#include "Tests/Support/OrvTempDirectory.h"
#include "Tests/Unit/Outliner/OrvOutlinerTestRig.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace OrvWebBridge;

namespace
{
    std::string ReadFile(const std::filesystem::path& Path)
    {
        std::ifstream Stream(Path, std::ios::binary);
        std::ostringstream Text;
        Text << Stream.rdbuf();
        return Text.str();
    }
} // namespace

TEST(FOrvOutlinerHostTest, TreeSortsWithoutCaseGroupsNamesAcrossCaseAndPutsRootCategoriesLast)
{
    FOrvOutlinerRig Rig;
    const std::pair<const char*, int> IdAndCount[] = {{"A", 2}, {"B", 1}, {"C", 3},
                                                      {"D", 1}, {"E", 1}, {"F", 1}};
    for (const auto& [Id, Count] : IdAndCount)
    {
        Rig.AddActors(Rig.AddProductMesh(std::string("SM_") + Id, Id), Count);
    }
    FOrvOutlinerPanelModel Panel(Rig.PanelPorts());
    Panel.Construct();
    Rig.Api.Answer(OrvTestAnswer({
        {"A", OrvTestRecord("A", "zeta", "Chair", "Chairs", "Seating")},
        {"B", OrvTestRecord("B", "Alpha", "Stool", "chairs", "seating")},
        {"C", OrvTestRecord("C", "Flos", "Arco", "Floor Lamps", "lighting")},
        {"D", OrvTestRecord("D", "Vitra", "Rug", "Rugs")},
        {"E", OrvTestRecord("E", "Alpha", "Bench", "Benches", "Seating")},
        {"F", OrvTestRecord("F", "Muuto", "Vase", "accessories")},
    }));
    Panel.OnToggleCategoryVisibility(*Panel.GetRootItems()[1]->AsMacroCategory()->Categories[1]);

    // A group is named as first met.
    EXPECT_EQ(FOrvOutlinerTextView::Render(Panel), "9 products in scene\n"
                                                   "lighting x3\n"
                                                   "  Floor Lamps x3\n"
                                                   "    Flos - Arco x3\n"
                                                   "Seating x4\n"
                                                   "  Benches x1\n"
                                                   "    Alpha - Bench x1\n"
                                                   "  Chairs x3 (hidden)\n"
                                                   "    Alpha - Stool x1\n"
                                                   "    zeta - Chair x2\n"
                                                   "accessories x1\n"
                                                   "  Muuto - Vase x1\n"
                                                   "Rugs x1\n"
                                                   "  Vitra - Rug x1\n");

    Rig.Ui.bLoggedIn = false;
    EXPECT_EQ(FOrvOutlinerTextView::Render(Panel),
              "9 products in scene\nLogin Required\n"
              "Please log in via the Orv Catalog panel\nto view scene products.\n");
}

TEST(FOrvOutlinerHostTest,
     ScheduleCommandWritesThePanelsDefaultFileOnceReplacesItOnlyWhenForcedAndLeavesNoTemporaryFile)
{
    FOrvTempDirectory Directory;
    const std::filesystem::path Previous = std::filesystem::current_path();
    std::filesystem::current_path(Directory.Path);
    const int FirstExit = RunScheduleCommand({});
    std::filesystem::current_path(Previous);
    EXPECT_EQ(FirstExit, 0);
    const std::filesystem::path Written = Directory.Path / "DemoRoom_ProductSchedule_R01.csv";
    const std::string First = ReadFile(Written);
    EXPECT_NE(First.find("Revision:,01,"), std::string::npos);

    FOrvScheduleOptions Options;
    Options.OutputFile = (Directory.Path / "DemoRoom_ProductSchedule_R01").string(); // the extension is added
    Options.ProjectName = "Villa, Rosa";
    Options.Revision = "02";
    EXPECT_EQ(RunScheduleCommand(Options), 1);
    EXPECT_EQ(ReadFile(Written), First);

    Options.bForce = true;
    EXPECT_EQ(RunScheduleCommand(Options), 0);
    const std::string Forced = ReadFile(Written);
    EXPECT_NE(Forced.find("Project:,\"Villa, Rosa\",,,,,,,,,,\nDate:,"), std::string::npos);
    EXPECT_NE(Forced.find("Revision:,02,"), std::string::npos);

    Options.OutputFile = (Directory.Path / "missing" / "S.csv").string();
    EXPECT_EQ(RunScheduleCommand(Options), 1);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Directory.Path), {}), 1);
}
