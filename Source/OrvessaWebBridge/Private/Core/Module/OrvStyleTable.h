#pragma once

#include <array>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief One image brush of the style set: a style name over a file of the plugin's Resources folder. */
    struct FOrvBrushEntry
    {
        const char* StyleName;
        const char* File;      ///< without the extension, relative to Resources
        const char* Extension; ///< ".svg" (a vector brush) or ".png" (a bitmap brush)
        int Size;              ///< drawn as a Size x Size square, in Slate units
    };

    /** @brief One font style of the style set: the engine's default font in a typeface and size. */
    struct FOrvFontEntry
    {
        const char* StyleName;
        const char* Typeface;
        int Size;
    };

    /** @brief Names of the brushes that menus, tabs and commands refer to. */
    struct FOrvBrushNames
    {
        static constexpr const char* OpenPluginWindow = "OrvessaWebBridge.OpenPluginWindow";
        static constexpr const char* Red = "ORVESSA.Red";
        static constexpr const char* LargeIcon = "ORVESSA.ORVESSALargeIcon";
        static constexpr const char* WindowIcon = "ORVESSA.ORVESSAWindowIcon";
        static constexpr const char* NotificationIcon = "ORVESSA.NotificationIcon";
        static constexpr const char* CatalogIcon = "ORVESSA.CatalogIcon";
        static constexpr const char* CatalogIconLarge = "ORVESSA.CatalogIcon.Large";
        static constexpr const char* OutlinerIcon = "ORVESSA.OutlinerIcon";
        static constexpr const char* OutlinerIconLarge = "ORVESSA.OutlinerIcon.Large";
    };

    /** @brief The plugin's style set "OrvessaWebBridgeStyle": every brush and font it registers. */
    struct FOrvStyleTable
    {
        static constexpr const char* StyleSetName = "OrvessaWebBridgeStyle";

        /** The folder under the plugin's base directory that holds the images. */
        static constexpr const char* ContentFolder = "Resources";

        // Menu entries draw icons at 16, toolbar buttons at 20, large and notification icons at 40.
        static constexpr std::array<FOrvBrushEntry, 9> Brushes{{
            {FOrvBrushNames::OpenPluginWindow, "ORVESSA_Logo", ".svg", 20},
            {FOrvBrushNames::Red, "ORVESSA_Logo", ".svg", 16},
            {FOrvBrushNames::LargeIcon, "ORVESSA_Logo", ".svg", 40},
            {FOrvBrushNames::WindowIcon, "ORVESSA_Logo", ".svg", 20},
            {FOrvBrushNames::NotificationIcon, "ORVESSA_Logo_40x", ".png", 40},
            {FOrvBrushNames::CatalogIcon, "OrvCatalog_icon", ".svg", 16},
            {FOrvBrushNames::CatalogIconLarge, "OrvCatalog_icon", ".svg", 40},
            {FOrvBrushNames::OutlinerIcon, "OrvOutliner_icon", ".svg", 16},
            {FOrvBrushNames::OutlinerIconLarge, "OrvOutliner_icon", ".svg", 40},
        }};

        static constexpr std::array<FOrvFontEntry, 2> Fonts{{
            {"ORVESSA.Heading", "Bold", 12},
            {"ORVESSA.HeadingBig", "Bold", 16},
        }};

        /** The brush registered under StyleName; null when there is none. */
        static constexpr const FOrvBrushEntry* FindBrush(std::string_view StyleName)
        {
            for (const FOrvBrushEntry& Brush : Brushes)
            {
                if (StyleName == Brush.StyleName)
                {
                    return &Brush;
                }
            }
            return nullptr;
        }
    };
} // namespace OrvWebBridge
