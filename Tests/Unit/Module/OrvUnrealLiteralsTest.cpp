#include "Core/Module/OrvCommandTable.h"
#include "Core/Module/OrvModuleMenus.h"
#include "Core/Outliner/OrvOutlinerTexts.h"
#include "Core/SmartPanel/OrvCatalogToolbarTexts.h"

#include "Tests/Support/OrvUnrealLiterals.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    using FOrvTextKey = std::pair<std::string, std::string>; ///< namespace, key

    /** Every localised text of the core's tables by namespace and key; a key naming two texts fails. */
    std::map<FOrvTextKey, std::string> CoreTexts()
    {
        std::map<FOrvTextKey, std::string> Texts;
        const auto Add = [&](const char* Namespace, const std::string& Key, const char* Text)
        {
            const auto [Entry, bAdded] = Texts.emplace(FOrvTextKey{Namespace, Key}, Text);
            EXPECT_TRUE(bAdded || Entry->second == Text) << Namespace << "/" << Key << " names both \""
                                                         << Entry->second << "\" and \"" << Text << "\"";
        };
        const auto AddText = [&](const char* Namespace, const FOrvLocText& Text)
        { Add(Namespace, Text.Key, Text.Text); };

        using FMenus = FOrvModuleMenus;
        for (const FOrvLocText& Text :
             {FMenus::CatalogTab.DisplayName, FMenus::OutlinerTab.DisplayName, FMenus::WindowMenuEntry.Label,
              FMenus::WindowMenuEntry.Tooltip, FMenus::ComboLabel, FMenus::ComboTooltip})
        {
            AddText(FMenus::Namespace, Text);
        }
        for (const FOrvMenuEntry& Entry : FMenus::ComboEntries)
        {
            AddText(FMenus::Namespace, Entry.Label);
            AddText(FMenus::Namespace, Entry.Tooltip);
        }

        AddText(FOrvCommandTable::ContextNamespace, FOrvCommandTable::ContextDescription);
        for (const FOrvCommandEntry& Command : FOrvCommandTable::Commands)
        {
            Add(FOrvCommandTable::Namespace, Command.Name, Command.Label);
            Add(FOrvCommandTable::Namespace, std::string(Command.Name) + "_ToolTip", Command.Tooltip);
        }

        using FPanel = FOrvOutlinerPanelTexts;
        for (const FOrvLocText& Text :
             {FPanel::Scanning, FPanel::ProductCount, FPanel::NoProducts, FPanel::RefreshTooltip,
              FPanel::ExportCSVTooltip, FPanel::LoginRequired, FPanel::LoginMessage,
              FPanel::MacroCategoryCount, FPanel::ShowMacroCategoryTooltip, FPanel::HideMacroCategoryTooltip,
              FPanel::SelectMacroCategoryTooltip, FPanel::CategoryCount, FPanel::ShowCategoryTooltip,
              FPanel::HideCategoryTooltip, FPanel::SelectCategoryTooltip, FPanel::ActorCount,
              FPanel::NavigateMeshTooltip, FPanel::SelectActorsTooltip, FPanel::OpenWebPanelTooltip})
        {
            AddText(FPanel::Namespace, Text);
        }
        using FDialog = FOrvOutlinerExportDialogTexts;
        for (const FOrvLocText& Text : {FDialog::WindowTitle, FDialog::DialogTitle, FDialog::ProjectNameLabel,
                                        FDialog::RevisionLabel, FDialog::CancelButton, FDialog::ExportButton})
        {
            AddText(FDialog::Namespace, Text);
        }
        using FToolbar = FOrvCatalogToolbarTexts;
        for (const FOrvLocText& Text : {FToolbar::AutoDetect, FToolbar::AutoDetectTooltip, FToolbar::Hint,
                                        FToolbar::HintTooltip, FToolbar::CopyUrl, FToolbar::CopyUrlTooltip})
        {
            AddText(FToolbar::Namespace, Text);
        }
        return Texts;
    }

    /** The chord as the Unreal source spells it, blanks removed. */
    std::string ChordLiteral(const FOrvInputChord& Chord)
    {
        if (!Chord.Key)
        {
            return "FInputChord()";
        }
        std::string Modifiers;
        for (const auto& [bDown, Name] :
             {std::pair{Chord.bControl, "Control"}, std::pair{Chord.bAlt, "Alt"},
              std::pair{Chord.bShift, "Shift"}, std::pair{Chord.bCommand, "Command"}})
        {
            if (bDown)
            {
                Modifiers += (Modifiers.empty() ? "EModifierKey::" : "|EModifierKey::") + std::string(Name);
            }
        }
        return "FInputChord(" + Modifiers + ",EKeys::" + Chord.Key + ")";
    }

    const FOrvUnrealLiterals& UnrealSources()
    {
        static const FOrvUnrealLiterals Literals = FOrvUnrealLiterals::ScanFolder("Source/OrvessaWebBridge");
        return Literals;
    }
} // namespace

TEST(FOrvUnrealLiteralsTest, UnrealSourcesRestateEveryCoreTextExactlyAndNoOther)
{
    const FOrvUnrealLiterals& Literals = UnrealSources();
    EXPECT_TRUE(Literals.Errors.empty()) << ::testing::PrintToString(Literals.Errors);

    const std::map<FOrvTextKey, std::string> Core = CoreTexts();
    std::map<FOrvTextKey, int> Restated;
    for (const FOrvLocLiteral& Literal : Literals.Texts)
    {
        const auto Found = Core.find({Literal.Namespace, Literal.Key});
        if (Found == Core.end())
        {
            ADD_FAILURE() << Literal.Where << ": " << Literal.Namespace << "/" << Literal.Key
                          << " is not in the core's text tables; add it there";
            continue;
        }
        EXPECT_EQ(Literal.Text, Found->second)
            << Literal.Where << ": " << Literal.Namespace << "/" << Literal.Key;
        ++Restated[Found->first];
    }
    for (const auto& [Key, Text] : Core)
    {
        EXPECT_TRUE(Restated.contains(Key))
            << Key.first << "/" << Key.second << " (\"" << Text << "\") is in no Unreal source";
    }
}

TEST(FOrvUnrealLiteralsTest, UnrealCommandsAreTheCommandTablesButtonsWithTheirChords)
{
    const FOrvUnrealLiterals& Literals = UnrealSources();
    ASSERT_EQ(Literals.Commands.size(), FOrvCommandTable::Commands.size());
    for (const FOrvCommandEntry& Entry : FOrvCommandTable::Commands)
    {
        const auto Command =
            std::find_if(Literals.Commands.begin(), Literals.Commands.end(),
                         [&](const FOrvCommandLiteral& Literal) { return Literal.Name == Entry.Name; });
        ASSERT_NE(Command, Literals.Commands.end()) << Entry.Name;
        EXPECT_EQ(Command->Namespace, FOrvCommandTable::Namespace) << Entry.Name;
        EXPECT_EQ(Command->ActionType, "EUserInterfaceActionType::Button") << Entry.Name;
        EXPECT_EQ(Command->Chord, ChordLiteral(Entry.DefaultChord)) << Entry.Name;
    }
}
