#pragma once

#include "Core/Common/OrvLocText.h"
#include "Core/Module/OrvStyleTable.h"

#include <array>

namespace OrvWebBridge
{
    /** @brief An icon of the style set: a brush name and the brush the engine takes as its second name. */
    struct FOrvIconRef
    {
        const char* StyleName;
        const char* SecondStyleName = nullptr; ///< null when the icon has one brush
    };

    /** @brief One of the plugin's two nomad tabs. */
    struct FOrvTabEntry
    {
        const char* TabId;
        FOrvLocText DisplayName;
        FOrvIconRef Icon;
    };

    /** @brief Which tab a menu entry opens. */
    enum class EOrvModuleTab : unsigned char
    {
        Catalog,
        Outliner,
    };

    /** @brief A menu entry that opens (or focuses) one of the tabs. */
    struct FOrvMenuEntry
    {
        const char* Name;
        FOrvLocText Label;
        FOrvLocText Tooltip;
        FOrvIconRef Icon;
        EOrvModuleTab Opens;
    };

    /**
     * @brief The plugin's tabs, its Window menu entry and its toolbar combo button with the combo's
     * drop-down entries. Texts are in namespace Namespace.
     */
    struct FOrvModuleMenus
    {
        static constexpr const char* Namespace = "FOrvessaWebBridgeModule";

        static constexpr FOrvTabEntry CatalogTab{
            "ORVESSA App",
            {"FOrvessaWebBridgeTabTitle", "Orv Catalog"},
            {FOrvBrushNames::CatalogIcon, FOrvBrushNames::CatalogIconLarge}};

        static constexpr FOrvTabEntry OutlinerTab{
            "OrvOutliner",
            {"OrvOutlinerTabTitle", "Orv Outliner"},
            {FOrvBrushNames::OutlinerIcon, FOrvBrushNames::OutlinerIconLarge}};

        static constexpr const char* WindowMenu = "LevelEditor.MainMenu.Window";
        static constexpr const char* WindowMenuSection = "WindowLayout";
        static constexpr FOrvMenuEntry WindowMenuEntry{
            "OrvOutliner",
            {"OrvOutlinerMenuLabel", "Orv Outliner"},
            {"OrvOutlinerMenuTooltip", "Open Orv Outliner to view all ORVESSA products in the scene"},
            {FOrvBrushNames::OutlinerIcon, FOrvBrushNames::OutlinerIconLarge},
            EOrvModuleTab::Outliner};

        static constexpr const char* ToolBarMenu = "LevelEditor.LevelEditorToolBar.AssetsToolBar";
        static constexpr const char* ToolBarSection = "ORVESSASection";
        static constexpr const char* ComboName = "ORVESSACombo";
        static constexpr FOrvLocText ComboLabel{"ORVESSAToolbarLabel", "ORVESSA"};
        static constexpr FOrvLocText ComboTooltip{"ORVESSAToolbarTooltip", "ORVESSA panels and tools"};
        static constexpr FOrvIconRef ComboIcon{FOrvBrushNames::WindowIcon};

        // The drop-down's labels are the tabs' names, so they share the texts (and keys) already given.
        static constexpr std::array<FOrvMenuEntry, 2> ComboEntries{{
            {"OrvCatalogMenuEntry",
             CatalogTab.DisplayName,
             {"OrvCatalogTooltip", "Browse and download ORVESSA assets"},
             CatalogTab.Icon,
             EOrvModuleTab::Catalog},
            {"OrvOutlinerMenuEntry",
             WindowMenuEntry.Label,
             {"OrvOutlinerTooltip", "View ORVESSA products in the current scene"},
             OutlinerTab.Icon,
             EOrvModuleTab::Outliner},
        }};

        static constexpr const FOrvTabEntry& GetTab(EOrvModuleTab Tab)
        {
            return Tab == EOrvModuleTab::Catalog ? CatalogTab : OutlinerTab;
        }
    };
} // namespace OrvWebBridge
