#include "Core/Module/OrvCommandTable.h"
#include "Core/Module/OrvModuleMenus.h"
#include "Core/Module/OrvStyleTable.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    std::vector<FOrvIconRef> EveryIconReference()
    {
        std::vector<FOrvIconRef> Icons{FOrvModuleMenus::CatalogTab.Icon, FOrvModuleMenus::OutlinerTab.Icon,
                                       FOrvModuleMenus::WindowMenuEntry.Icon, FOrvModuleMenus::ComboIcon};
        for (const FOrvMenuEntry& Entry : FOrvModuleMenus::ComboEntries)
        {
            Icons.push_back(Entry.Icon);
        }
        return Icons;
    }
} // namespace

TEST(FOrvModuleTablesTest, EveryIconTheTabsMenusAndCommandsUseIsABrushOfTheStyleSet)
{
    for (const FOrvIconRef& Icon : EveryIconReference())
    {
        EXPECT_NE(FOrvStyleTable::FindBrush(Icon.StyleName), nullptr) << Icon.StyleName;
        if (Icon.SecondStyleName)
        {
            EXPECT_NE(FOrvStyleTable::FindBrush(Icon.SecondStyleName), nullptr) << Icon.SecondStyleName;
        }
    }
    // The engine finds a command's icon under "<context>.<command>".
    const std::string OpenPluginWindowIcon =
        std::string(FOrvCommandTable::ContextName) + "." + FOrvCommandTable::OpenPluginWindow.Name;
    EXPECT_NE(FOrvStyleTable::FindBrush(OpenPluginWindowIcon), nullptr) << OpenPluginWindowIcon;

    std::set<std::string> StyleNames;
    for (const FOrvBrushEntry& Brush : FOrvStyleTable::Brushes)
    {
        EXPECT_TRUE(StyleNames.insert(Brush.StyleName).second) << "registered twice: " << Brush.StyleName;
        EXPECT_TRUE(std::string(Brush.Extension) == ".svg" || std::string(Brush.Extension) == ".png")
            << Brush.StyleName;
    }
    for (const FOrvFontEntry& Font : FOrvStyleTable::Fonts)
    {
        EXPECT_TRUE(StyleNames.insert(Font.StyleName).second) << "registered twice: " << Font.StyleName;
    }
}

TEST(FOrvModuleTablesTest, NamesTheEditorSavedLayoutsAndOtherModulesLookUpAreKept)
{
    // Saved editor layouts reopen tabs by id; the engine finds menus, sections and styles by name.
    EXPECT_STREQ(FOrvStyleTable::StyleSetName, "OrvessaWebBridgeStyle");
    EXPECT_STREQ(FOrvModuleMenus::CatalogTab.TabId, "ORVESSA App");
    EXPECT_STREQ(FOrvModuleMenus::OutlinerTab.TabId, "OrvOutliner");
    EXPECT_STREQ(FOrvModuleMenus::WindowMenu, "LevelEditor.MainMenu.Window");
    EXPECT_STREQ(FOrvModuleMenus::WindowMenuSection, "WindowLayout");
    EXPECT_STREQ(FOrvModuleMenus::ToolBarMenu, "LevelEditor.LevelEditorToolBar.AssetsToolBar");
    EXPECT_STREQ(FOrvCommandTable::ContextName, "OrvessaWebBridge");

    // Alt+R alone: Ctrl+Alt+R and Alt+Shift+R stay free for the editor.
    const FOrvInputChord& AltR = FOrvCommandTable::ViewProductDetails.DefaultChord;
    EXPECT_STREQ(AltR.Key, "R");
    EXPECT_TRUE(AltR.bAlt);
    EXPECT_FALSE(AltR.bControl || AltR.bShift || AltR.bCommand);
    EXPECT_EQ(FOrvCommandTable::OpenPluginWindow.DefaultChord.Key, nullptr);

    EXPECT_EQ(FOrvModuleMenus::WindowMenuEntry.Opens, EOrvModuleTab::Outliner);
    EXPECT_EQ(FOrvModuleMenus::ComboEntries[0].Opens, EOrvModuleTab::Catalog);
    EXPECT_EQ(FOrvModuleMenus::ComboEntries[1].Opens, EOrvModuleTab::Outliner);
}
