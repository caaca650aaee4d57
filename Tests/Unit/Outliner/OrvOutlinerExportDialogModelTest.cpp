#include "Core/Outliner/OrvOutlinerExportDialogModel.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    struct FDialogRun
    {
        std::vector<std::pair<std::string, std::string>> Exports;
        int CloseRequests = 0;

        std::unique_ptr<FOrvOutlinerExportDialogModel> Open(const std::string& DefaultProjectName)
        {
            auto Dialog = std::make_unique<FOrvOutlinerExportDialogModel>(
                DefaultProjectName, [this](const std::string& ProjectName, const std::string& Revision)
                { Exports.emplace_back(ProjectName, Revision); });
            Dialog->SetRequestClose([this]() { ++CloseRequests; });
            return Dialog;
        }
    };
} // namespace

TEST(FOrvOutlinerExportDialogModelTest, ExportHandsOverTheBoxesOnceWithDefaultsForEmptyOnes)
{
    FDialogRun Run;
    auto Dialog = Run.Open("Showroom");
    EXPECT_EQ(Dialog->GetProjectName(), "Showroom");
    EXPECT_EQ(Dialog->GetRevision(), "01");
    Dialog->OnExportClicked();
    Dialog->OnExportClicked(); // a double click
    EXPECT_EQ(Run.Exports, (std::vector<std::pair<std::string, std::string>>{{"Showroom", "01"}}));
    EXPECT_EQ(Run.CloseRequests, 1);

    auto Cleared = Run.Open("Showroom");
    Cleared->SetProjectName("");
    Cleared->SetRevision("");
    Cleared->OnExportClicked();
    EXPECT_EQ(Run.Exports.back(), std::make_pair(std::string("Untitled Project"), std::string("01")));
}

TEST(FOrvOutlinerExportDialogModelTest, CancelOrClosingTheWindowExportsNothing)
{
    FDialogRun Run;
    auto Dialog = Run.Open("Showroom");
    Dialog->OnCancelClicked();
    Dialog->OnExportClicked(); // arrives while the window closes
    EXPECT_EQ(Run.CloseRequests, 1);

    Run.Open("Showroom").reset(); // closed by the window's frame: the dialog just goes away
    EXPECT_TRUE(Run.Exports.empty());
    EXPECT_EQ(Run.CloseRequests, 1);
}
