#include "Core/Outliner/OrvOutlinerExportDialogModel.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

namespace
{
    struct FDialogRun
    {
        std::optional<std::pair<std::string, std::string>> Exported;
        int Exports = 0;
        int CloseRequests = 0;

        std::unique_ptr<FOrvOutlinerExportDialogModel> Open(const std::string& DefaultProjectName)
        {
            auto Dialog = std::make_unique<FOrvOutlinerExportDialogModel>(
                DefaultProjectName,
                [this](const std::string& ProjectName, const std::string& Revision)
                {
                    Exported.emplace(ProjectName, Revision);
                    ++Exports;
                });
            Dialog->SetRequestClose([this]() { ++CloseRequests; });
            return Dialog;
        }
    };
} // namespace

TEST(FOrvOutlinerExportDialogModelTest, OpensWithTheProjectNameAndRevisionOne)
{
    FDialogRun Run;
    auto Dialog = Run.Open("Showroom");
    EXPECT_EQ(Dialog->GetProjectName(), "Showroom");
    EXPECT_EQ(Dialog->GetRevision(), "01");

    Dialog->OnExportClicked();
    EXPECT_EQ(Run.Exported, std::make_pair(std::string("Showroom"), std::string("01")));
    EXPECT_EQ(Run.CloseRequests, 1);
    EXPECT_FALSE(Dialog->IsOpen());
}

TEST(FOrvOutlinerExportDialogModelTest, ClearedBoxesExportTheDefaults)
{
    FDialogRun Run;
    auto Dialog = Run.Open("Showroom");
    Dialog->SetProjectName("");
    Dialog->SetRevision("");
    Dialog->OnExportClicked();
    EXPECT_EQ(Run.Exported, std::make_pair(std::string("Untitled Project"), std::string("01")));
}

TEST(FOrvOutlinerExportDialogModelTest, CancelOrClosingTheWindowExportsNothing)
{
    FDialogRun Run;
    auto Dialog = Run.Open("Showroom");
    Dialog->OnCancelClicked();
    EXPECT_EQ(Run.CloseRequests, 1);
    Dialog->OnExportClicked(); // a click that arrives while the window closes
    EXPECT_EQ(Run.Exports, 0);

    FDialogRun Closed;
    Closed.Open("Showroom").reset(); // the window's frame: the dialog just goes away
    EXPECT_EQ(Closed.Exports, 0);
    EXPECT_EQ(Closed.CloseRequests, 0);
}

TEST(FOrvOutlinerExportDialogModelTest, DoubleClickOnExportExportsOnce)
{
    FDialogRun Run;
    auto Dialog = Run.Open("Showroom");
    Dialog->SetRevision("C");
    Dialog->OnExportClicked();
    Dialog->OnExportClicked();
    EXPECT_EQ(Run.Exports, 1);
    EXPECT_EQ(Run.Exported->second, "C");
}
