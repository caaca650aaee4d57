#include "Core/Module/OrvCommandTable.h"
#include "Core/Module/OrvModuleMenus.h"
#include "Core/Module/OrvStyleTable.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
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

    std::string ReadResource(const std::string& FileName)
    {
        std::ifstream Stream(std::string("Resources/") + FileName, std::ios::binary);
        return {std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>()};
    }

    std::uint32_t BigEndian32(const std::string& Bytes, std::size_t Offset)
    {
        std::uint32_t Value = 0;
        for (std::size_t Index = 0; Index < 4; ++Index)
        {
            Value = (Value << 8) | static_cast<unsigned char>(Bytes.at(Offset + Index));
        }
        return Value;
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

TEST(FOrvModuleTablesTest, EveryBrushImageIsInResourcesAndSquare)
{
    for (const FOrvBrushEntry& Brush : FOrvStyleTable::Brushes)
    {
        const std::string FileName = std::string(Brush.File) + Brush.Extension;
        const std::string Image = ReadResource(FileName);
        ASSERT_FALSE(Image.empty()) << "Resources/" << FileName << " is missing; " << Brush.StyleName
                                    << " would draw the missing-image pattern";
        if (std::string(Brush.Extension) == ".png")
        {
            // The IHDR chunk right after the signature holds width and height.
            ASSERT_EQ(Image.compare(1, 3, "PNG"), 0) << FileName;
            EXPECT_EQ(BigEndian32(Image, 16), static_cast<std::uint32_t>(Brush.Size)) << FileName;
            EXPECT_EQ(BigEndian32(Image, 20), static_cast<std::uint32_t>(Brush.Size)) << FileName;
        }
        else
        {
            // Drawn at any size from one square view box.
            EXPECT_NE(Image.find("<svg"), std::string::npos) << FileName;
            EXPECT_NE(Image.find("viewBox=\"0 0 64 64\""), std::string::npos) << FileName;
        }
    }
}
